// Where the points, lines and boxes of a field lie, and what is drawn of them.
#include "display/field.h"

#include <algorithm>

#include "core/play/game_setup.h"
#include "display/safe_lines.h"
#include "support/game_test.h"
#include "support/person.h"
#include "ui/commands.h"

namespace {

class Field : public GameTest {
protected:
    // A screen whose pixels are not square, so that across and down cannot be mixed up.
    void SetUp() override {
        GameTest::SetUp();
        Game.TwipsPerPixelX = 12;
        Game.PointSpacingX = 300;
    }
};

bool IsDrawn(const Drawing& wanted) {
    const auto& all = TheNullDesktop.Drawings;
    return std::find(all.begin(), all.end(), wanted) != all.end();
}

TEST_F(Field, OfThreeByTwoBoxesIsNumberedAsCountedByHand) {
    SetUpGame(3, 2, Humanoid, Humanoid);
    const struct {
        int Column, Row;
        Integer FirstBox, SecondBox;
    } lines[] = {
        {0, 0, 0, 1}, {1, 0, 0, 2}, {2, 0, 0, 3}, {0, 1, 1, 4}, {1, 1, 2, 5}, {2, 1, 3, 6},
        {0, 2, 4, 0}, {1, 2, 5, 0}, {2, 2, 6, 0}, {0, 0, 0, 1}, {0, 1, 0, 4}, {1, 0, 1, 2},
        {1, 1, 4, 5}, {2, 0, 2, 3}, {2, 1, 5, 6}, {3, 0, 3, 0}, {3, 1, 6, 0},
    };
    ASSERT_EQ(Game.LineCount, 17);
    for (int number = 1; number <= 17; ++number) {
        const auto& line = lines[number - 1];
        const Line expected{0, ToInteger(Game.FieldLeft + line.Column * 300),
                            ToInteger(Game.FieldTop + line.Row * 375), line.FirstBox,
                            line.SecondBox};
        EXPECT_EQ(Game.Lines.at(number), expected) << "line " << number;
    }
    const std::array<Integer, 4> sides[] = {{1, 4, 10, 12}, {2, 5, 12, 14}, {3, 6, 14, 16},
                                            {4, 7, 11, 13}, {5, 8, 13, 15}, {6, 9, 15, 17}};
    ASSERT_EQ(Game.BoxCount, 6);
    for (int box = 1; box <= 6; ++box)
        EXPECT_EQ(Game.Boxes.at(box), (Box{0, 0, sides[box - 1]})) << "box " << box;
    EXPECT_EQ(TheNullDesktop.Drawings.size(), 12U) << "a point for each, and nothing else";
}

TEST_F(Field, IsCentredAndLoweredToWhatFits) {
    const struct {
        int Width, Height, AskedColumns, AskedRows;
        Integer Columns, Rows, Left, Top;
    } cases[] = {
        {8400, 6300, 3, 2, 3, 2, 3750, 2775},
        {8405, 6301, 3, 2, 3, 2, 3752, 2776}, // halves go to the even twip
        {8403, 6303, 3, 2, 3, 2, 3752, 2776}, //
        {1800, 1500, 9, 9, 5, 3, 150, 188},   // a spacing is kept free
        {1799, 1499, 9, 9, 4, 2, 300, 374},   //
        {310, 100, 9, 0, 1, 1, 5, -138},      // but never below one box
    };
    for (const auto& c : cases) {
        TheNullDesktop.PictureWidth = c.Width;
        TheNullDesktop.PictureHeight = c.Height;
        SetUpGame(c.AskedColumns, c.AskedRows, Humanoid, Humanoid);
        EXPECT_TRUE(FieldColumns() == c.Columns && FieldRows() == c.Rows) << c.Width;
        EXPECT_EQ(Game.BoxCount, c.Columns * c.Rows);
        EXPECT_TRUE(Game.FieldLeft == c.Left && Game.FieldTop == c.Top) << c.Width;
        EXPECT_EQ(Game.FieldRight, c.Left + c.Columns * 300);
        EXPECT_EQ(Game.FieldBottom, c.Top + c.Rows * 375);
    }
}

TEST_F(Field, MovesToTheNewCentreWithWhatIsDrawnOnItButNoGhosts) {
    SetUpGame(3, 2, Humanoid, Humanoid);
    EXPECT_THROW(FillBox(6), std::out_of_range) << "it has no owner";
    DrawForNobody({4, 1, 10, 12, 17});
    Game.GhostLine = 5;
    Game.ComputerGhostLine = 17;
    Game.GridColumns = 9; // asked for the next game
    TheNullDesktop.PictureWidth += 200;
    TheNullDesktop.PictureHeight -= 50;
    const int left = Game.FieldLeft + 100;
    const int top = Game.FieldTop - 25;
    ASSERT_TRUE(RedrawField());
    EXPECT_TRUE(Game.FieldLeft == left && Game.FieldRight == left + 900);
    EXPECT_TRUE(Game.FieldTop == top && Game.FieldBottom == top + 750);
    EXPECT_TRUE(Game.Lines.at(5).X == left + 300 && Game.Lines.at(5).Y == top + 375);
    const int right = left + 900;
    const int bottom = top + 750;
    for (const Drawing& wanted :
         {Drawing{Drawing::Kind::Line, left, top + 375, left + 300, top + 375, BrightWhite},
          {Drawing::Kind::Line, right, top + 375, right, bottom, BrightWhite},
          {Drawing::Kind::Point, right, bottom, right, bottom, BrightWhite},
          // Three pixels inside the lines.
          {Drawing::Kind::Box, left + 36, top + 45, left + 300 - 36, top + 375 - 45, Black}})
        EXPECT_TRUE(IsDrawn(wanted));
    EXPECT_FALSE(
        IsDrawn({Drawing::Kind::Line, left + 300, top + 375, left + 600, top + 375, BrightWhite}));
    EXPECT_EQ(Game.GhostLine + Game.ComputerGhostLine, 0);
}

TEST_F(Field, ThatNoLongerFitsIsLeftWhereItWasAndWarnedOfDuringAGame) {
    EXPECT_TRUE(RedrawField()) << "no field yet";
    EXPECT_TRUE(TheNullDesktop.Drawings.empty());
    SetUpGame(3, 2, Humanoid, Humanoid);
    TheNullDesktop.PictureHeight = 750;
    EXPECT_FALSE(Form_Resize()) << "fits to the twip";
    TheNullDesktop.PictureWidth = 898;
    const GameState before = Game;
    const auto drawings = TheNullDesktop.Drawings;
    EXPECT_FALSE(RedrawField());
    EXPECT_TRUE(Form_Resize());
    EXPECT_TRUE(Game == before);
    EXPECT_EQ(TheNullDesktop.Drawings, drawings);
    TheNullDesktop.PictureWidth = 900;
    ShowResizeWarning();
    EXPECT_TRUE(TheNullDesktop.Boxes.empty()) << "fits again before the warning opens";
    TheNullDesktop.PictureWidth = 898;
    TheNullDesktop.Answers = {MessageAnswer::Ok};
    ShowResizeWarning();
    EXPECT_EQ(TheNullDesktop.Boxes.size(), 1U);
    Game.ResizeWarningShown = true;
    EXPECT_FALSE(Form_Resize()) << "one warning at a time";
    Game.ResizeWarningShown = Game.GameInPlay = false;
    EXPECT_FALSE(Form_Resize()) << "no game to warn of";
}

TEST_F(Field, TooLargeForSixteenBitsIsAnErrorThatEndsTheGameOnly) {
    TheNullDesktop.PictureWidth = TheNullDesktop.PictureHeight = 100'000;
    Game.GridColumns = Game.GridRows = 200;
    TheNullDesktop.Answers = {MessageAnswer::Ok};
    RunGuarded([] { RunCommand(Command::Draw); });
    EXPECT_EQ(TheNullDesktop.Boxes.size(), 1U);
    EXPECT_EQ(Game.BoxCount, 0);
    EXPECT_FALSE(Game.GamePaused);
}

TEST_F(Field, IsFilledWithSafeLinesUntilNoneIsLeft) {
    for (const auto& [columns, rows] : {std::pair{3, 2}, {1, 1}, {7, 4}, {2, 9}}) {
        SetUpGame(columns, rows, Humanoid, Humanoid);
        DrawForNobody({1});
        DrawSafeLines();
        EXPECT_TRUE(BoardIsSound());
        EXPECT_EQ(TheNullDesktop.Drawings.size(),
                  (columns + 1) * (rows + 1) + Game.LinesDrawn - 1U);
        for (int box = 1; box <= Game.BoxCount; ++box)
            EXPECT_LE(Game.Boxes.at(box).SidesDrawn, 2);
        for (const int line : UndrawnLines())
            EXPECT_FALSE(IsSafeLine(line)) << line;
    }
}

} // namespace
