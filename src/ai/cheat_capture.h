// How the cheating computer takes boxes.
#pragma once

// Takes the chains that the last line did not open, then those that it opened, but leaves the
// opponent the last two boxes of a chain, or four of a closed loop, who must then open the next
// one. Called when a box with three sides exists and `ChosenLine` would take one. Draws all but its
// last line itself, with a pause after each, and leaves that one in `ChosenLine`, which may also
// come out as 0 or a line drawn already: then there is nothing more to decline.
void CheatTakeBoxes();
