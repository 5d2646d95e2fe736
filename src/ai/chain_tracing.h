// Plays lines out on a private copy of the board, to see which boxes fall one after another.
#pragma once

#include "base/counted_list.h"

// Plays `line` out and follows the run of boxes with three sides from each of its two boxes. Leaves
// in `Work`:
//   ChainBoxes      the boxes completed, in order;
//   ChainLines      the lines drawn from the box above or left of the line, in order;
//   ChainTailLines  those drawn from the box below or right, or the mark of a closed loop when the
//                   first walk came all the way round.
// `line` itself is in neither list; it may be drawn already. The board is not changed. The cost
// follows the run, not the board.
void TraceChain(int line);

// Whether each of `lines`, drawn in order, completes a box at its turn.
bool EveryLineTakesABox(const CountedList<Integer>& lines);
