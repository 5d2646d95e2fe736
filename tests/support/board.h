// Boards for tests, and what must be true of every board.
#pragma once

#include <iosfwd>
#include <string>
#include <vector>

#include "core/state/game_state.h"

// Whether side counts, owners, scores and counters agree with the lines drawn.
bool BoardIsSound();

// Sets up a new game of so many boxes and kinds, player 1 to move, as if it were being played.
void SetUpGame(int columns, int rows, Integer firstKind, Integer secondKind);

// Names the controls and their values where a comparison of them fails.
void PrintTo(const MainWindowControls& form, std::ostream* out);

// What the status panel tells of both players, of the boxes and of the lines.
std::string TextsOf(const MainWindowControls& form);

// Draws lines for nobody: sides count, complete boxes go to player 1.
void DrawForNobody(const std::vector<int>& lines);
