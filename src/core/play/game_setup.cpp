#include "core/play/game_setup.h"

#include <algorithm>

#include "core/state/game_state.h"
#include "core/state/work_lists.h"
#include "display/field.h"
#include "display/status_panel.h"

void FitGridToPicture() {
    Game.GridColumns = ToInteger(std::min<int>(Game.GridColumns, std::max(1, ColumnsThatFit())));
    Game.GridRows = ToInteger(std::min<int>(Game.GridRows, std::max(1, RowsThatFit())));
}

void NewGame() {
    ResetPointSpacing();
    FitGridToPicture();
    const int columns = std::max<int>(1, Game.GridColumns);
    const int rows = std::max<int>(1, Game.GridRows);
    Game.HorizontalLineCount = ToInteger((rows + 1) * columns);
    Game.VerticalLineCount = ToInteger((columns + 1) * rows);
    Game.LineCount = ToInteger(Game.HorizontalLineCount + Game.VerticalLineCount);
    Game.BoxCount = ToInteger(columns * rows);
    PlaceField(columns, rows);

    SizeBoxTables();
    SizeLineTables();
    BuildField();

    ForgetTurn();
    Game.CurrentPlayer = 0;
    ShowPlayerStatus(1);
    ShowPlayerStatus(2);
    ShowLinesStatus();
    ShowBoxesStatus();
}

void ForgetTurn() {
    ForgetLines();
    ShowAllMarkers(false);
}
