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

// The margin that each row of the table leads to.
std::vector<int> JudgeRows() {
    const int mover = Game.CurrentPlayer;
    const BoardRuns board = FindBoardRuns();
    std::vector<int> candidates;
    for (const RiskyLine& row : Work.RiskyLines)
        candidates.push_back(board.RunOfLine.at(row.Line));
    GiveawaySearch search(Game.PlayerKind.at(mover), Game.PlayerKind.at(OtherPlayer(mover)));
    std::vector<int> margins = search.Judge(board.Runs, candidates);
    YieldToEvents(0); // to forget all that was found out takes some time, too
    return margins;
}

} // namespace

void ChooseSacrificeDeep() {
    if (!Game.HintMode)
        Delay(0.5F);
    const std::vector<int> margins = JudgeRows();
    const int best = *std::ranges::max_element(margins);
    std::vector<Integer> lines; // those of the best rows
    for (int row = 1; row <= Work.RiskyLines.Count(); ++row)
        if (margins.at(row - 1) >= best - GiveawaySearch::SameAs)
            lines.push_back(Work.RiskyLines.at(row).Line);
    GiveAwayLine(lines.at(RandomPick(static_cast<int>(lines.size())) - 1));
}
