// What every fuzz target is to its fuzzer and to its replay.
#pragma once

#include <cstdint>
#include <stdexcept>
#include <string>

#include "core/state/game_state.h"

// Does everything with one input; throws where it is harmed.
void TryInput(const std::string& input);

// The name by which a fuzzer calls it.
extern "C" [[gnu::used]] inline int LLVMFuzzerTestOneInput(const std::uint8_t* data,
                                                           std::size_t size) {
    TryInput({reinterpret_cast<const char*>(data), size});
    return 0;
}

inline void Require(bool condition, const char* demand) {
    if (!condition)
        throw std::logic_error(demand);
}

// A comma, and a blank or a quotation mark in front, do not survive in a file.
inline bool NamesReadBackAsWritten() {
    const auto survives = [](const std::string& name) {
        return name.find(',') == std::string::npos && name.find_first_of(" \"") != 0;
    };
    return survives(Game.PlayerName.at(1)) && survives(Game.PlayerName.at(2));
}
