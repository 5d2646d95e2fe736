#include "core/state/grid.h"

#include <algorithm>
#include <stdexcept>

int FieldColumns() {
    return (Game.FieldRight - Game.FieldLeft) / Game.PointSpacingX;
}

int FieldRows() {
    return (Game.FieldBottom - Game.FieldTop) / Game.PointSpacingY;
}

LinePlace PlaceOf(int line) {
    const int length = IsVertical(line) ? FieldRows() : FieldColumns();
    if (length == 0)
        throw std::out_of_range("a line lies nowhere without a field");
    if (!IsVertical(line))
        return {false, (line - 1) / length, (line - 1) % length};
    const int index = line - Game.HorizontalLineCount - 1;
    return {true, index % length, index / length};
}

int LineAt(LinePlace place) {
    if (!place.IsVertical)
        return place.Row * FieldColumns() + place.Column + 1;
    return Game.HorizontalLineCount + place.Column * FieldRows() + place.Row + 1;
}

int BoxAcross(int line, int box) {
    const auto [first, second] = BoxesBeside(line);
    return first == box ? second : first;
}

bool HasBoxBeside(int line, int sidesDrawn) {
    const auto [first, second] = BoxesBeside(line);
    return Game.Boxes.at(first).SidesDrawn == sidesDrawn ||
           Game.Boxes.at(second).SidesDrawn == sidesDrawn;
}

bool HasSide(int box, int line) {
    return FirstSide(box, [line](int side) { return side == line; }) != 0;
}

int FirstUndrawnSide(int box, int leftOut) {
    return FirstSide(
        box, [leftOut](int side) { return side != leftOut && Game.Lines.at(side).Drawn == 0; });
}
