#include "core/state/work_lists.h"

#include "core/state/game_state.h"

WorkLists Work;

void SizeBoxTables() {
    Game.Boxes.assign(static_cast<std::size_t>(Game.BoxCount) + 1, Box{});
    Work.ChainBoxes.Resize(Game.BoxCount);
}

void SizeLineTables() {
    Game.Lines.assign(static_cast<std::size_t>(Game.LineCount) + 1, Line{});
    Work.ChainLines.Resize(Game.LineCount);
    Work.ChainTailLines.Resize(Game.LineCount);
    Work.RiskyLines.Resize(Game.LineCount);
}
