#include "base/random.h"

#include <stdexcept>

namespace {

std::uint64_t generatorState = 0;

// SplitMix64: a counter stepped by the golden ratio, then mixed.
std::uint64_t NextBits() {
    generatorState += 0x9E3779B97F4A7C15U;
    return MixBits(generatorState);
}

} // namespace

void SeedRandom(std::uint64_t seed) {
    generatorState = seed;
}

std::uint64_t MixBits(std::uint64_t bits) {
    bits = (bits ^ (bits >> 30U)) * 0xBF58476D1CE4E5B9U;
    bits = (bits ^ (bits >> 27U)) * 0x94D049BB133111EBU;
    return bits ^ (bits >> 31U);
}

float RandomUniform() {
    constexpr unsigned randomBits = 24;
    constexpr float step = 1.0F / (1U << randomBits);
    return static_cast<float>(NextBits() >> (64U - randomBits)) * step;
}

Integer RandomPick(int count) {
    if (count < 1)
        throw std::out_of_range("a choice among nothing");
    // In double: in single precision the product could round up to `count` itself.
    return ToInteger(static_cast<int>(static_cast<double>(RandomUniform()) * count) + 1);
}
