// Colours in words for who cannot see them.
#pragma once

#include <string>

#include "platform/color.h"

// What people call a colour: by its hue, then light or dark. The sixteen classic colours have their
// classic names, such as "light red"; between them are brown, orange, purple and pink.
std::string ColorInWords(Color color);
