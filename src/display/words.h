// What the field shows, in words for who cannot see it.
#pragma once

#include <string>

// "across, row 3, column 4" or "down, ..."; rows and columns count from 1 at the top left. Empty
// for a line that is not on the field.
std::string LineInWords(int line);

// The line that is previewed, and what drawing it would do: "across, row 3, column 4, free". Empty
// when none is.
std::string GhostLineInWords();
