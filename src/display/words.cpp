#include "display/words.h"

#include <algorithm>
#include <array>

#include "core/state/grid.h"

namespace {

int BoxesBesideWith(int sidesDrawn, int line) {
    int count = 0;
    for (const Integer box : BoxesBeside(line))
        count += Game.Boxes.at(box).SidesDrawn == sidesDrawn ? 1 : 0;
    return count;
}

std::string EffectInWords(int line) {
    if (const int closed = BoxesBesideWith(3, line); closed > 0)
        return closed == 1 ? "closes a box" : "closes two boxes";
    if (const int given = BoxesBesideWith(2, line); given > 0)
        return given == 1 ? "gives a box away" : "gives two boxes away";
    return "free";
}

struct NamedColor {
    Color Value;
    const char* Name;
};

constexpr std::array ClassicColors{
    NamedColor{0x000000, "black"},        NamedColor{0x800000, "blue"},
    NamedColor{0x008000, "green"},        NamedColor{0x808000, "cyan"},
    NamedColor{0x000080, "red"},          NamedColor{0x800080, "magenta"},
    NamedColor{0x008080, "yellow"},       NamedColor{0xC0C0C0, "white"},
    NamedColor{0x808080, "gray"},         NamedColor{0xFF0000, "light blue"},
    NamedColor{0x00FF00, "light green"},  NamedColor{0xFFFF00, "light cyan"},
    NamedColor{0x0000FF, "light red"},    NamedColor{0xFF00FF, "light magenta"},
    NamedColor{0x00FFFF, "light yellow"}, NamedColor{0xFFFFFF, "bright white"}};

// Squared, over the three bytes.
int Distance(Color first, Color second) {
    int distance = 0;
    for (const int shift : {0, 8, 16}) {
        const int difference = ((first >> shift) & 0xFF) - ((second >> shift) & 0xFF);
        distance += difference * difference;
    }
    return distance;
}

} // namespace

std::string LineInWords(int line) {
    if (line < 1 || line > Game.LineCount)
        return "";
    const LinePlace place = PlaceOf(line);
    return std::string(place.IsVertical ? "down" : "across") + ", row " +
           std::to_string(place.Row + 1) + ", column " + std::to_string(place.Column + 1);
}

std::string GhostLineInWords() {
    const std::string line = LineInWords(Game.GhostLine);
    return line.empty() ? line : line + ", " + EffectInWords(Game.GhostLine);
}

std::string ColorInWords(Color color) {
    return std::min_element(ClassicColors.begin(), ClassicColors.end(),
                            [color](const NamedColor& first, const NamedColor& second) {
                                return Distance(first.Value, color) < Distance(second.Value, color);
                            })
        ->Name;
}
