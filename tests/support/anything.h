// What a user may do at any moment, for the soak and for the stories of the fuzzers.
#pragma once

#include <cstdint>

// One of all the things that a user may do with the window as it is; every number stands for one.
// Needs the null desktop.
void DoAnything(std::uint32_t number);
