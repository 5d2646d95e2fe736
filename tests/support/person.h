// A person at the pointer, and boards in the middle of a game, for the stories of the tests.
#pragma once

#include <cstdint>
#include <vector>

#include "core/game_state.h"

// Moves the pointer to the middle of a line.
void PointAt(int line);

// Points at a line and presses there.
void PressLine(int line);

std::vector<int> UndrawnLines();

// From now on persons draw random lines whenever the game waits for them, and close the box that
// refuses one.
void LetPersonsPlay(std::uint32_t seed);

// Draws random lines for nobody: any at all, or mostly an opening that leaves chains and loops.
void DrawRandomPosition(std::uint32_t seed);
