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

int BoxAcross(int line, int box) {
    const Line& crossed = Game.Lines.at(line);
    return crossed.FirstBox == box ? crossed.SecondBox : crossed.FirstBox;
}

int FirstUndrawnSide(int box, int leftOut) {
    for (const Integer side : Game.Boxes.at(box).Sides)
        if (side != leftOut && Game.Lines.at(side).Drawn == 0)
            return side;
    return 0;
}
