// Which line a computer chooses.
#include "ai/move_selection.h"

#include <map>

#include "support/game_test.h"

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

} // namespace
