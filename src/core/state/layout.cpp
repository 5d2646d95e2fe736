#include "core/state/layout.h"

#include "core/state/grid.h"

namespace {

bool CountsMatchField() {
    const int columns = FieldColumns();
    const int rows = FieldRows();
    // The first comparisons keep the products below within an int.
    return rows > 0 && rows <= Game.BoxCount && Game.BoxCount == columns * rows &&
           Game.HorizontalLineCount == columns * (rows + 1) &&
           Game.LineCount == Game.HorizontalLineCount + (columns + 1) * rows &&
           Game.Boxes.size() == static_cast<std::size_t>(Game.BoxCount) + 1 &&
           Game.Lines.size() == static_cast<std::size_t>(Game.LineCount) + 1;
}

// A side of a box, and how much higher the opposite side's number is.
struct SidePair {
    Side Near, Far;
    int Step;
};

// Enters a line that starts at (x, y) and is the near side of `box`, 0 = none.
void EnterLine(Board& board, int line, int x, int y, int box, const SidePair& sides) {
    board.Lines.at(line).X = ToInteger(x);
    board.Lines.at(line).Y = ToInteger(y);
    if (box == 0)
        return;
    board.Boxes.at(box).Sides.at(sides.Near) = ToInteger(line);
    board.Boxes.at(box).Sides.at(sides.Far) = ToInteger(line + sides.Step);
    board.Lines.at(line).SecondBox = ToInteger(box);
    board.Lines.at(line + sides.Step).FirstBox = ToInteger(box);
}

} // namespace

void LayOut(Board& board) {
    board.Lines.assign(board.Lines.size(), Line{});
    board.Boxes.assign(board.Boxes.size(), Box{});
    board.PlayerScore = {};
    board.LinesDrawn = board.BoxesClaimed = 0;
    const int columns = FieldColumns();
    const int rows = FieldRows();
    for (int column = 0; column <= columns; ++column) {
        for (int row = 0; row <= rows; ++row) {
            const int x = board.FieldLeft + column * board.PointSpacingX;
            const int y = board.FieldTop + row * board.PointSpacingY;
            const int top = LineAt({false, row, column}); // which its box is numbered after
            const int box = column < columns && row < rows ? top : 0;
            if (column < columns)
                EnterLine(board, top, x, y, box, {Top, Bottom, columns});
            if (row < rows)
                EnterLine(board, LineAt({true, row, column}), x, y, box, {Left, Right, rows});
        }
    }
}

bool BoardIsWhole() {
    if (!CountsMatchField())
        return false;
    Board whole = Game;
    LayOut(whole);
    for (int line = 1; line <= Game.LineCount; ++line)
        if ((whole.Lines.at(line).Drawn = Game.Lines.at(line).Drawn) != 0)
            ++whole.LinesDrawn;
    for (int number = 1; number <= Game.BoxCount; ++number) {
        Box& box = whole.Boxes.at(number);
        for (const Integer side : box.Sides)
            if (whole.Lines.at(side).Drawn != 0)
                ++box.SidesDrawn;
        if (box.SidesDrawn < 4)
            continue;
        box.Owner = Game.Boxes.at(number).Owner;
        if (!IsPlayer(box.Owner))
            return false;
        ++whole.PlayerScore.at(box.Owner);
        ++whole.BoxesClaimed;
    }
    return whole == Game;
}
