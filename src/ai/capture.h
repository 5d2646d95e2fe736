// What every way of taking boxes needs.
#pragma once

inline constexpr float CapturePause = 0.25F; // seconds, before a choice and after each capture

// The first box with three sides, 0 = none.
int FindCaptureBox();

// Whether `line` is still to be drawn and would complete a box.
bool TakesABox(int line);

// Draws `line`, which must take a box, for the player to move, then pauses.
void Capture(int line);
