// Where the points, lines and boxes of a field lie, and what is drawn of them.
#include "display/field.h"

#include "core/play/game_setup.h"
#include "core/state/grid.h"
#include "storage/saved_game.h"
#include "support/game_test.h"
#include "ui/commands.h"
#include "ui/window_layout.h"

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

TEST_F(Field, HasTheRoomBetweenToolbarAndStatus) {
    const struct {
        int Width, Height;
        Rectangle Frame, Picture;
    } cases[] = {{10'001, 8000, {3000, 7040, 4000, 900}, {60, 401, 9881, 6640}},
                 {100, 1000, {-1950, 40, 4000, 900}, {50, 401, 0, 0}},
                 {40'000, 40'000, {18'000, 39'040, 4000, 900}, {3616, 401, 32'767, 32'767}}};
    for (const auto& [width, height, frame, picture] : cases) {
        const WindowLayout layout = LayOutWindow(width, height, 400, 4000, 900);
        EXPECT_TRUE(layout.Frame == frame && layout.Picture == picture) << width;
    }
    EXPECT_EQ(TheNullDesktop.Place, WindowPlace::Centred);
    TheNullDesktop.ScreenWidth -= 15;
    Form_Load();
    EXPECT_EQ(TheNullDesktop.Place, WindowPlace::Maximised) << "on a narrow screen";
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

TEST_F(Field, ThatNoLongerFitsIsLeftWhereItWasAndWarnedOfDuringAGame) {
    EXPECT_TRUE(RedrawField()) << "no field yet";
    EXPECT_TRUE(TheNullDesktop.Drawings.empty());
    SetUpGame(3, 2, Humanoid, Humanoid);
    TheNullDesktop.PictureWidth = 900;
    TheNullDesktop.PictureHeight = 750;
    EXPECT_TRUE(!Form_Resize() && TheNullDesktop.Drawings.size() == 29) << "drawn anew";
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
    TheNullDesktop.WhenAsked = ShowResizeWarning; // one warning at a time
    ShowResizeWarning();
    EXPECT_EQ(TheNullDesktop.Boxes.size(), 1U);
    Game.GameInPlay = false;
    EXPECT_FALSE(Form_Resize()) << "no game to warn of";
}

} // namespace
