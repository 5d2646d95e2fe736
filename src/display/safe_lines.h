// Safe lines: those that give no box its third side.
#pragma once

// Whether neither box beside an undrawn line has two or more sides drawn.
bool IsSafeLine(int line);

// Draws random safe lines on an empty board, which belong to no player, until none is left.
void DrawSafeLines();
