#include "base/integer.h"

#include <cmath>
#include <limits>
#include <stdexcept>

Integer ToInteger(int value) {
    if (value < std::numeric_limits<Integer>::min() || value > std::numeric_limits<Integer>::max())
        throw std::overflow_error("a number of the game does not fit into 16 bits");
    return static_cast<Integer>(value);
}

Integer RoundToInteger(double value) {
    const double rounded = std::nearbyint(value);
    // Written so that a NaN fails too.
    if (!(std::abs(rounded) <= std::numeric_limits<int>::max()))
        throw std::overflow_error("a number of the game does not fit into 16 bits");
    return ToInteger(static_cast<int>(rounded));
}

void Increase(Integer& counter, int amount) {
    counter = ToInteger(counter + amount);
}
