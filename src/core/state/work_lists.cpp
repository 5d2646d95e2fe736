#include "core/state/work_lists.h"

#include "core/state/game_state.h"

WorkLists Work;

void SizeWorkLists() {
    Work.ChainBoxes.Resize(Game.BoxCount);
    Work.ChainLines.Resize(Game.LineCount);
    Work.ChainTailLines.Resize(Game.LineCount);
    Work.RiskyLines.Resize(Game.LineCount);
}
