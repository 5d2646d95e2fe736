#include "core/rules/moves.h"

#include <stdexcept>

#include "core/rules/pacing.h"
#include "core/state/grid.h"
#include "display/field.h"
#include "display/sound.h"
#include "display/status_panel.h"
#include "platform/desktop.h"

namespace {

int SidesDrawn(int box) {
    return Game.Boxes.at(box).SidesDrawn;
}

// Whether the line gives the opponent a box together with another that could be taken instead.
bool GivesAwayATakeableBox(int line) {
    if (HasBoxBeside(line, 3) || !HasBoxBeside(line, 2))
        return false;
    const auto [first, second] = BoxesBeside(line);
    const int given = SidesDrawn(first) == 2 ? first : second;
    return SidesDrawn(BoxAcross(FirstUndrawnSide(given, line), given)) == 3;
}

// Claims the box for the player to move if all its sides are drawn; tells whether it did.
bool ClaimIfComplete(int box) {
    if (SidesDrawn(box) != 4)
        return false;
    Game.Boxes.at(box).Owner = Game.CurrentPlayer;
    FillBox(box);
    return true;
}

void RecordLine(Integer number) {
    Line& line = Game.Lines.at(number);
    Increase(Game.LinesDrawn, 1);
    Game.LastLine = number;
    DrawLine(number, Game.PointColor);
    ShowLinesStatus();
    for (const Integer box : BoxesBeside(number))
        if (box != 0)
            Increase(Game.Boxes.at(box).SidesDrawn, 1);
    line.Drawn = number;
}

// Lets the person who is to reply see which line the computer drew.
void HighlightComputerLine(Integer line) {
    if (Game.ComputerGhostLine != 0)
        DrawLine(Game.ComputerGhostLine, Game.PointColor);
    Game.ComputerGhostLine = line;
    DrawLine(line, Game.ComputerGhostColor);
}

void PassTurn(Integer line) {
    const int mover = Game.CurrentPlayer;
    const int opponent = OtherPlayer(mover);
    const bool computerToPerson = IsComputer(mover) && !IsComputer(opponent);
    if (computerToPerson)
        HighlightComputerLine(line);
    Game.CurrentPlayer = ToInteger(opponent);
    ShowTurn(opponent);
    if (computerToPerson)
        PlaySound("SndClick.wav");
    Delay(0.5F);
    CloseSound();
}

void ScoreBoxes(int count) {
    Increase(Game.PlayerScore.at(Game.CurrentPlayer), count);
    ShowPlayerStatus(Game.CurrentPlayer);
    Increase(Game.BoxesClaimed, count);
    ShowBoxesStatus();
    if (Game.BoxesClaimed >= Game.BoxCount) {
        ShowCaptions({}, {}, 0);
        ShowMarkers(MarkerPair::First, false);
    }
}

} // namespace

void ApplyMove() {
    const Integer number = Game.ChosenLine;
    const Line& line = Game.Lines.at(number);
    if (number == 0 || line.Drawn != 0)
        throw std::logic_error("a line was to be drawn that is no line or is drawn already");
    if (!IsComputer(Game.CurrentPlayer) && !IsLegalMove())
        return;
    RecordLine(number);
    int completed = 0;
    for (const Integer box : BoxesBeside(number))
        completed += ClaimIfComplete(box) ? 1 : 0;
    if (completed == 0)
        PassTurn(number);
    else
        ScoreBoxes(completed);
}

bool IsLegalMove() {
    if (KindOf(OtherPlayer(Game.CurrentPlayer)).AllowsAnyLine ||
        !GivesAwayATakeableBox(Game.ChosenLine))
        return true;
    ShowMessageBox("Not a legal move, only legal when opponent is Humanoid or Computer Cheat.",
                   "Illegal Move", MessageIcon::Exclamation, MessageButtons::Ok);
    EraseGhostLine(Game.ChosenLine);
    return false;
}
