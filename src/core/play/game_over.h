// The end of a game.
#pragma once

// Names the winner or the draw, plays its sound and blinks the markers for three seconds, yielding
// all the while. Stops at once for `CommandAfterGameOver` and for the end of the program.
void ShowGameOver();
