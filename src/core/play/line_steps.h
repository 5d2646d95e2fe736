// Where the keys lead on the field: from one line to the next that can be drawn. For a field whose
// tables match it.
#pragma once

enum class Direction { Left, Up, Right, Down };

// The undrawn line of the same orientation that an arrow leads to from `line`: the next one
// straight on, or else the nearest on that side. 0 = none. Steps up or down and then to the left or
// right reach every undrawn line of that orientation.
int LineTowards(Direction direction, int line);

// The undrawn line of the other orientation nearest to `line`, 0 = none; preferably the one with
// the same first point, so that turning twice leads back.
int LineAcross(int line);

// The undrawn line nearest to `line`, which may be that line itself, and of the same orientation as
// long as one is left. 0 = none.
int UndrawnLineNear(int line);

// A line in the middle of the field, drawn or not.
int MiddleLine();
