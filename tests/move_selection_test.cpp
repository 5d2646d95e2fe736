// Which line a computer chooses, where the signature of whole games does not reach: for a hint.
#include "ai/move_selection.h"

#include <map>

#include "support/game_test.h"

namespace {

class MoveSelection : public GameTest {};

TEST_F(MoveSelection, ForAHintIsAnyOfTheFewestBoxesWithoutAPauseOrALine) {
    // One box at either end of the row and three between them.
    SetUpGame(5, 1, Humanoid, ComputerCheat);
    DrawForNobody({1, 2, 3, 4, 5, 8, 12, 15});
    Game.HintMode = true;
    std::map<int, int> counts;
    for (int times = 0; times < 400; ++times) {
        ChooseComputerMove();
        ++counts[Game.ChosenLine];
    }
    Game.HintMode = false;
    EXPECT_EQ(counts.size(), 4U);
    for (const int line : {6, 10, 11, 16})
        EXPECT_NEAR(counts[line], 100, 35) << line;
    EXPECT_TRUE(TheNullDesktop.SecondsWaited == 0 && Game.LinesDrawn == 8);
}

} // namespace
