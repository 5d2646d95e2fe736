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

std::string TextsOf(const MainWindowControls& form) {
    return form.txtPlayer1Status.Text + "|" + form.txtPlayer2Status.Text + "|" +
           form.txtBoxesStatus.Text + "|" + form.txtLinesStatus.Text;
}

void PrintTo(const MainWindowControls& form, std::ostream* out) {
    *out << TextsOf(form) << "|" << form.lblPlayer1Active.Caption << "|"
         << form.lblPlayer2Active.Caption;
    for (const auto& [caption, length] : {form.lblPlayer1Active, form.lblPlayer2Active})
        *out << ", name of " << length;
    *out << ", marked " << form.fraStatistics.MarkedPlayer << ", field "
         << form.picPlayingField.BackColor << " "
         << static_cast<int>(form.picPlayingField.MousePointer);
    for (const auto& shape : {form.shpPlayer1Active, form.shpPlayer2Active, form.shpPlayer3Active,
                              form.shpPlayer4Active, form.shpPlayer1Status, form.shpPlayer2Status})
        *out << (shape.Visible ? ", shape " : ", hidden shape ") << shape.FillColor;
    for (const CommandState& command : form.Commands)
        *out << ", command " << &command - form.Commands.data() << (command.Enabled ? " on" : "")
             << (command.Checked ? " checked" : "");
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
