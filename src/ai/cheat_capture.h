// How the cheating computer takes boxes.
#pragma once

// Takes the chains that the last line did not open, then those that it opened, but leaves the
// opponent the last two boxes of a chain, or four of a closed loop, who must then open the next
// one. Called when a box with three sides exists and `ChosenLine` would take one. Draws with a
// pause after each line. Of the chain that the last line opened it leaves the last line to the
// caller, in `ChosenLine`; where there is no such chain, that may come out as a line drawn already.
void CheatTakeBoxes();
