#include "core/play/pointer_input.h"

#include <algorithm>
#include <cmath>
#include <utility>

#include "ai/move_selection.h"
#include "core/play/review.h"
#include "core/state/grid.h"
#include "display/field.h"
#include "platform/desktop.h"

namespace {

// Distances in pixels. The two bounds along a line differ on purpose.
constexpr int Reach = 4;         // from the row or column of points, and outside the field
constexpr int ClearOfFirst = 7;  // from a line's first point
constexpr int ClearOfSecond = 6; // from its second point

bool PersonIsAwaited() {
    return Game.GameInPlay && !Game.GamePaused && !Game.QuitRequested && !Game.MouseDownSeen &&
           IsPlayer(Game.CurrentPlayer) && !IsComputer(Game.CurrentPlayer);
}

void RestoreComputerLine() {
    if (Game.ComputerGhostLine == 0)
        return;
    DrawLine(Game.ComputerGhostLine, Game.PointColor);
    Game.ComputerGhostLine = 0;
}

// One coordinate of the pointer within the field.
struct CellPosition {
    int Cell;   // from 1
    int Offset; // whole pixels from the cell's first points
    int Size;   // of the cell, in pixels

    bool IsAtPoints() const { return Offset <= Reach || Offset >= Size - Reach; }
    bool IsClearOfPoints() const {
        return Offset >= ClearOfFirst && Offset <= Size - ClearOfSecond;
    }
    int NearestPoints() const { return Offset >= Size - Reach ? Cell + 1 : Cell; }
};

bool IsInReach(float position, int first, int last, int pixel) {
    const auto reach = static_cast<float>(Reach * pixel);
    return position > static_cast<float>(first) - reach &&
           position < static_cast<float>(last) + reach;
}

CellPosition Locate(float position, int first, int spacing, int pixel) {
    const double inside = std::max(0.0, static_cast<double>(position) - first);
    return {static_cast<int>((inside + spacing) / spacing),
            RoundToInteger(std::fmod(inside, spacing) / pixel), spacing / pixel};
}

// The line at (x, y), drawn or not; 0 = none. The horizontal one is tried first and wins.
int LineNear(float x, float y) {
    if (!IsInReach(x, Game.FieldLeft, Game.FieldRight, Game.TwipsPerPixelX) ||
        !IsInReach(y, Game.FieldTop, Game.FieldBottom, Game.TwipsPerPixelY))
        return 0;
    const CellPosition across = Locate(x, Game.FieldLeft, Game.PointSpacingX, Game.TwipsPerPixelX);
    const CellPosition down = Locate(y, Game.FieldTop, Game.PointSpacingY, Game.TwipsPerPixelY);
    if (across.IsClearOfPoints() && down.IsAtPoints())
        return LineAt({false, down.NearestPoints() - 1, across.Cell - 1});
    if (down.IsClearOfPoints() && across.IsAtPoints())
        return LineAt({true, down.Cell - 1, across.NearestPoints() - 1});
    return 0;
}

void PreviewLine(int line) {
    if (line == 0 || Game.Lines.at(line).Drawn != 0)
        return;
    Game.GhostLine = Game.LastGhostLine = ToInteger(line);
    DrawGhostLine(line, Game.GhostColor);
}

// The person looks elsewhere: the preview and the computer's line have been seen.
void PreviewInstead(int line) {
    RemoveGhostLine();
    RestoreComputerLine();
    PreviewLine(line);
    TellGhostLine();
}

// A line that is shown without the pointer stays as long as that lies still.
void LetPointerRest() {
    const PointerPlace place = PlaceOfPointer();
    Game.PointerX = place.X;
    Game.PointerY = place.Y;
}

template <class Step>
void StepGhostLine(Step leadFrom) {
    if (!PersonIsAwaited() || Game.HintMode)
        return;
    const int last = Game.LastGhostLine != 0 ? Game.LastGhostLine : MiddleLine();
    const int line = Game.GhostLine != 0 ? leadFrom(Game.GhostLine) : UndrawnLineNear(last);
    if (line == 0)
        return TellNoOtherLine();
    LetPointerRest();
    PreviewInstead(line);
}

// The line that a computer would draw in the person's place.
int AskComputerForHint() {
    const auto takeBack = [] {
        Game.HintMode = false;
        return std::exchange(Game.ChosenLine, Integer{0});
    };
    Game.HintMode = true;
    try {
        ChooseComputerMove();
    } catch (...) {
        takeBack();
        throw;
    }
    return takeBack();
}

} // namespace

void MovePointer(float x, float y) {
    if (x == Game.PointerX && y == Game.PointerY)
        return;
    Game.PointerX = x;
    Game.PointerY = y;
    ShowGhostLine(x, y);
}

void PressAt(float x, float y) {
    MovePointer(x, y);
    PressGhostLine();
}

void ShowGhostLine(float x, float y) {
    if (Game.HintMode)
        return;
    PreviewInstead(PersonIsAwaited() ? LineNear(x, y) : 0);
}

void MoveGhostLine(Direction direction) {
    StepGhostLine([direction](int line) { return LineTowards(direction, line); });
}

void TurnGhostLine() {
    StepGhostLine(LineAcross);
}

void RemoveGhostLine() {
    if (Game.GhostLine == 0)
        return;
    if (Game.Lines.at(Game.GhostLine).Drawn == 0)
        EraseGhostLine(Game.GhostLine);
    Game.GhostLine = 0;
}

void PressGhostLine() {
    if (!PersonIsAwaited() || Game.GhostLine == 0)
        return;
    Game.ChosenLine = Game.GhostLine;
    Game.GhostLine = 0;
    Game.MouseDownSeen = true;
}

void ShowHint() {
    if (!PersonIsAwaited() || Game.HintMode || Game.ChosenLine != 0)
        return;
    RemoveGhostLine();
    const int hint = AskComputerForHint();
    // On a large field the choice yields, and the person may have paused or quit meanwhile.
    LetPointerRest();
    if (PersonIsAwaited())
        PreviewLine(hint);
    Game.Told.GhostLine = 0; // a hint is told even if it is the line shown before
    TellGhostLine();
}
