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

namespace {

void Swap(Integer& first, Integer& second) {
    const Integer kept = first;
    first = second;
    second = kept;
}

// Margins are sums in different orders of the same few numbers.
bool IsAsGood(double margin, double best) {
    return margin > best - 1e-6;
}

// The lines of the rows in their order. Other procedures use the table while the search yields.
std::vector<Integer> LinesOfRows() {
    std::vector<Integer> lines;
    for (const RiskyLine& row : Work.RiskyLines)
        lines.push_back(row.Line);
    return lines;
}

std::vector<double> JudgeLines(const std::vector<Integer>& lines) {
    const int mover = Game.CurrentPlayer;
    const BoardRuns board = FindBoardRuns();
    std::vector<int> candidates;
    for (const Integer line : lines)
        candidates.push_back(board.RunOfLine.at(line));
    GiveawaySearch search(Game.PlayerKind.at(mover), Game.PlayerKind.at(OtherPlayer(mover)));
    return search.Judge(board.Runs, candidates);
}

// Puts the best lines first and returns how many are equally good.
int OrderBestFirst(std::vector<Integer>& lines, const std::vector<double>& margins) {
    const double best = *std::max_element(margins.begin(), margins.end());
    int ties = 0;
    for (std::size_t row = 0; row < lines.size(); ++row)
        if (IsAsGood(margins.at(row), best))
            Swap(lines.at(ties++), lines.at(row));
    return ties;
}

} // namespace

void ChooseSacrificeDeep() {
    if (!Game.HintMode)
        Delay(0.5F);
    std::vector<Integer> lines = LinesOfRows();
    const std::vector<double> margins = JudgeLines(lines);
    const int ties = OrderBestFirst(lines, margins);
    GiveAwayLine(lines.at(RandomPick(ties) - 1));
}
