// Where the points, lines and boxes of a field lie, and what is drawn of them.
#include "display/field.h"

#include <algorithm>

#include "core/play/game_setup.h"
#include "core/state/grid.h"
#include "display/safe_lines.h"
#include "storage/saved_game.h"
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
    EXPECT_EQ(TheNullDesktop.Drawings.size(), 12U) << "a point for each, and nothing else";
    Game.GridColumns = 5; // of the next game
    SaveGame("field.qbs");
    EXPECT_EQ(BytesOf("field.qbs"), BytesOf(QUIBLINK_TESTS "/samples/three_by_two.qbs"));
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
    TheNullDesktop.PictureWidth = 900;
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
    TheNullDesktop.PictureHeight = 748;
    EXPECT_FALSE(RedrawField()) << "too low";
    TheNullDesktop.PictureHeight = 750;
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

} // namespace
