#include "display/words.h"

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
