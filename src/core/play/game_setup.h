// Setting up a new game.
#pragma once

// Lowers `GridColumns` and `GridRows` to what fits on the picture, but not below one box.
void FitGridToPicture();

// Sets up an empty field of `GridColumns` by `GridRows` boxes, lowered to what fits and never below
// one, and shows it. Whose turn it is stays open: `CurrentPlayer` is 0. Throws std::overflow_error,
// with the game half set up, when the field exceeds 16 bits.
void NewGame();

// Forgets the previewed, chosen and last lines and hides the turn markers.
void ForgetTurn();
