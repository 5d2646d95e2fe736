// What the field shows, in words for who cannot see it.
#pragma once

#include <string>

// "across, row 3, column 4" or "down, ..."; rows and columns count from 1 at the top left. Empty
// for a line that is not on the field.
std::string LineInWords(int line);

// "row 3, column 4".
std::string PlaceOfBoxInWords(int box);

// "Guardian's", or which sides are drawn: "no sides", "2 sides: top, left".
std::string SidesInWords(int box);

// "a box" or "3 boxes".
std::string BoxesInWords(int count);
