#include "display/status_panel.h"

#include "core/state/game_state.h"

namespace {

// Right-aligned in five characters.
std::string NumberField(int number) {
    constexpr std::size_t width = 5;
    const std::string padded =
        std::string(width, ' ') + (number < 0 ? "" : " ") + std::to_string(number);
    return padded.substr(padded.size() - width);
}

Label TurnCaption(int player) {
    return {TurnText(player), Game.PlayerName.at(player).size()};
}

std::string CounterText(const char* name, int count, int total) {
    return name + NumberField(count) + " of " + NumberField(total);
}

} // namespace

void ShowPlayerStatus(int player) {
    const std::string& name = Game.PlayerName.at(player);
    const std::string status = name + ": " + NumberField(Game.PlayerScore.at(player)) +
                               std::string(5, ' ') + KindOf(player).Word;
    TextBox& shown = player == 1 ? frmQuibsMain.txtPlayer1Status : frmQuibsMain.txtPlayer2Status;
    shown = {status, name.size()};
    Shape& swatch = player == 1 ? frmQuibsMain.shpPlayer1Status : frmQuibsMain.shpPlayer2Status;
    swatch.FillColor = Game.PlayerColor.at(player);
}

void ShowBoxesStatus() {
    frmQuibsMain.txtBoxesStatus.Text = CounterText("Boxes: ", Game.BoxesClaimed, Game.BoxCount);
}

void ShowLinesStatus() {
    frmQuibsMain.txtLinesStatus.Text = CounterText("Lines: ", Game.LinesDrawn, Game.LineCount);
}

void ClearCounters() {
    frmQuibsMain.txtBoxesStatus.Text.clear();
    frmQuibsMain.txtLinesStatus.Text.clear();
}

std::string TurnText(int player) {
    return Game.PlayerName.at(player) + "'s Turn";
}

void ShowTurn(int player) {
    if (!IsPlayer(player))
        return;
    ShowCaptions(player == 1 ? TurnCaption(1) : Label{}, player == 2 ? TurnCaption(2) : Label{},
                 player);
    ShowMarkers(MarkerPair::First, false);
    Shape& marker = player == 1 ? frmQuibsMain.shpPlayer1Active : frmQuibsMain.shpPlayer2Active;
    marker = {Game.PlayerColor.at(player), true};
}

void ShowGamePaused() {
    ShowCaptions(TurnCaption(Game.CurrentPlayer), {"GAME PAUSED"}, Game.CurrentPlayer);
    ShowMarkers(MarkerPair::First, false);
}

std::string OutcomeText() {
    const std::string& winner = frmQuibsMain.lblPlayer2Active.Caption;
    return frmQuibsMain.lblPlayer1Active.Caption + (winner.empty() ? "" : " " + winner);
}

void ShowCaptions(const Label& first, const Label& second, int markedPlayer) {
    frmQuibsMain.lblPlayer1Active = first;
    frmQuibsMain.lblPlayer2Active = second;
    frmQuibsMain.fraStatistics.MarkedPlayer = markedPlayer;
}

void ShowMarkers(MarkerPair pair, bool visible) {
    if (pair == MarkerPair::First) {
        frmQuibsMain.shpPlayer1Active.Visible = visible;
        frmQuibsMain.shpPlayer2Active.Visible = visible;
    } else {
        frmQuibsMain.shpPlayer3Active.Visible = visible;
        frmQuibsMain.shpPlayer4Active.Visible = visible;
    }
}

void ShowAllMarkers(bool visible) {
    ShowMarkers(MarkerPair::First, visible);
    ShowMarkers(MarkerPair::Second, visible);
}

void FillAllMarkers(Color color) {
    frmQuibsMain.shpPlayer1Active.FillColor = color;
    frmQuibsMain.shpPlayer2Active.FillColor = color;
    frmQuibsMain.shpPlayer3Active.FillColor = color;
    frmQuibsMain.shpPlayer4Active.FillColor = color;
}
