// Which line a computer chooses.
#include "ai/move_selection.h"

#include <map>
#include <utility>

#include "base/random.h"
#include "display/safe_lines.h"
#include "support/game_test.h"
#include "support/person.h"

namespace {

constexpr Integer AllKinds[] = {Humanoid, ComputerAverage, ComputerIntelligent, ComputerCheat};

class MoveSelection : public GameTest {
protected:
    // How often each line is chosen of so many times.
    static std::map<int, int> Count(int times) {
        std::map<int, int> counts;
        for (; times > 0; --times) {
            Game.ChosenLine = 0;
            ChooseComputerMove();
            ++counts[Game.ChosenLine];
        }
        return counts;
    }
};

TEST_F(MoveSelection, TakesAWholeChainButForItsLastLineElseAnySafeLineAlike) {
    SetUpGame(3, 1, ComputerAverage, Humanoid);
    DrawForNobody({1, 2, 3, 4, 5, 6, 7});
    ChooseComputerMove();
    EXPECT_TRUE(Game.LinesDrawn == 9 && Game.ChosenLine == 10);
    // A border line is risky beside two sides and safe beside one.
    SetUpGame(2, 1, ComputerAverage, Humanoid);
    DrawForNobody({1, 3, 2});
    const auto counts = Count(200);
    EXPECT_EQ(counts.size(), 2U);
    EXPECT_NEAR(counts.at(4), 100, 30);
    EXPECT_NEAR(counts.at(7), 100, 30);
}

TEST_F(MoveSelection, GivesAwayTheFewestBoxesAndTwoByTheLineBetweenThemIfStrong) {
    const struct {
        int Columns, Rows;
        std::vector<int> Drawn, Lines, LinesOfStrong; // chosen with equal chance
    } cases[] = {
        {2, 1, {1, 2, 3, 4}, {5, 6, 7}, {6}},
        {1, 2, {4, 5, 6, 7}, {1, 2, 3}, {2}},
        // One box at either end and three between them: all the same to the strong.
        {5, 1, {1, 2, 3, 4, 5, 8, 12, 15}, {6, 10, 11, 16}, {}},
    };
    for (const auto& c : cases) {
        for (const Integer kind : AllKinds) {
            SetUpGame(c.Columns, c.Rows, kind, Humanoid);
            DrawForNobody(c.Drawn);
            ResetNullDesktop();
            const bool isStrong = kind >= ComputerIntelligent;
            const std::vector<int>& lines = isStrong ? c.LinesOfStrong : c.Lines;
            if (lines.empty())
                continue;
            Game.HintMode = kind == Humanoid;
            const auto counts = Count(400);
            Game.HintMode = false;
            ASSERT_EQ(counts.size(), lines.size());
            for (const int line : lines)
                EXPECT_NEAR(counts.at(line), 400.0 / static_cast<double>(lines.size()), 50) << line;
            const double pause = kind == Humanoid ? 0 : isStrong ? 0.75 : 0.25;
            EXPECT_NEAR(TheNullDesktop.SecondsWaited, 400 * pause, 400 * 0.02);
        }
    }
}

TEST_F(MoveSelection, EndsEveryTurnOnAnyBoardWithAnUndrawnLine) {
    for (const auto& [columns, rows] :
         {std::pair{3, 2}, {2, 5}, {4, 2}, {1, 6}, {5, 1}, {1, 1}, {2, 2}, {7, 4}, {4, 4}})
        for (std::uint32_t seed = 1; seed <= 1000; ++seed) {
            SCOPED_TRACE(::testing::Message() << columns << " by " << rows << ", seed " << seed);
            const auto kind = ToInteger(static_cast<int>(seed % 4));
            SetUpGame(columns, rows, kind, ComputerAverage);
            SeedRandom(seed / 4);
            if (seed % 16 > 3)
                DrawSafeLines();
            for (const int line : UndrawnLines())
                if (RandomPick(12) <= static_cast<int>(seed % 16))
                    DrawForNobody({line});
            if (seed % 10 == 0)
                Game.LastLine = 0; // as after a load
            const GameState before = Game;
            Game.HintMode = seed % 3 == 0 || kind == Humanoid;
            ASSERT_NO_THROW(ChooseComputerMove());
            ASSERT_EQ(Game.ChosenLine == 0, Game.BoxesClaimed == Game.BoxCount);
            ASSERT_TRUE(Game.Lines.at(Game.ChosenLine).Drawn == 0 && Game.CurrentPlayer == 1);
            ASSERT_TRUE(BoardIsSound());
            Game.ChosenLine = before.ChosenLine;
            ASSERT_TRUE(!std::exchange(Game.HintMode, false) || Game == before);
        }
}

} // namespace
