#include "display/words.h"

#include <array>

#include "core/state/grid.h"

namespace {

constexpr std::array SideNames{"top", "bottom", "left", "right"};

std::string PlaceInWords(int row, int column) {
    return "row " + std::to_string(row + 1) + ", column " + std::to_string(column + 1);
}

} // namespace

std::string LineInWords(int line) {
    if (line < 1 || line > Game.LineCount)
        return "";
    const LinePlace place = PlaceOf(line);
    return std::string(place.IsVertical ? "down, " : "across, ") +
           PlaceInWords(place.Row, place.Column);
}

std::string PlaceOfBoxInWords(int box) {
    const LinePlace top = PlaceOf(Game.Boxes.at(box).Sides.at(Top));
    return PlaceInWords(top.Row, top.Column);
}

std::string SidesInWords(int box) {
    const Box& told = Game.Boxes.at(box);
    if (IsPlayer(told.Owner))
        return Game.PlayerName.at(told.Owner) + "'s";
    std::string drawn;
    int count = 0;
    for (const Side side : {Top, Bottom, Left, Right}) {
        if (Game.Lines.at(told.Sides.at(side)).Drawn == 0)
            continue;
        drawn += (++count == 1 ? ": " : ", ") + std::string(SideNames.at(side));
    }
    return (count == 0 ? "no" : std::to_string(count)) + (count == 1 ? " side" : " sides") + drawn;
}

std::string BoxesInWords(int count) {
    return count == 1 ? "a box" : std::to_string(count) + " boxes";
}
