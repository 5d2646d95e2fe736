#include "core/play/line_steps.h"

#include <cstdlib>
#include <limits>

#include "core/state/grid.h"

namespace {

constexpr int NoWay = std::numeric_limits<int>::max();

// The middle of a line, from the first point of the field, in halves of the distance between two
// points: only a horizontal line has an odd X.
struct Middle {
    int X, Y;
};

Middle MiddleOf(int line) {
    const LinePlace first = PlaceOf(line);
    return {2 * first.Column + (first.IsVertical ? 0 : 1),
            2 * first.Row + (first.IsVertical ? 1 : 0)};
}

int LineAt(Middle middle) {
    return LineAt(LinePlace{middle.X % 2 == 0, middle.Y / 2, middle.X / 2});
}

// The undrawn line of that orientation whose middle is reached at the lowest cost, 0 = none; of two
// the one with the lower number.
template <class Cost>
int CheapestLine(bool isVertical, Cost costOf) {
    const int first = isVertical ? Game.HorizontalLineCount + 1 : 1;
    const int last = isVertical ? Game.LineCount : Game.HorizontalLineCount;
    int cheapest = 0;
    int lowestCost = NoWay;
    for (int line = first; line <= last; ++line) {
        if (Game.Lines.at(line).Drawn != 0)
            continue;
        if (const int cost = costOf(MiddleOf(line)); cost < lowestCost) {
            lowestCost = cost;
            cheapest = line;
        }
    }
    return cheapest;
}

int NearestLine(bool isVertical, Middle from) {
    return CheapestLine(isVertical, [from](Middle to) {
        const int x = to.X - from.X;
        const int y = to.Y - from.Y;
        const bool hasSameFirstPoint = to.X / 2 == from.X / 2 && to.Y / 2 == from.Y / 2;
        return x * x + y * y - (hasSameFirstPoint ? 1 : 0);
    });
}

bool IsAlongRow(Direction direction) {
    return direction == Direction::Left || direction == Direction::Right;
}

// How far `to` lies in that direction; not above 0 when it lies on the other side.
int Forward(Middle from, Middle to, Direction direction) {
    const int way = IsAlongRow(direction) ? to.X - from.X : to.Y - from.Y;
    return direction == Direction::Right || direction == Direction::Down ? way : -way;
}

int Sideways(Middle from, Middle to, Direction direction) {
    return std::abs(IsAlongRow(direction) ? to.Y - from.Y : to.X - from.X);
}

bool IsUndrawn(Middle middle) {
    return Game.Lines.at(LineAt(middle)).Drawn == 0;
}

// Whether both rows have an undrawn line in the same column.
bool ShareColumn(Middle inRow, Middle inOtherRow) {
    for (int x = inRow.X % 2; x <= 2 * FieldColumns() - inRow.X % 2; x += 2)
        if (IsUndrawn({x, inRow.Y}) && IsUndrawn({x, inOtherRow.Y}))
            return true;
    return false;
}

} // namespace

int LineTowards(Direction direction, int line) {
    const Middle from = MiddleOf(line);
    const int next = CheapestLine(IsVertical(line), [&](Middle to) {
        const int forward = Forward(from, to, direction);
        return forward > 0 ? forward : NoWay;
    });
    if (next == 0)
        return 0;
    const Middle nextRow = MiddleOf(next);
    // No row may be passed over by all columns, or its lines might never be reached.
    const bool staysInNextRow = !IsAlongRow(direction) && !ShareColumn(from, nextRow);
    return CheapestLine(IsVertical(line), [&](Middle to) {
        const int forward = Forward(from, to, direction);
        if (forward <= 0 || (staysInNextRow && to.Y != nextRow.Y))
            return NoWay;
        const int sideways = Sideways(from, to, direction);
        const int behindStraightOn = sideways == 0 ? 0 : Game.LineCount;
        return behindStraightOn + forward + 2 * sideways;
    });
}

int LineAcross(int line) {
    return NearestLine(!IsVertical(line), MiddleOf(line));
}

int UndrawnLineNear(int line) {
    const int sameWay = NearestLine(IsVertical(line), MiddleOf(line));
    return sameWay != 0 ? sameWay : LineAcross(line);
}

int MiddleLine() {
    return LineAt(LinePlace{false, FieldRows() / 2, FieldColumns() / 2});
}
