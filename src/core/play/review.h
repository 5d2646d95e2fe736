// The field for who listens: the line that is pointed at, and answers to the keys that ask. Each
// procedure says one short text, and says and costs nothing where nobody listens.
#pragma once

#include <string>

#include "core/play/line_steps.h"

// The line that is previewed, and what drawing it would do: "across, row 3, column 4, gives 6 boxes
// away". Empty when none is.
std::string GhostLineInWords();

// That line, if it is another one than before.
void TellGhostLine();

// A key that was to move or turn the line found no other.
void TellNoOtherLine();

// That line with the boxes on its two sides.
void TellPlace();

// The turn, the score and what lies open to be taken.
void TellStanding();

// The next box in a direction, drawn or not: from the ghost line or the box told last.
void TellBox(Direction direction);
