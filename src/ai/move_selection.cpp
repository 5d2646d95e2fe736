#include "ai/move_selection.h"

#include "ai/capture.h"
#include "ai/chain_tracing.h"
#include "ai/cheat_capture.h"
#include "ai/sacrifice.h"
#include "base/random.h"
#include "core/rules/pacing.h"
#include "core/state/grid.h"
#include "core/state/work_lists.h"
#include "display/safe_lines.h"

namespace {

// Takes the box and every box that its capture opens, but for the last line.
void TakeWholeChain(int captureBox) {
    if (!Game.HintMode)
        Delay(CapturePause);
    const int first = FirstUndrawnSide(captureBox);
    Game.ChosenLine = ToInteger(first);
    if (Game.HintMode)
        return;
    TraceChain(first);
    if (Work.ChainLines.Count() == 0 && Work.ChainTailLines.Count() == 0)
        return;
    Work.ChainLines.Append(Work.ChainTailLines);
    Capture(first);
    for (int position = 1; position < Work.ChainLines.Count(); ++position)
        Capture(Work.ChainLines.at(position));
    Game.ChosenLine = Work.ChainLines.Last();
}

bool IsDrawn(int line) {
    return Game.Lines.at(line).Drawn != 0;
}

// Sorts the undrawn lines into safe ones, left in `ChainLines`, and `RiskyLines`.
void ClassifyUndrawnLines() {
    Work.ChainLines.Clear();
    Work.RiskyLines.Clear();
    for (int line = 1; line <= Game.LineCount; ++line) {
        if (IsDrawn(line))
            continue;
        if (IsSafeLine(line))
            Work.ChainLines.Append(ToInteger(line));
        else
            Work.RiskyLines.Append({ToInteger(line), 0});
    }
}

void ChooseSafeOrRiskyLine() {
    ClassifyUndrawnLines();
    if (Work.ChainLines.Count() != 0)
        Game.ChosenLine = Work.ChainLines.at(RandomPick(Work.ChainLines.Count()));
    else
        ChooseSacrifice();
}

// The cheat may have drawn the line with a chain; then the turn loop asks again.
void TakeAsCheat(int captureBox) {
    Game.ChosenLine = ToInteger(FirstUndrawnSide(captureBox));
    CheatTakeBoxes();
    if (IsDrawn(Game.ChosenLine))
        Game.ChosenLine = 0;
}

} // namespace

void ChooseComputerMove() {
    const int captureBox = FindCaptureBox();
    if (captureBox == 0)
        ChooseSafeOrRiskyLine();
    else if (!Game.HintMode && KindOf(Game.CurrentPlayer).Declines)
        TakeAsCheat(captureBox);
    else
        TakeWholeChain(captureBox);
}
