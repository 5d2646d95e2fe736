// What the stronger computers give away, against a player who plays everything out.
#include "ai/deep_sacrifice.h"

#include <algorithm>
#include <numeric>
#include <set>

#include "ai/board_runs.h"
#include "ai/giveaway_search.h"
#include "ai/move_selection.h"
#include "base/random.h"
#include "display/safe_lines.h"
#include "support/brute_force.h"
#include "support/game_test.h"

namespace {

struct Pair {
    Integer Mover, Opponent;
};
constexpr Pair AllPairs[] = {{2, 0}, {2, 1}, {2, 2}, {2, 3}, {3, 0}, {3, 1}, {3, 2}, {3, 3}};

class DeepChoice : public GameTest {
protected:
    // The margin of every row is right, and the row chosen is one of the best.
    static void ExpectBestChoice(BruteForce& oracle, int columns, int rows, LineSet drawn) {
        for (const Pair kinds : AllPairs) {
            const auto story = ::testing::Message() << "board " << drawn << " for kinds "
                                                    << kinds.Mover << " and " << kinds.Opponent;
            SetUpGame(columns, rows, kinds.Mover, kinds.Opponent);
            for (int line = 1; line <= Game.LineCount; ++line)
                if ((drawn >> (line - 1) & 1U) != 0)
                    DrawForNobody({line});
            std::vector<OracleRow> expected = oracle.Rows(drawn, kinds.Mover, kinds.Opponent);
            std::sort(expected.begin(), expected.end(),
                      [](const OracleRow& a, const OracleRow& b) { return a.Margin < b.Margin; });
            const std::vector<double> margins = SortedMargins(kinds);
            ASSERT_EQ(margins.size(), expected.size()) << story;
            for (std::size_t row = 0; row < margins.size(); ++row)
                ASSERT_NEAR(margins.at(row), expected.at(row).Margin, 1e-3) << story;

            ChooseComputerMove();
            const LineSet chosen = LineSet{1} << (Game.ChosenLine - 1);
            EXPECT_TRUE(std::any_of(expected.begin(), expected.end(), [&](const OracleRow& row) {
                return row.Margin > margins.back() - 1e-3 && (row.Lines & chosen) != 0;
            })) << story;
        }
    }

    static std::vector<double> SortedMargins(Pair kinds, long steps = GiveawaySearch::UsualSteps) {
        const BoardRuns board = FindBoardRuns();
        std::vector<int> all(board.Runs.size());
        std::iota(all.begin(), all.end(), 0);
        std::vector<double> margins =
            GiveawaySearch(kinds.Mover, kinds.Opponent, steps).Judge(board.Runs, all);
        std::sort(margins.begin(), margins.end());
        return margins;
    }
};

TEST_F(DeepChoice, IsBestInEveryPositionOfTheSmallestBoards) {
    for (const int columns : {2, 3}) {
        BruteForce oracle(columns, 2);
        for (LineSet drawn = 0; drawn < LineSet{1} << oracle.LineCount(); ++drawn)
            if (oracle.IsOpeningOver(drawn))
                ExpectBestChoice(oracle, columns, 2, drawn);
    }
}

TEST_F(DeepChoice, IsBestInManyPositionsOfLargerBoards) {
    for (const int columns : {3, 4}) {
        const int samples = columns == 3 ? 1000 : 300;
        for (int sample = 0; sample < samples; ++sample) {
            BruteForce oracle(columns, 3);
            LineSet drawn = 0;
            while (!oracle.IsOpeningOver(drawn))
                if (const int line = RandomPick(oracle.LineCount()) - 1; oracle.IsSafe(drawn, line))
                    drawn |= LineSet{1} << line;
            ExpectBestChoice(oracle, columns, 3, drawn);
        }
    }
}

TEST_F(DeepChoice, IsThatOfTheLastRoundBegunWhenTheStepsEnd) {
    SeedRandom(10);
    SetUpGame(10, 9, ComputerCheat, ComputerIntelligent);
    DrawSafeLines();
    EXPECT_EQ(SortedMargins({3, 2}, 0).back(), -1) << "a single box costs least at once";
    std::vector<double> round = SortedMargins({3, 2});
    std::set<std::vector<double>> rounds;
    bool wasCutShort = false;
    for (long steps = 20'000; steps > 1'000; steps -= 100) {
        const std::vector<double> margins = SortedMargins({3, 2}, steps);
        const auto judged = std::ranges::upper_bound(margins, GiveawaySearch::Unjudged);
        if (judged == margins.begin())
            rounds.insert(round = margins);
        wasCutShort |= judged != margins.begin();
        ASSERT_NE(judged, margins.end()) << steps;
        ASSERT_TRUE(std::includes(round.begin(), round.end(), judged, margins.end())) << steps;
    }
    EXPECT_TRUE(wasCutShort && rounds.size() >= 4 && rounds.size() <= round.size() / 2)
        << rounds.size();
}

TEST_F(DeepChoice, StopsAtOnceWhenTheGameIsGivenUp) {
    TheNullDesktop.PictureWidth = TheNullDesktop.PictureHeight = 32767;
    SetUpGame(86, 86, ComputerIntelligent, ComputerCheat);
    DrawSafeLines();
    TheNullDesktop.WhenYielding = [] { Game.QuitRequested = TheNullDesktop.Yields > 2; };
    ChooseComputerMove(); // at the first yield of the search nothing is judged yet
    EXPECT_TRUE(Game.QuitRequested && TheNullDesktop.Yields < 5);
    EXPECT_EQ(Game.Lines.at(Game.ChosenLine).Drawn, 0);
}

} // namespace
