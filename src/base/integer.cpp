#include "base/integer.h"

#include <cmath>
#include <stdexcept>

Integer ToInteger(int value) {
    const auto number = static_cast<Integer>(value);
    if (number != value)
        throw std::overflow_error("a number of the game does not fit into 16 bits");
    return number;
}

Integer RoundToInteger(double value) {
    constexpr double beyond = 1 << 16; // fits nowhere, and stands for what is no number, too
    return ToInteger(
        static_cast<int>(std::fmax(-beyond, std::fmin(std::nearbyint(value), beyond))));
}

void Increase(Integer& counter, int amount) {
    counter = ToInteger(counter + amount);
}
