// Which lines and boxes are neighbours, and where a line lies. Horizontal lines come first, row by
// row; then vertical lines, column by column. A box has the number of its top line. 0 is none.
#pragma once

#include <array>

#include "core/state/game_state.h"

// Columns and rows of the field on screen. The settings `GridColumns` and `GridRows` belong to the
// next game and may differ. 0 while there is no field.
int FieldColumns();
int FieldRows();

// Where a line's first point lies, the left or the top one: its row and column, from 0.
struct LinePlace {
    bool IsVertical;
    int Row, Column;
};

LinePlace PlaceOf(int line); // an error while there is no field
int LineAt(LinePlace place);

inline bool IsVertical(int line) {
    return line > Game.HorizontalLineCount;
}

// The boxes above and below a line, or to its left and right.
inline std::array<Integer, 2> BoxesBeside(int line) {
    return {Game.Lines.at(line).FirstBox, Game.Lines.at(line).SecondBox};
}

// The box beyond a line of `box`.
int BoxAcross(int line, int box);

// Whether a box with so many sides drawn lies beside the line.
bool HasBoxBeside(int line, int sidesDrawn);

bool HasSide(int box, int line);

// The first side of `box` of which `isWanted` is true, from top to right.
template <class Condition>
int FirstSide(int box, Condition isWanted) {
    for (const Integer side : Game.Boxes.at(box).Sides)
        if (isWanted(side))
            return side;
    return 0;
}

// The first one still to be drawn, but for `leftOut`.
int FirstUndrawnSide(int box, int leftOut = 0);
