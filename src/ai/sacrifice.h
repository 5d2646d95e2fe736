// What a computer player gives away when no safe line is left.
#pragma once

// Chooses among two or more `RiskyLines` and leaves the choice in `ChosenLine`. Reduces the table
// to the distinct giveaways, smallest first, each under its lowest line.
void ChooseSacrifice();

// From the giveaway that `line` opens, picks the line to draw and leaves it in `ChosenLine`: at
// random, but where exactly two boxes are given away the stronger computers draw the line between
// them, so that the opponent must take both or neither. Draws nothing.
void GiveAwayLine(int line);
