// How the pointer on the field becomes a line.
#include "core/play/pointer_input.h"

#include "support/game_test.h"
#include "support/person.h"
#include "ui/commands.h"

namespace {

class Pointer : public GameTest {
protected:
    void SetUp() override {
        GameTest::SetUp();
        Game.TwipsPerPixelX = 12; // pixels that are not square
        Game.PointSpacingX = 300;
        SetUpGame(3, 2, Humanoid, ComputerAverage);
        Game.MouseDownSeen = false;
    }

    // Moves to a place in pixels from the first point.
    static void MoveTo(double x, double y) {
        PointTo({static_cast<float>(Game.FieldLeft + 12 * x),
                 static_cast<float>(Game.FieldTop + 15 * y)});
    }

    // L, U, R and D for the arrows, T turns.
    static void PressKeys(const std::string& keys) {
        for (const char key : keys)
            picPlayingField_KeyDown(static_cast<FieldKey>(std::string("LURDT").find(key)));
    }

    static Drawing Last() { return TheNullDesktop.Drawings.back(); }
};

TEST_F(Pointer, PreviewsTheLineWithinFourPixelsSevenFromItsFirstPointAndSixFromItsSecond) {
    struct Place {
        double X, Y;
        int Line;
    };
    // Halves of a pixel go to the even one; three pixels outside the field still count; points and
    // the middle of a box have no line.
    const Place cases[] = {{6, 0, 0},      {7, 0, 1},    {19, 0, 1},    {20, 0, 0},   {12, 4, 1},
                           {12, 5, 0},     {12, 20, 0},  {12, 21, 4},   {37, 25, 5},  {37, 29, 5},
                           {57, 47, 9},    {0, 6, 0},    {0, 7, 10},    {0, 19, 10},  {0, 20, 0},
                           {4, 12, 10},    {5, 12, 0},   {20, 12, 0},   {21, 12, 12}, {50, 37, 15},
                           {54, 44, 15},   {6.5, 0, 0},  {6.6, 0, 1},   {12, 4.5, 1}, {12, 4.6, 0},
                           {24.9, 12, 12}, {12, -3, 1},  {12, -3.9, 1}, {12, -4, 0},  {12, 53, 7},
                           {12, 54, 0},    {-3, 12, 10}, {-4, 12, 0},   {78, 12, 16}, {78, 37, 17},
                           {79, 12, 0},    {0, 0, 0},    {25, 25, 0},   {75, 50, 0},  {12, 12, 0}};
    for (const auto& c : cases) {
        MoveTo(c.X, c.Y);
        EXPECT_EQ(Game.GhostLine, c.Line) << c.X << ", " << c.Y;
    }
    for (int line = 1; line <= Game.LineCount; ++line) {
        PointAt(line);
        EXPECT_EQ(Game.GhostLine, line);
    }
}

TEST_F(Pointer, ShowsAHintUntilItMovesAndTakesOnePressOnly) {
    DrawForNobody({5, 8, 13});
    for (const Integer opponent : {ComputerAverage, ComputerCheat}) {
        Game.PlayerKind.at(2) = opponent;
        PointAt(1);
        mnuHint_Click();
        const auto& drawings = TheNullDesktop.Drawings;
        EXPECT_EQ(drawings.at(drawings.size() - 2).What, Drawing::Kind::Erasure) << "of line 1";
        EXPECT_EQ(Last().DrawnColor, LightRed);
        EXPECT_TRUE(Game.ChosenLine == 0 && !Game.HintMode);
        picPlayingField_MouseMove(Game.PointerX, Game.PointerY);
        EXPECT_EQ(Game.GhostLine, 15) << "the box that can be taken; the pointer did not move";
    }
    Game.HintMode = true; // while the next is chosen
    PointAt(2);
    EXPECT_TRUE(std::exchange(Game.HintMode, false) && Game.GhostLine == 15);
    MoveTo(12, 12);
    PressHere();
    EXPECT_EQ(Game.GhostLine + Game.ChosenLine, 0) << "nothing is previewed";
    mnuHint_Click();
    PressHere();
    EXPECT_NE(Last().What, Drawing::Kind::Erasure) << "the drawn line will cover it";
    PressLine(1);
    Game.MouseDownSeen = false;
    mnuHint_Click();
    EXPECT_TRUE(Game.ChosenLine == 15 && Game.GhostLine == 0) << "one press, one line";
}

// Over dialogs and menus nobody hears how it moves.
TEST_F(Pointer, MovesFirstWhereItPressesAtAnotherPlaceThanItWasHeardAt) {
    const PointerPlace overMenu{-500, -300};
    const PointerPlace line6{static_cast<float>(Game.FieldLeft + 750),
                             static_cast<float>(Game.FieldTop + 380)};
    const struct {
        void (*Show)();
        PointerPlace Press;
        int Chosen;
    } cases[] = {{[] { PointAt(1); }, overMenu, 0},      {[] { PointAt(1); }, line6, 6},
                 {mnuHint_Click, {-499, -300}, 0},       {mnuHint_Click, overMenu, 15},
                 {[] { PressKeys("T"); }, overMenu, 10}, {[] { PressKeys("T"); }, line6, 6}};
    DrawForNobody({5, 8, 13});
    for (const GameState before = Game; const auto& c : cases) {
        Game = before;
        PointAt(1);
        TheNullDesktop.Pointer = overMenu;
        c.Show();
        TheNullDesktop.Pointer = c.Press;
        PressHere();
        EXPECT_EQ(Game.ChosenLine, c.Chosen) << &c - cases;
    }
}

TEST_F(Pointer, IsNotNeededWhereThereAreKeys) {
    const struct {
        std::vector<int> Drawn;
        const char* Keys;
        std::vector<int> Lines; // previewed, key by key
    } cases[] = {
        {{}, "RRRLLLUU", {5, 6, 6, 5, 4, 4, 1, 1}}, // begins in the middle
        {{}, "TTTDDTTR", {5, 13, 5, 8, 8, 13, 5, 6}},
        {{2, 5}, "LULRD", {4, 1, 1, 3, 6}},          // straight on over what is drawn
        {{6, 14}, "RRTLLD", {5, 3, 16, 12, 10, 11}}, // else to the nearest
        {{2, 3, 4, 5}, "RUD", {6, 1, 6}},            // past no row that no column shares
        {{10, 11, 12, 13, 14, 15, 16, 17, 5}, "TT", {2, 2}},
        {{1, 2, 3, 4, 5, 6, 7, 8, 9, 12}, "TT", {13, 13}},
    };
    for (const GameState empty = Game; const auto& c : cases) {
        Game = empty;
        DrawForNobody(c.Drawn);
        std::vector<int> lines;
        for (const char* key = c.Keys; *key != 0; ++key) {
            PressKeys({*key});
            lines.push_back(Game.GhostLine);
        }
        EXPECT_EQ(lines, c.Lines) << c.Keys;
    }
}

} // namespace
