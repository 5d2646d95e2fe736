#include "ai/cheat_capture.h"

#include <algorithm>

#include "ai/capture.h"
#include "ai/chain_tracing.h"
#include "core/state/grid.h"
#include "core/state/work_lists.h"

namespace {

int FirstDrawnSide(int box) {
    return FirstSide(box, [](int side) { return Game.Lines.at(side).Drawn != 0; });
}

bool ChainTouches(int line) {
    return std::any_of(Work.ChainBoxes.begin(), Work.ChainBoxes.end(),
                       [line](int box) { return HasSide(box, line); });
}

void TakeChainsNotOpenedBy(int lastLine) {
    for (int box = 1; box <= Game.BoxCount; ++box) {
        if (Game.Boxes.at(box).SidesDrawn != 3)
            continue;
        TraceChain(FirstDrawnSide(box));
        if (ChainTouches(lastLine))
            continue;
        for (const Integer taken : Work.ChainBoxes)
            if (const int side = FirstUndrawnSide(taken); TakesABox(side))
                Capture(side);
    }
}

// Draws the first `count` of `ChainLines` and chooses the one at `choice`.
void CaptureThenChoose(int count, int choice) {
    for (int position = 1; position <= count; ++position)
        Capture(Work.ChainLines.at(position));
    Game.ChosenLine = Work.ChainLines.at(choice);
}

// Joins both walks in `ChainLines`, the shorter one first, so that what is declined lies at the end
// of the longer. A closed loop has but one. A shorter walk that only takes boxes once the longer
// one has passed stays behind it.
void JoinWalks() {
    const Integer tailCount = Work.ChainTailLines.Count();
    if (tailCount > 0 && Work.ChainLines.Count() > tailCount &&
        EveryLineTakesABox(Work.ChainTailLines))
        std::swap(Work.ChainLines, Work.ChainTailLines);
    Work.ChainLines.Append(Work.ChainTailLines);
}

void TakeOrDecline(bool mayDecline, bool isLoop) {
    const int count = Work.ChainLines.Count();
    const bool endsGame = count + Game.LinesDrawn == Game.LineCount; // then two are declined alone
    if (!mayDecline || (endsGame && count != 2))
        CaptureThenChoose(count - 1, count);
    else if (!isLoop)
        CaptureThenChoose(count - 2, count);
    else
        CaptureThenChoose(count - 3, count - 1);
}

} // namespace

void CheatTakeBoxes() {
    const int lastLine = Game.LastLine;
    TakeChainsNotOpenedBy(lastLine);
    if (!HasBoxBeside(lastLine, 3))
        return;
    TraceChain(lastLine);
    const bool mayDecline = Work.ChainLines.Count() > 1 || Work.ChainTailLines.Count() > 1;
    const bool isLoop = Work.ChainTailLines.Count() == CountedList<Integer>::ClosedLoop;
    JoinWalks();
    TakeOrDecline(mayDecline, isLoop);
}
