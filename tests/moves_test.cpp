// What one drawn line changes, and which lines a person may draw.
#include "core/rules/moves.h"

#include "support/game_test.h"

namespace {

class Moves : public GameTest {};

TEST_F(Moves, ThatGiveABoxAwayBesideATakeableOneAreRefusedAgainstTwoKindsOnly) {
    // On 3 by 1 boxes lines 1 to 3 lie on top, 4 to 6 below, and 7 to 10 stand from the left.
    const struct {
        const char* Story;
        std::vector<int> Drawn;
        int Line;
        bool IsLegal;
    } cases[] = {
        {"on the border", {1, 4, 7, 2, 9}, 5, false},
        {"given is the second box", {3, 6, 10, 2, 5}, 8, false},
        {"only the first of two given boxes counts", {3, 6, 10, 2, 5, 1, 7}, 8, true},
        {"takes the box", {1, 4, 7, 2, 5}, 8, true},
        {"no box behind can be taken", {1, 4, 2, 5}, 9, true},
        {"the border is behind", {1, 7}, 8, true},
    };
    TheNullDesktop.Answers.assign(100, MessageAnswer::Ok);
    for (const int mover : {1, 2})
        for (Integer opponent = Humanoid; opponent <= ComputerCheat; ++opponent)
            for (const auto& c : cases) {
                SetUpGame(3, 1, Humanoid, Humanoid);
                DrawForNobody(c.Drawn);
                Game.CurrentPlayer = ToInteger(mover);
                Game.PlayerKind.at(OtherPlayer(mover)) = opponent;
                Game.ChosenLine = ToInteger(c.Line);
                const bool isFree = opponent == Humanoid || opponent == ComputerCheat;
                EXPECT_EQ(IsLegalMove(), isFree || c.IsLegal)
                    << c.Story << " against " << opponent << " by " << mover;
            }
}

TEST_F(Moves, OfAPersonThatAreRefusedChangeNothingButThePreview) {
    SetUpGame(3, 1, Humanoid, ComputerAverage);
    DrawForNobody({1, 4, 7, 2, 5});
    Game.ChosenLine = 9;
    const GameState before = Game;
    TheNullDesktop.Answers = {MessageAnswer::Ok};
    ApplyMove();
    EXPECT_TRUE(Game == before);
    EXPECT_EQ(TheNullDesktop.Boxes.at(0).Text,
              "Not a legal move, only legal when opponent is Humanoid or Computer Cheat.");
    const int x = Game.FieldLeft + 2 * 375;
    EXPECT_EQ(TheNullDesktop.Drawings.back(),
              (Drawing{Drawing::Kind::Erasure, x, Game.FieldTop + 15, x, Game.FieldTop + 360, 0}));
}

} // namespace
