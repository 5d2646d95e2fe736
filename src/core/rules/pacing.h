// The game's one pacing wait.
#pragma once

// Waits so many seconds while the window stays responsive. Returns early when the program ends,
// when a command waits for the end of a game to be shown no longer, and when the clock is set back
// or passes midnight. 0 returns at once.
void Delay(float seconds);
