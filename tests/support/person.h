// A fresh program and a person who uses it, for the stories of the tests and for the fuzzers.
#pragma once

#include <cstdint>
#include <vector>

#include "core/state/game_state.h"
#include "platform/null/null_desktop.h"

// Takes the program, its controls and the desktop back to a start with a fixed seed and with the
// settings of the current directory.
void StartFresh();

// Moves the pointer, in twips or to the middle of a line, and presses where it is.
void PointTo(PointerPlace place);
void PointAt(int line);
void PressHere();
void PressLine(int line);

std::vector<int> UndrawnLines();

// From now on persons ask for a hint, press a key and draw a random line whenever the game waits
// for them, and say Yes to every box.
void LetPersonsPlay(std::uint32_t seed);
