// A colour as the game keeps it: red in the low byte, green in the middle, blue in the third byte.
#pragma once

#include <cstdint>

using Color = std::int32_t;

// Entries of the classic 16-colour palette.
inline constexpr Color Black = 0x000000;
inline constexpr Color LightGreen = 0x00FF00;
inline constexpr Color LightRed = 0x0000FF;
inline constexpr Color BrightWhite = 0xFFFFFF;
