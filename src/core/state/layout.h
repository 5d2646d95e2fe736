// How lines and boxes lie on a field, and whether a board is one of that field.
#pragma once

#include "core/state/game_state.h"

// Makes an empty board of the field on screen: lines and boxes have their coordinates and
// neighbours and nothing else. Counts and edges are set, and the tables sized, before.
void LayOut(Board& board);

// Whether the game can be played to its end: counts and tables are those of the field, and sides,
// owners and scores agree with the lines drawn. A file may leave any others.
bool BoardIsWhole();
