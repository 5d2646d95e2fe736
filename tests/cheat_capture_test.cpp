// What the cheating computer takes and what it leaves to its opponent.
#include "ai/cheat_capture.h"

#include "ai/move_selection.h"
#include "support/game_test.h"
#include "support/person.h"

namespace {

// Player 1, of kind `first`, opened a chain with the last line; the Cheat, player 2, is to move.
void SetUpForTheCheat(int columns, int rows, const std::vector<int>& drawn) {
    SetUpGame(columns, rows, ComputerAverage, ComputerCheat);
    DrawForNobody(drawn);
    Game.CurrentPlayer = 2;
}

// The lines drawn from now on, in order.
std::vector<int> LinesDrawnBy(void (*procedure)()) {
    std::vector<int> lines;
    int count = Game.LinesDrawn;
    TheNullDesktop.WhenYielding = [&] {
        if (Game.LinesDrawn != count)
            lines.push_back(Game.LastLine);
        count = Game.LinesDrawn;
    };
    procedure();
    TheNullDesktop.WhenYielding = nullptr;
    return lines;
}

std::vector<int> operator+(std::vector<int> lines, const std::vector<int>& more) {
    lines.insert(lines.end(), more.begin(), more.end());
    return lines;
}

class CheatCapture : public GameTest {};

TEST_F(CheatCapture, TakesOrDeclinesAsWorkedOutByHand) {
    const std::vector<int> row{1, 2, 3, 4, 5, 6, 7, 8, 9, 10}; // walls in five boxes side by side
    // A ring of eight boxes round a complete one, at the left of 4 by 3 boxes.
    const std::vector<int> ring{1, 2, 3, 13, 14, 15, 17, 18, 19, 26, 27, 28, 6, 10, 21, 24, 20};
    const std::vector<int> rest{4, 8, 12, 16, 29, 30, 31}; // all else of that board
    // A ring whose short walk takes boxes only once the long one has passed their junction.
    const std::vector<int> junction{1, 2, 3, 4, 6, 8, 9, 10, 11, 13, 14, 19, 21, 22, 16};
    const std::vector<int> two{1, 2, 3, 4, 5, 6, 13, 7, 8, 9, 10, 11, 12, 15}; // open chains
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
        {"a chain that was open before", 3, 3, {1, 2, 3, 4, 5, 6, 13, 12}, {16, 19, 22}, 22},
        {"first the older chain, then the new one", 3, 3, two, {16, 19, 22, 18}, 24},
    };
    for (const auto& c : cases) {
        SetUpForTheCheat(c.Columns, c.Rows, c.Drawn);
        Game.ChosenLine = 0;
        EXPECT_EQ(LinesDrawnBy(CheatTakeBoxes), c.Taken) << c.Story;
        EXPECT_EQ(Game.ChosenLine, c.Chosen) << c.Story;
        EXPECT_TRUE(BoardIsSound()) << c.Story;
    }
}

TEST_F(CheatCapture, GoesOnWithAnotherLineWhenItsRunTookEverything) {
    SetUpForTheCheat(3, 3, {1, 2, 3, 4, 5, 6, 13, 12});
    EXPECT_EQ(LinesDrawnBy(ChooseComputerMove), (std::vector{16, 19, 22}));
    EXPECT_EQ(Game.Lines.at(Game.ChosenLine).Drawn, 0);
}

} // namespace
