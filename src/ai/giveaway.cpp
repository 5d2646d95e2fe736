#include "ai/giveaway.h"

#include <algorithm>

#include "ai/chain_tracing.h"
#include "base/random.h"
#include "core/state/game_state.h"
#include "core/state/work_lists.h"

void GatherGiveaway(int line) {
    TraceChain(line);
    Work.ChainLines.Append(ToInteger(line));
    Work.ChainLines.Append(Work.ChainTailLines);
}

void GiveAwayLine(int line) {
    GatherGiveaway(line);
    if (Work.ChainBoxes.Count() != 2 || !KindOf(Game.CurrentPlayer).ChoosesDeeply) {
        Game.ChosenLine = Work.ChainLines.at(RandomPick(Work.ChainLines.Count()));
        return;
    }
    const auto [firstBox, secondBox] = std::minmax(Work.ChainBoxes.at(1), Work.ChainBoxes.at(2));
    for (const Integer between : Work.ChainLines) {
        const Line& candidate = Game.Lines.at(between);
        if (candidate.FirstBox == firstBox && candidate.SecondBox == secondBox) {
            Game.ChosenLine = between;
            return;
        }
    }
}
