// What a user does with a game, for a bounded time. Quick enough to be done for any number of
// files.
#pragma once

#include <string>

// The program as it starts without a configuration, on a desktop that answers Yes.
void BeginAnew();

// Points at an undrawn line, if there is one, and presses.
void PressOpenLine();

// Resizes, points, resumes the game or starts one, and asks for a hint, whatever a file has left of
// the game; then quits and does it again with a new game. Some dozens of yields in all. Whether the
// new game was whole and no game is left running.
bool UseGameBriefly();

// Whether a file gives a name back as it was written: a comma, a blank in front and a quotation
// mark there do not survive.
bool ReadsBackAsWritten(const std::string& name);
