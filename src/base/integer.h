// The 16-bit integers of the game state. Arithmetic is done in int and stored through here, so that
// a value that does not fit is an error and never wraps.
#pragma once

#include <cstdint>

using Integer = std::int16_t;

// Throws std::overflow_error when `value` does not fit.
Integer ToInteger(int value);

// Rounds to the nearest whole number, halves to the even one; throws std::overflow_error likewise.
Integer RoundToInteger(double value);

// Adds to a counter, checked.
void Increase(Integer& counter, int amount);
