#include "core/state/game_state.h"

GameState Game;

void ForgetLines() {
    Game.ComputerGhostLine = 0;
    Game.GhostLine = 0;
    Game.LastGhostLine = 0;
    Game.ChosenLine = 0;
    Game.LastLine = 0;
    Game.Told = {};
}
