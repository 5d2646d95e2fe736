// The texts, swatches and markers of the status panel.
#include "display/status_panel.h"

#include "support/game_test.h"

namespace {

class StatusPanel : public GameTest {};

TEST_F(StatusPanel, ShowsNumbersRightAlignedInFiveCharacters) {
    const struct {
        Integer Score, Kind;
        const char* Text;
    } cases[] = {
        {0, Humanoid, "<b>Bo</b>:     0     Humanoid"},
        {7, ComputerAverage, "<b>Bo</b>:     7     Average"},
        {123, ComputerIntelligent, "<b>Bo</b>:   123     Intelligent"},
        {32767, ComputerCheat, "<b>Bo</b>: 32767     Cheat"},
        {-5, 4, "<b>Bo</b>:    -5     Humanoid"},
    };
    Game.PlayerName.at(2) = "<b>Bo</b>";
    Game.PlayerColor.at(2) = LightGreen;
    const std::string other = frmQuibsMain.txtPlayer1Status.Text;
    for (const auto& c : cases) {
        Game.PlayerScore.at(2) = c.Score;
        Game.PlayerKind.at(2) = c.Kind;
        ShowPlayerStatus(2);
        EXPECT_EQ(frmQuibsMain.txtPlayer2Status.Text, c.Text);
    }
    EXPECT_EQ(frmQuibsMain.txtPlayer1Status.Text, other);
    EXPECT_EQ(frmQuibsMain.shpPlayer2Status.FillColor, LightGreen);
    for (const int nobody : {0, 3, -1})
        EXPECT_THROW(ShowPlayerStatus(nobody), std::out_of_range);
}

TEST_F(StatusPanel, IsEmptyUntilAGameIsSetUp) {
    EXPECT_EQ(frmQuibsMain.txtPlayer1Status.Text, "Colossus:     0     Intelligent");
    EXPECT_EQ(frmQuibsMain.txtBoxesStatus.Text + frmQuibsMain.txtLinesStatus.Text, "");
    SetUpGame(10, 10, Humanoid, Humanoid);
    EXPECT_EQ(frmQuibsMain.txtBoxesStatus.Text, "Boxes:     0 of   100");
    EXPECT_EQ(frmQuibsMain.txtLinesStatus.Text, "Lines:     0 of   220");
    EXPECT_EQ(frmQuibsMain.lblPlayer1Active.Caption + frmQuibsMain.lblPlayer2Active.Caption, "");
}

TEST_F(StatusPanel, ShowsWhoseTurnItIsOnOneSideOnly) {
    Game.PlayerColor.at(1) = LightRed;
    for (const int player : {2, 1}) {
        ShowTurn(player);
        const bool isFirst = player == 1;
        EXPECT_EQ(frmQuibsMain.lblPlayer1Active.Caption, isFirst ? "Colossus's Turn" : "");
        EXPECT_EQ(frmQuibsMain.lblPlayer2Active.Caption, isFirst ? "" : "Guardian's Turn");
        EXPECT_EQ(frmQuibsMain.shpPlayer1Active.Visible, isFirst);
        EXPECT_EQ(frmQuibsMain.shpPlayer2Active, (Shape{BrightWhite, !isFirst}));
    }
    EXPECT_EQ(frmQuibsMain.shpPlayer1Active.FillColor, LightRed);
    const MainWindowControls before = frmQuibsMain;
    ShowTurn(0);
    ShowTurn(3);
    EXPECT_EQ(frmQuibsMain, before);
}

} // namespace
