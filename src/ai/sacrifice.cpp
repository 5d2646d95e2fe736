#include "ai/sacrifice.h"

#include <algorithm>

#include "ai/capture.h"
#include "ai/chain_tracing.h"
#include "ai/deep_sacrifice.h"
#include "ai/giveaway.h"
#include "base/random.h"
#include "core/rules/pacing.h"
#include "core/state/game_state.h"
#include "core/state/work_lists.h"
#include "platform/desktop.h"

namespace {

// Sorts behind every real size.
Integer NoCandidate() {
    return ToInteger(Game.BoxCount + 1);
}

// Lets the window answer in between, however long the chains are that were traced.
void YieldAfterTracing(int& boxesTraced) {
    constexpr int boxesBetweenYields = 200'000;
    boxesTraced += Work.ChainBoxes.Count();
    if (boxesTraced < boxesBetweenYields)
        return;
    boxesTraced = 0;
    YieldToEvents(0);
}

void SizeRiskyLines() {
    int boxesTraced = 0;
    for (RiskyLine& risky : Work.RiskyLines) {
        TraceChain(risky.Line);
        risky.Size = Work.ChainBoxes.Count() > 0 ? Work.ChainBoxes.Count() : NoCandidate();
        YieldAfterTracing(boxesTraced);
    }
}

// The row of `line` behind `row`, 0 = none. Before they are sorted by size the rows stand in the
// order of their lines.
int FindRowBehind(int row, int line) {
    const auto found =
        std::lower_bound(Work.RiskyLines.begin() + row, Work.RiskyLines.end(), line,
                         [](const RiskyLine& risky, int wanted) { return risky.Line < wanted; });
    if (found == Work.RiskyLines.end() || found->Line != line)
        return 0;
    return static_cast<int>(found - Work.RiskyLines.begin()) + 1;
}

void KeepOneLinePerGiveaway() {
    int boxesTraced = 0;
    for (int row = 1; row < Work.RiskyLines.Count(); ++row) {
        const RiskyLine kept = Work.RiskyLines.at(row);
        if (kept.Size == NoCandidate())
            continue;
        GatherGiveaway(kept.Line);
        for (const Integer line : Work.ChainLines) {
            const int other = FindRowBehind(row, line);
            if (other != 0 && Work.RiskyLines.at(other).Size == kept.Size)
                Work.RiskyLines.at(other).Size = NoCandidate();
        }
        YieldAfterTracing(boxesTraced);
    }
}

void SortAndDropNoCandidates() {
    std::stable_sort(Work.RiskyLines.begin(), Work.RiskyLines.end(),
                     [](const RiskyLine& a, const RiskyLine& b) { return a.Size < b.Size; });
    const auto behind = std::find_if(Work.RiskyLines.begin(), Work.RiskyLines.end(),
                                     [](const RiskyLine& r) { return r.Size == NoCandidate(); });
    Work.RiskyLines.Shorten(ToInteger(static_cast<int>(behind - Work.RiskyLines.begin())));
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
    SizeRiskyLines();
    KeepOneLinePerGiveaway();
    SortAndDropNoCandidates();
    if (KindOf(Game.CurrentPlayer).ChoosesDeeply)
        ChooseSacrificeDeep();
    else
        ChooseSmallestGiveaway();
}
