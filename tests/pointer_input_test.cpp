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
        picPlayingField_MouseMove(static_cast<float>(Game.FieldLeft + 12 * x),
                                  static_cast<float>(Game.FieldTop + 15 * y));
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

TEST_F(Pointer, LeavesNoGhostBehindAndNeverTouchesADrawnLine) {
    DrawForNobody({1});
    Game.ComputerGhostLine = 1;
    Game.CurrentPlayer = 2; // even during the computer's turn
    MoveTo(12, 12);
    EXPECT_EQ(Last(), (Drawing{Drawing::Kind::Line, Game.FieldLeft, Game.FieldTop,
                               Game.FieldLeft + 300, Game.FieldTop, BrightWhite}))
        << "the computer's line is highlighted no more";
    EXPECT_EQ(Game.ComputerGhostLine, 0);
    Game.CurrentPlayer = 1;
    MoveTo(37, 25);
    EXPECT_EQ(Last(), (Drawing{Drawing::Kind::Line, Game.FieldLeft + 312, Game.FieldTop + 375,
                               Game.FieldLeft + 588, Game.FieldTop + 375, LightRed}));
    MoveTo(12, 12);
    EXPECT_EQ(Last(), (Drawing{Drawing::Kind::Erasure, Game.FieldLeft + 312, Game.FieldTop + 375,
                               Game.FieldLeft + 588, Game.FieldTop + 375, Black}));
    const std::size_t drawings = TheNullDesktop.Drawings.size();
    PointAt(1);
    EXPECT_EQ(Game.GhostLine, 0);
    EXPECT_EQ(TheNullDesktop.Drawings.size(), drawings);
}

TEST_F(Pointer, ShowsAndTakesNothingUnlessAPersonIsAwaited) {
    void (*const hindrances[])() = {
        [] { Game.GameInPlay = false; },   [] { Game.GamePaused = true; },
        [] { Game.QuitRequested = true; }, [] { Game.MouseDownSeen = true; },
        [] { Game.CurrentPlayer = 2; },    [] { Game.CurrentPlayer = 0; },
        [] { Game.HintMode = true; },
    };
    const GameState awaited = Game;
    for (const auto hinder : hindrances) {
        Game = awaited;
        hinder();
        const std::size_t drawings = TheNullDesktop.Drawings.size();
        PressLine(5);
        mnuHint_Click();
        EXPECT_EQ(Game.GhostLine + Game.ChosenLine, 0);
        EXPECT_EQ(TheNullDesktop.Drawings.size(), drawings);
        if (Game.HintMode)
            continue;
        Game.GhostLine = 5; // shown before
        picPlayingField_MouseDown();
        EXPECT_EQ(Game.ChosenLine, 0);
        MoveTo(12, 12);
        EXPECT_EQ(Game.GhostLine, 0) << "but an old preview goes";
        EXPECT_EQ(Last().What, Drawing::Kind::Erasure);
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
    MoveTo(12, 12);
    picPlayingField_MouseDown();
    EXPECT_EQ(Game.GhostLine + Game.ChosenLine, 0) << "nothing is previewed";
    mnuHint_Click();
    picPlayingField_MouseDown();
    EXPECT_NE(Last().What, Drawing::Kind::Erasure) << "the drawn line will cover it";
    PressLine(1);
    Game.MouseDownSeen = false;
    mnuHint_Click();
    EXPECT_TRUE(Game.ChosenLine == 15 && Game.GhostLine == 0) << "one press, one line";
}

} // namespace
