#include "ai/giveaway.h"

#include <algorithm>

#include "ai/chain_tracing.h"
#include "base/random.h"
#include "core/state/grid.h"
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
    for (const Integer between : Work.ChainLines)
        if (std::ranges::is_permutation(BoxesBeside(between), Work.ChainBoxes))
            Game.ChosenLine = between;
}
