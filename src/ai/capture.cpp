#include "ai/capture.h"

#include "core/rules/moves.h"
#include "core/rules/pacing.h"
#include "core/state/grid.h"

int FindCaptureBox() {
    for (int box = 1; box <= Game.BoxCount; ++box)
        if (Game.Boxes.at(box).SidesDrawn == 3)
            return box;
    return 0;
}

bool TakesABox(int line) {
    return Game.Lines.at(line).Drawn == 0 && HasBoxBeside(line, 3);
}

void Capture(int line) {
    Game.ChosenLine = ToInteger(line);
    ApplyMove();
    Delay(CapturePause);
}
