// How lines and boxes lie on a field, and whether a board is one of that field.
#pragma once

#include "core/state/game_state.h"

// Fills the coordinates and neighbours of the lines and boxes, of the size that the field on screen
// has. The tables are sized and cleared before.
void LayOut(Board& board);

// Whether the game can be played to its end: counts and tables are those of the field, and sides,
// owners and scores agree with the lines drawn. A file may leave any others.
bool BoardIsWhole();
