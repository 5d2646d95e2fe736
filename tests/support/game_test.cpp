#include "support/game_test.h"

#include "core/game_setup.h"
#include "core/random.h"
#include "ui/commands.h"

::testing::AssertionResult BoardIsSound() {
    int linesDrawn = 0;
    for (int line = 1; line <= Game.LineCount; ++line) {
        const int drawn = Game.Lines.at(line).Drawn;
        if (drawn != 0 && drawn != line)
            return ::testing::AssertionFailure() << "line " << line << " is marked " << drawn;
        linesDrawn += drawn != 0 ? 1 : 0;
    }
    if (linesDrawn != Game.LinesDrawn)
        return ::testing::AssertionFailure() << "LinesDrawn is " << Game.LinesDrawn;
    PerPlayer<int> owned;
    for (int box = 1; box <= Game.BoxCount; ++box) {
        const Box& checked = Game.Boxes.at(box);
        int sides = 0;
        for (const Integer side : checked.Sides)
            sides += Game.Lines.at(side).Drawn != 0 ? 1 : 0;
        if (sides != checked.SidesDrawn || (checked.Owner != 0) != (sides == 4))
            return ::testing::AssertionFailure()
                   << "box " << box << " counts " << checked.SidesDrawn << " sides of " << sides
                   << " and has owner " << checked.Owner;
        if (checked.Owner != 0)
            ++owned.at(checked.Owner);
    }
    if (Game.Boxes.at(0) != Box{} || Game.Lines.at(0) != Line{})
        return ::testing::AssertionFailure() << "a dummy row was written to";
    for (const int player : {1, 2})
        if (Game.PlayerScore.at(player) != owned.at(player))
            return ::testing::AssertionFailure()
                   << "player " << player << " owns " << owned.at(player) << " boxes but scores "
                   << Game.PlayerScore.at(player);
    if (Game.BoxesClaimed != owned.at(1) + owned.at(2))
        return ::testing::AssertionFailure() << "BoxesClaimed is " << Game.BoxesClaimed;
    return ::testing::AssertionSuccess();
}

void StartFresh() {
    Game = GameState{};
    frmQuibsMain = MainWindowControls{};
    ResetNullDesktop();
    Form_Load();
    SeedRandom(1);
}

void SetUpGame(int columns, int rows, Integer firstKind, Integer secondKind) {
    Game.GridColumns = ToInteger(columns);
    Game.GridRows = ToInteger(rows);
    Game.PlayerKind.at(1) = firstKind;
    Game.PlayerKind.at(2) = secondKind;
    NewGame();
    Game.CurrentPlayer = 1;
    Game.GameInPlay = true;
}

void DrawForNobody(const std::vector<int>& lines) {
    for (const int number : lines) {
        Line& line = Game.Lines.at(number);
        line.Drawn = ToInteger(number);
        Increase(Game.LinesDrawn, 1);
        Game.LastLine = ToInteger(number);
        for (const Integer box : {line.FirstBox, line.SecondBox}) {
            if (box == 0)
                continue;
            Increase(Game.Boxes.at(box).SidesDrawn, 1);
            if (Game.Boxes.at(box).SidesDrawn == 4) {
                Game.Boxes.at(box).Owner = 1;
                Increase(Game.PlayerScore.at(1), 1);
                Increase(Game.BoxesClaimed, 1);
            }
        }
    }
}
