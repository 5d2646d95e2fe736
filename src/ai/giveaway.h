// A giveaway: the boxes that one line hands to the opponent, and all the lines that hand them over.
#pragma once

// Traces `line` and leaves in `ChainLines` every line whose drawing opens the same giveaway, in
// `ChainBoxes` the boxes that it gives away.
void GatherGiveaway(int line);

// From the giveaway that `line` opens, picks the line to draw and leaves it in `ChosenLine`: at
// random, but where exactly two boxes are given away the stronger computers draw the line between
// them, so that the opponent must take both or neither. Draws nothing. Asks for a board without a
// box of three sides: there a line of a giveaway may take a box itself.
void GiveAwayLine(int line);
