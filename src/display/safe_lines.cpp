#include "display/safe_lines.h"

#include <vector>

#include "base/counted_list.h"
#include "base/random.h"
#include "core/state/grid.h"
#include "display/field.h"
#include "display/status_panel.h"

namespace {

// The safe lines in any order, at first all. Each has its place in the list, so that a line that
// stops being safe is found and taken out at once and a whole opening costs one pass over the
// board.
class SafeLineList {
public:
    SafeLineList() : PositionOf(Game.Lines.size()) {
        Lines.Resize(Game.LineCount);
        for (int line = 1; line <= Game.LineCount; ++line) {
            Lines.Append(ToInteger(line));
            PositionOf.at(line) = Lines.Count();
        }
    }

    bool IsEmpty() const { return Lines.Count() == 0; }
    Integer Pick() const { return Lines.at(RandomPick(Lines.Count())); }

    void Remove(int line) {
        const Integer position = PositionOf.at(line);
        if (position == 0)
            return;
        const Integer last = Lines.Last();
        Lines.at(position) = last;
        PositionOf.at(last) = position;
        PositionOf.at(line) = 0;
        Lines.Shorten(ToInteger(Lines.Count() - 1));
    }

private:
    CountedList<Integer> Lines;
    std::vector<Integer> PositionOf; // 0 = not in the list
};

void AddSide(int box, SafeLineList& safeLines) {
    if (box == 0)
        return;
    Box& neighbour = Game.Boxes.at(box);
    Increase(neighbour.SidesDrawn, 1);
    if (neighbour.SidesDrawn == 2)
        for (const Integer side : neighbour.Sides)
            safeLines.Remove(side);
}

} // namespace

bool IsSafeLine(int line) {
    const auto [first, second] = BoxesBeside(line);
    return Game.Boxes.at(first).SidesDrawn < 2 && Game.Boxes.at(second).SidesDrawn < 2;
}

void DrawSafeLines() {
    SafeLineList safeLines;
    while (!safeLines.IsEmpty()) {
        const Integer line = safeLines.Pick();
        safeLines.Remove(line);
        Game.Lines.at(line).Drawn = line;
        Increase(Game.LinesDrawn, 1);
        DrawLine(line, Game.PointColor);
        for (const Integer box : BoxesBeside(line))
            AddSide(box, safeLines);
    }
    Game.ChosenLine = 0;
    ShowLinesStatus();
}
