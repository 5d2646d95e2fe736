#include "ai/deep_sacrifice.h"

#include <algorithm>
#include <vector>

#include "ai/board_runs.h"
#include "ai/giveaway.h"
#include "ai/giveaway_search.h"
#include "base/random.h"
#include "core/rules/pacing.h"
#include "core/state/game_state.h"
#include "core/state/work_lists.h"
#include "platform/desktop.h"

namespace {

void Swap(Integer& first, Integer& second) {
    const Integer kept = first;
    first = second;
    second = kept;
}

// Margins are sums in different orders of the same few numbers, remembered in single precision.
bool IsAsGood(double margin, double best) {
    return margin >= best - 1e-3;
}

// The margin that each row of the table leads to.
std::vector<double> JudgeRows() {
    const int mover = Game.CurrentPlayer;
    const BoardRuns board = FindBoardRuns();
    std::vector<int> candidates;
    for (const RiskyLine& row : Work.RiskyLines)
        candidates.push_back(board.RunOfLine.at(row.Line));
    GiveawaySearch search(Game.PlayerKind.at(mover), Game.PlayerKind.at(OtherPlayer(mover)));
    std::vector<double> margins = search.Judge(board.Runs, candidates);
    YieldToEvents(0); // to forget all that was found out takes some time, too
    return margins;
}

// Puts the best rows first and returns how many are equally good.
int OrderBestFirst(const std::vector<double>& margins) {
    double best = margins.at(0);
    for (const double margin : margins)
        best = std::max(best, margin);
    int ties = 0;
    for (int row = 1; row <= Work.RiskyLines.Count(); ++row)
        if (IsAsGood(margins.at(row - 1), best))
            Swap(Work.RiskyLines.at(++ties).Line, Work.RiskyLines.at(row).Line);
    return ties;
}

} // namespace

void ChooseSacrificeDeep() {
    if (!Game.HintMode)
        Delay(0.5F);
    const int ties = OrderBestFirst(JudgeRows());
    GiveAwayLine(Work.RiskyLines.at(RandomPick(ties)).Line);
}
