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
            const std::vector<int> margins = SortedMargins(kinds);
            ASSERT_EQ(margins.size(), expected.size()) << story;
            for (std::size_t row = 0; row < margins.size(); ++row)
                ASSERT_NEAR(margins.at(row), GiveawaySearch::Box * expected.at(row).Margin,
                            GiveawaySearch::SameAs)
                    << story;

            ChooseComputerMove();
            const LineSet chosen = LineSet{1} << (Game.ChosenLine - 1);
            EXPECT_TRUE(std::any_of(expected.begin(), expected.end(), [&](const OracleRow& row) {
                return row.Margin > expected.back().Margin - 1e-3 && (row.Lines & chosen) != 0;
            })) << story;
        }
    }

    // Of each row as if there were no other: else only those of the best need be right.
    static std::vector<int> SortedMargins(Pair kinds) {
        const BoardRuns board = FindBoardRuns();
        std::vector<int> margins;
        for (int run = 0; run < static_cast<int>(board.Runs.size()); ++run)
            margins.push_back(
                GiveawaySearch(kinds.Mover, kinds.Opponent).Judge(board.Runs, {run}).front());
        std::sort(margins.begin(), margins.end());
        return margins;
    }

    static std::vector<int> Judge(Pair kinds, long steps = GiveawaySearch::UsualSteps) {
        const BoardRuns board = FindBoardRuns();
        std::vector<int> all(board.Runs.size());
        std::iota(all.begin(), all.end(), 0);
        return GiveawaySearch(kinds.Mover, kinds.Opponent, steps).Judge(board.Runs, all);
    }

    // The margins of the rows that are judged, sorted.
    static std::vector<int> Judged(Pair kinds, long steps = GiveawaySearch::UsualSteps) {
        std::vector<int> margins = Judge(kinds, steps);
        std::erase(margins, GiveawaySearch::Unjudged);
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
    EXPECT_EQ(Judged({3, 2}, 0).back(), -GiveawaySearch::Box) << "a single box costs least at once";
    std::vector<int> round = Judged({3, 2});
    EXPECT_EQ(std::ranges::count(Judged({3, 2}, 9'999), round.back()), 3) << "one was worse before";
    std::multiset<std::size_t> sizes; // of whole rounds
    bool wasCutShort = false;
    for (long steps = 10'000; steps > 1'000; steps -= steps / 60) {
        const std::vector<int> margins = Judged({3, 2}, steps);
        ASSERT_FALSE(margins.empty()) << steps;
        wasCutShort |= margins.size() < round.size();
        if (std::ranges::includes(round, margins,
                                  [](int a, int b) { return a < b - GiveawaySearch::Box / 500; }))
            continue;
        sizes.insert(margins.size());
        round = margins;
    }
    EXPECT_TRUE(wasCutShort && sizes.size() > 2 && sizes.count(round.size()) == sizes.size());
}

TEST_F(DeepChoice, IsFoundInFewStepsAmongWhatCostsLeast) {
    SeedRandom(111);
    SetUpGame(8, 6, ComputerIntelligent, ComputerCheat);
    DrawSafeLines();
    const std::vector<int> exact = Judge({2, 3});
    for (const long steps : {500, 1000, 2000}) {
        const std::vector<int> judged = Judge({2, 3}, steps);
        const auto chosen = std::ranges::max_element(judged) - judged.begin();
        EXPECT_EQ(exact.at(chosen), *std::ranges::max_element(exact)) << steps;
    }
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
