// Any bytes as a wave file: refused, or whole frames of samples.
#include "fuzz/target.h"
#include "platform/wave_file.h"

void TryInput(const std::string& input) {
    const auto wave = ReadWave(input);
    Require(!wave || wave->Samples.size() % wave->BytesPerFrame() == 0, "whole frames");
}
