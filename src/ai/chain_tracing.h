// Plays lines out on a private copy of the board, to see which boxes fall one after another.
#pragma once

#include "core/state/work_lists.h"

// Plays `line` out and follows the run of boxes with three sides from each of its two boxes. Leaves
// in `found`, whose lists are as long as those of `Work`:
//   ChainBoxes      the boxes completed, in order;
//   ChainLines      the lines drawn from the box above or left of the line, in order;
//   ChainTailLines  those drawn from the box below or right, or the mark of a closed loop when the
//                   first walk came all the way round.
// `line` itself is in neither list; it may be drawn already. The board is not changed. The cost
// follows the run, not the board.
void TraceChain(int line, ChainLists& found = Work);

// What lies in a line for the player to move and for the opponent.
struct Prospect {
    int Closed = 0; // boxes that the line itself closes
    int Given = 0;  // boxes, one behind the other, that it hands to the opponent
    int Open = 0;   // boxes that can be taken after it besides
};

// Of a line still to be drawn; of 0, as if nothing were drawn. Leaves `Work` as it is, for it may
// be asked while a computer chooses. It looks at each box of the board once: that takes less than a
// millisecond on the largest.
Prospect ProspectOf(int line);

// Whether each of `lines`, drawn in order, completes a box at its turn.
bool EveryLineTakesABox(const CountedList<Integer>& lines);
