#include "display/field.h"

#include <cmath>

#include "core/state/grid.h"
#include "core/state/layout.h"
#include "platform/picture.h"

namespace {

Integer CentredStart(int pictureSize, int fieldSize) {
    return RoundToInteger((pictureSize - fieldSize) / 2.0);
}

struct EndPoints {
    int FromX, FromY, ToX, ToY;
};

EndPoints EndPointsOf(int line) {
    const Line& drawn = Game.Lines.at(line);
    if (IsVertical(line))
        return {drawn.X, drawn.Y, drawn.X, drawn.Y + Game.PointSpacingY};
    return {drawn.X, drawn.Y, drawn.X + Game.PointSpacingX, drawn.Y};
}

EndPoints GhostEndPointsOf(int line) {
    EndPoints ends = EndPointsOf(line);
    if (IsVertical(line)) {
        ends.FromY += Game.TwipsPerPixelY;
        ends.ToY -= Game.TwipsPerPixelY;
    } else {
        ends.FromX += Game.TwipsPerPixelX;
        ends.ToX -= Game.TwipsPerPixelX;
    }
    return ends;
}

void PlotPoints() {
    for (int x = Game.FieldLeft; x <= Game.FieldRight; x += Game.PointSpacingX)
        for (int y = Game.FieldTop; y <= Game.FieldBottom; y += Game.PointSpacingY)
            PlotPoint(x, y, Game.PointColor);
}

} // namespace

void ResetPointSpacing() {
    Game.PointSpacingX = ToInteger(PixelsBetweenPoints * Game.TwipsPerPixelX);
    Game.PointSpacingY = ToInteger(PixelsBetweenPoints * Game.TwipsPerPixelY);
}

int BoxesThatFit(int pictureSize, int spacing) {
    return static_cast<int>(std::floor(static_cast<double>(pictureSize - spacing) / spacing));
}

int ColumnsThatFit() {
    return BoxesThatFit(PictureWidth(), PixelsBetweenPoints * Game.TwipsPerPixelX);
}

int RowsThatFit() {
    return BoxesThatFit(PictureHeight(), PixelsBetweenPoints * Game.TwipsPerPixelY);
}

void PlaceField(int columns, int rows) {
    const int width = columns * Game.PointSpacingX;
    const int height = rows * Game.PointSpacingY;
    Game.FieldLeft = CentredStart(PictureWidth(), width);
    Game.FieldRight = ToInteger(Game.FieldLeft + width);
    Game.FieldTop = CentredStart(PictureHeight(), height);
    Game.FieldBottom = ToInteger(Game.FieldTop + height);
}

void BuildField() {
    ClearPicture();
    PlotPoints();
    LayOut(Game);
}

bool RedrawField() {
    if (!BoardIsWhole()) {
        ClearPicture();
        return true;
    }
    const int newLeft = CentredStart(PictureWidth(), Game.FieldRight - Game.FieldLeft);
    const int newTop = CentredStart(PictureHeight(), Game.FieldBottom - Game.FieldTop);
    if (newLeft < 0 || newTop < 0)
        return false;
    const int movedX = newLeft - Game.FieldLeft;
    const int movedY = newTop - Game.FieldTop;
    PlaceField(FieldColumns(), FieldRows());

    ClearPicture();
    Game.GhostLine = 0;
    Game.ComputerGhostLine = 0;
    PlotPoints();
    for (int line = 1; line <= Game.LineCount; ++line) {
        Line& moved = Game.Lines.at(line);
        moved.X = ToInteger(moved.X + movedX);
        moved.Y = ToInteger(moved.Y + movedY);
        PlotPoint(moved.X, moved.Y, Game.PointColor);
        if (moved.Drawn != 0)
            DrawLine(line, Game.PointColor);
    }
    for (int box = 1; box <= Game.BoxCount; ++box)
        if (Game.Boxes.at(box).SidesDrawn == 4)
            FillBox(box);
    return true;
}

void DrawLine(int line, Color color) {
    const EndPoints ends = EndPointsOf(line);
    DrawPictureLine(ends.FromX, ends.FromY, ends.ToX, ends.ToY, color);
}

void DrawGhostLine(int line, Color color) {
    const EndPoints ends = GhostEndPointsOf(line);
    DrawPictureLine(ends.FromX, ends.FromY, ends.ToX, ends.ToY, color);
}

void EraseGhostLine(int line) {
    const EndPoints ends = GhostEndPointsOf(line);
    ErasePictureLine(ends.FromX, ends.FromY, ends.ToX, ends.ToY);
}

void FillBox(int box) {
    const Box& filled = Game.Boxes.at(box);
    const Color color = Game.PlayerColor.at(filled.Owner);
    const Line& top = Game.Lines.at(filled.Sides.at(Top));
    const Line& bottom = Game.Lines.at(filled.Sides.at(Bottom));
    const int gapX = 3 * Game.TwipsPerPixelX;
    const int gapY = 3 * Game.TwipsPerPixelY;
    FillPictureBox(top.X + gapX, top.Y + gapY, bottom.X + Game.PointSpacingX - gapX,
                   bottom.Y - gapY, color);
}
