#include "display/color_words.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <numbers>

namespace {

// In the perceptual space Oklab: equal distances look equally far apart.
struct Perceived {
    double Lightness; // 0 to 1
    double Chroma;    // 0 = none, 0.3 = as much as a screen shows
    double Hue;       // degrees
};

// Of one byte of a colour, which a screen shows brighter than in proportion.
double Light(int byte) {
    const double share = byte / 255.0;
    return share <= 0.04045 ? share / 12.92 : std::pow((share + 0.055) / 1.055, 2.4);
}

Perceived Perceive(Color color) {
    const double red = Light(color & 0xFF);
    const double green = Light(color >> 8 & 0xFF);
    const double blue = Light(color >> 16 & 0xFF);
    const double l = std::cbrt(0.4122214708 * red + 0.5363325363 * green + 0.0514459929 * blue);
    const double m = std::cbrt(0.2119034982 * red + 0.6806995451 * green + 0.1073969566 * blue);
    const double s = std::cbrt(0.0883024619 * red + 0.2817188376 * green + 0.6299787005 * blue);
    const double a = 1.9779984951 * l - 2.4285922050 * m + 0.4505937099 * s;
    const double b = 0.0259040371 * l + 0.7827717662 * m - 0.8086757660 * s;
    return {0.2104542553 * l + 0.7936177850 * m - 0.0040720468 * s, std::hypot(a, b),
            std::atan2(b, a) * 180 / std::numbers::pi};
}

struct NamedGray {
    double Lightness;
    const char* Name;
};

struct NamedHue {
    double Hue; // in the middle of what goes by the names
    const char* Name;
    const char* LightName;
};

constexpr std::array Grays{NamedGray{0, "black"}, NamedGray{0.6, "gray"}, NamedGray{0.81, "white"},
                           NamedGray{1, "bright white"}};
constexpr std::array Hues{
    NamedHue{0, "magenta", "pink"},           NamedHue{29, "red", "light red"},
    NamedHue{60, "brown", "orange"},          NamedHue{110, "yellow", "light yellow"},
    NamedHue{142, "green", "light green"},    NamedHue{190, "cyan", "light cyan"},
    NamedHue{248, "blue", "light blue"},      NamedHue{306, "purple", "light purple"},
    NamedHue{328, "magenta", "light magenta"}};

constexpr double LeastChroma = 0.04;    // of what is no gray
constexpr double LeastLightness = 0.14; // of what is not black
constexpr int LightFrom = 0xC0;         // the largest byte of a light colour

template <class Names, class Distance>
auto Nearest(const Names& names, Distance distanceTo) {
    return *std::min_element(names.begin(), names.end(), [&](const auto& one, const auto& other) {
        return distanceTo(one) < distanceTo(other);
    });
}

} // namespace

std::string ColorInWords(Color color) {
    const Perceived seen = Perceive(color);
    if (seen.Chroma < LeastChroma || seen.Lightness < LeastLightness)
        return Nearest(
                   Grays,
                   [&](const NamedGray& gray) { return std::abs(gray.Lightness - seen.Lightness); })
            .Name;
    const NamedHue hue = Nearest(Hues, [&](const NamedHue& named) {
        return std::abs(std::remainder(named.Hue - seen.Hue, 360));
    });
    const int largest = std::max({color & 0xFF, color >> 8 & 0xFF, color >> 16 & 0xFF});
    return largest < LightFrom ? hue.Name : hue.LightName;
}
