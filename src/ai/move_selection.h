// How a computer player chooses its line.
#pragma once

// Leaves in `ChosenLine` the line that the player to move should draw, by the player's kind; 0 when
// no line is left. A computer that takes a run of boxes draws all but the last line itself, with a
// pause after each, so this yields. With `HintMode` set it neither draws nor pauses; for a person
// it chooses as the average computer would.
void ChooseComputerMove();
