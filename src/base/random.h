// The game's one source of chance. The same seed gives the same game on every machine.
#pragma once

#include <cstdint>

#include "base/integer.h"

void SeedRandom(std::uint64_t seed);

// Bits that look random and depend on every bit of those given.
std::uint64_t MixBits(std::uint64_t bits);

// Uniform in [0, 1), in steps of 2 to the -24.
float RandomUniform();

// A number from 1 to `count`, all equally likely. Uses one random number. Throws std::out_of_range
// when there is nothing to choose from.
Integer RandomPick(int count);
