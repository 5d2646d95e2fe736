#include "core/game_state.h"

GameState Game;
