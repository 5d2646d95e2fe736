#include "ai/capture.h"

#include "core/rules/moves.h"
#include "core/rules/pacing.h"
#include "core/state/game_state.h"

int FindCaptureBox() {
    for (int box = 1; box <= Game.BoxCount; ++box)
        if (Game.Boxes.at(box).SidesDrawn == 3)
            return box;
    return 0;
}

bool TakesABox(int line) {
    const Line& candidate = Game.Lines.at(line);
    return candidate.Drawn == 0 && (Game.Boxes.at(candidate.FirstBox).SidesDrawn == 3 ||
                                    Game.Boxes.at(candidate.SecondBox).SidesDrawn == 3);
}

void Capture(int line) {
    Game.ChosenLine = ToInteger(line);
    ApplyMove();
    Delay(CapturePause);
}
