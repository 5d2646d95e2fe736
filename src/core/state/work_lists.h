// The working lists of the computer players, sized together with the board. Nothing in them
// outlives one choice of a line.
#pragma once

#include "base/counted_list.h"

// An undrawn line that gives boxes away, and how many.
struct RiskyLine {
    Integer Line = 0;
    Integer Size = 0;
};

struct ChainLists {
    CountedList<Integer> ChainLines;     // capture lines found on one side; also the safe lines
    CountedList<Integer> ChainTailLines; // capture lines found on the other side
    CountedList<Integer> ChainBoxes;     // boxes that a line would let the opponent take, in order
};

struct WorkLists : ChainLists {
    CountedList<RiskyLine> RiskyLines;
};

extern WorkLists Work;

// Give the board's tables room for `BoxCount` boxes and `LineCount` lines, all of them empty, and
// the lists that go with them.
void SizeBoxTables();
void SizeLineTables();
