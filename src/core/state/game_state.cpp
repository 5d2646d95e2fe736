#include "core/state/game_state.h"

GameState Game;

void ForgetLines() {
    static_cast<LinesOfTurn&>(Game) = {};
    Game.LastLine = 0;
}
