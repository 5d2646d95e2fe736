// What the cheating computer takes and what it leaves to its opponent.
#include <utility>

#include "ai/move_selection.h"
#include "support/game_test.h"

namespace {

std::vector<int> operator+(std::vector<int> lines, const std::vector<int>& more) {
    lines.insert(lines.end(), more.begin(), more.end());
    return lines;
}

class CheatCapture : public GameTest {};

TEST_F(CheatCapture, TakesOrDeclinesAsWorkedOutByHand) {
    constexpr int Any = -1;                                    // undrawn line
    const std::vector<int> row{1, 2, 3, 4, 5, 6, 7, 8, 9, 10}; // walls in five boxes side by side
    // A ring of eight boxes round a complete one, at the left of 4 by 3 boxes.
    const std::vector<int> ring{1, 2, 3, 13, 14, 15, 17, 18, 19, 26, 27, 28, 6, 10, 21, 24, 20};
    const std::vector<int> rest{4, 8, 12, 16, 29, 30, 31}; // all else of that board
    // A ring whose short walk takes boxes only once the long one has passed their junction.
    const std::vector<int> junction{1, 2, 3, 4, 6, 8, 9, 10, 11, 13, 14, 19, 21, 22, 16};
    const std::vector<int> two{7, 8, 9, 10, 11, 12, 24, 1, 2, 3, 4, 5, 6, 13}; // open chains
    const struct {
        const char* Story;
        int Columns, Rows;
        std::vector<int> Drawn; // the last of them was drawn last
        std::vector<int> Taken;
        int Chosen;
    } cases[] = {
        {"a box from the border", 1, 1, {3, 2, 1}, {}, 4},
        {"a box to the border", 1, 1, {3, 1, 2}, {}, 4},
        {"a box on either side", 2, 1, {1, 2, 3, 4, 6}, {5}, 7},
        {"the last two boxes are left all the same", 2, 1, {1, 2, 3, 4, 5}, {}, 7},
        {"five boxes that end the game", 5, 1, row + std::vector{11}, {12, 13, 14, 15}, 16},
        {"five boxes of a longer game", 5, 2, row + std::vector{16}, {18, 20, 22}, 26},
        {"the short walk right, the long one left", 5, 2, row + std::vector{24}, {26, 22, 20}, 16},
        {"the short walk left, the long one right", 5, 2, row + std::vector{18}, {16, 20, 22}, 26},
        {"as many each way, the left first", 4, 2, {1, 2, 3, 4, 5, 6, 7, 8, 17}, {15, 13}, 21},
        {"a loop of a longer game", 4, 3, ring, {5, 9, 22, 25}, 7},
        {"a loop that ends the game", 4, 3, rest + ring, {5, 9, 22, 25, 11, 7}, 23},
        {"a short walk through a junction", 4, 2, junction, {5, 15, 17, 7, 18, 20}, 12},
        {"a chain that was open before", 3, 3, {1, 2, 3, 4, 5, 6, 13, 12}, {16, 19, 22}, Any},
        {"first the older chain, then the new one", 3, 3, two, {21, 18, 15, 16}, 22},
    };
    for (const auto& c : cases) {
        SetUpGame(c.Columns, c.Rows, ComputerAverage, ComputerCheat);
        DrawForNobody(c.Drawn);
        Game.CurrentPlayer = 2;
        std::vector<int> taken;
        TheNullDesktop.WhenYielding = [&, count = Game.LinesDrawn]() mutable {
            if (std::exchange(count, Game.LinesDrawn) < Game.LinesDrawn)
                taken.push_back(Game.LastLine);
        };
        ChooseComputerMove();
        EXPECT_EQ(taken, c.Taken) << c.Story;
        EXPECT_TRUE(Game.ChosenLine == c.Chosen || c.Chosen == Any) << c.Story;
        EXPECT_EQ(Game.Lines.at(Game.ChosenLine).Drawn, 0) << c.Story;
        EXPECT_TRUE(BoardIsSound()) << c.Story;
    }
}

} // namespace
