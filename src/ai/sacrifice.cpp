#include "ai/sacrifice.h"

#include <algorithm>
#include <vector>

#include "ai/board_runs.h"
#include "ai/capture.h"
#include "ai/chain_tracing.h"
#include "ai/deep_sacrifice.h"
#include "ai/giveaway.h"
#include "base/random.h"
#include "core/rules/pacing.h"
#include "core/state/game_state.h"
#include "core/state/work_lists.h"

namespace {

// Keeps the first line of every run and sizes it. No line is safe and no box has three sides, so
// each line left belongs to a run, and all lines of a run open the same giveaway.
void KeepOneLinePerGiveaway() {
    const BoardRuns board = FindBoardRuns();
    std::vector<bool> isKept(board.Runs.size(), false);
    int kept = 0;
    for (const RiskyLine risky : Work.RiskyLines) {
        const int run = board.RunOfLine.at(risky.Line);
        if (isKept.at(run))
            continue;
        isKept.at(run) = true;
        TraceChain(risky.Line);
        Work.RiskyLines.at(++kept) = {risky.Line, Work.ChainBoxes.Count()};
    }
    Work.RiskyLines.Shorten(ToInteger(kept));
    std::stable_sort(Work.RiskyLines.begin(), Work.RiskyLines.end(),
                     [](const RiskyLine& a, const RiskyLine& b) { return a.Size < b.Size; });
}

// Chooses at random among the smallest giveaways.
void ChooseSmallestGiveaway() {
    const Integer smallest = Work.RiskyLines.at(1).Size;
    const auto larger = std::find_if(Work.RiskyLines.begin(), Work.RiskyLines.end(),
                                     [=](const RiskyLine& r) { return r.Size > smallest; });
    const int ties = static_cast<int>(larger - Work.RiskyLines.begin());
    GiveAwayLine(Work.RiskyLines.at(RandomPick(ties)).Line);
}

} // namespace

void ChooseSacrifice() {
    if (!Game.HintMode)
        Delay(CapturePause);
    KeepOneLinePerGiveaway();
    if (KindOf(Game.CurrentPlayer).ChoosesDeeply)
        ChooseSacrificeDeep();
    else
        ChooseSmallestGiveaway();
}
