#include "support/board.h"

#include <ostream>

#include "core/play/game_setup.h"

namespace {

// Counts anew what follows from the lines drawn. A new complete box goes to player 1.
void Recount(GameState& game) {
    game.Lines.at(0) = Line{};
    game.Boxes.at(0) = Box{};
    game.LinesDrawn = game.BoxesClaimed = 0;
    game.PlayerScore = {};
    for (int line = 1; line <= game.LineCount; ++line) {
        if (game.Lines.at(line).Drawn != 0)
            ++game.LinesDrawn;
    }
    for (int number = 1; number <= game.BoxCount; ++number) {
        Box& box = game.Boxes.at(number);
        const Integer formerOwner = box.Owner;
        box.SidesDrawn = box.Owner = 0;
        for (const Integer side : box.Sides)
            if (game.Lines.at(side).Drawn != 0)
                ++box.SidesDrawn;
        if (box.SidesDrawn < 4)
            continue;
        box.Owner = formerOwner == 2 ? 2 : 1;
        ++game.PlayerScore.at(box.Owner);
        ++game.BoxesClaimed;
    }
}

} // namespace

bool BoardIsSound() {
    GameState sound = Game;
    Recount(sound);
    return sound == Game;
}

std::string PanelTexts() {
    const MainWindowControls& form = frmQuibsMain;
    return form.txtPlayer1Status.Text + "|" + form.txtPlayer2Status.Text + "|" +
           form.txtBoxesStatus.Text + "|" + form.txtLinesStatus.Text;
}

void PrintTo(const MainWindowControls& form, std::ostream* out) {
    *out << form.txtPlayer1Status.Text << "|" << form.txtPlayer2Status.Text << "|"
         << form.txtBoxesStatus.Text << "|" << form.txtLinesStatus.Text << "|"
         << form.lblPlayer1Active.Caption << "|" << form.lblPlayer2Active.Caption
         << ", marked player " << form.fraStatistics.MarkedPlayer << ", background "
         << form.picPlayingField.BackColor << ", pointer "
         << static_cast<int>(form.picPlayingField.MousePointer);
    for (const auto& [name, shape] : {std::pair("Player1Status", form.shpPlayer1Status),
                                      {"Player2Status", form.shpPlayer2Status},
                                      {"Player1Active", form.shpPlayer1Active},
                                      {"Player2Active", form.shpPlayer2Active},
                                      {"Player3Active", form.shpPlayer3Active},
                                      {"Player4Active", form.shpPlayer4Active}})
        *out << ", shp" << name << (shape.Visible ? " visible " : " hidden ") << shape.FillColor;
    for (std::size_t command = 0; command < CommandCount; ++command)
        *out << ", command " << command << (form.Commands.at(command).Enabled ? " on" : " off")
             << (form.Commands.at(command).Checked ? " checked" : "");
}

void SetUpGame(int columns, int rows, Integer firstKind, Integer secondKind) {
    Game.GridColumns = ToInteger(columns);
    Game.GridRows = ToInteger(rows);
    Game.PlayerKind = {{firstKind, secondKind}};
    NewGame();
    Game.CurrentPlayer = 1;
    Game.GameInPlay = true;
}

void DrawForNobody(const std::vector<int>& lines) {
    for (const int line : lines)
        Game.Lines.at(line).Drawn = Game.LastLine = ToInteger(line);
    Recount(Game);
}
