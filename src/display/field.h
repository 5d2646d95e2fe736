// The playing field: where its points lie on the picture, and how its lines and boxes are drawn.
#pragma once

#include "platform/color.h"

inline constexpr int PixelsBetweenPoints = 25;

// Puts neighbouring points so many pixels apart, as in every new game; an opened one brings its own
// spacing.
void ResetPointSpacing();

// How many boxes of `spacing` fit into a width or height of the picture, in twips, with one spacing
// kept free as margin; and how many of the next new game do.
int BoxesThatFit(int pictureSize, int spacing);
int ColumnsThatFit();
int RowsThatFit();

// Sets the four edges of a field of so many boxes, centred on the picture.
void PlaceField(int columns, int rows);

// Clears the picture, plots the points of a new field and fills the coordinates and neighbours of
// `Lines` and `Boxes`. The counts and edges are set and the tables sized and cleared before.
void BuildField();

// Moves the field to the centre of the picture and draws everything again but ghost lines, which
// are forgotten. False, and nothing is touched, when the field no longer fits. While there is no
// whole board the picture is empty.
bool RedrawField();

void DrawLine(int line, Color color);

// Ghost lines stop a pixel short of their end points.
void DrawGhostLine(int line, Color color);
void EraseGhostLine(int line);

// Fills a claimed box in its owner's colour, three pixels inside its lines. Throws
// std::out_of_range when it has no owner.
void FillBox(int box);
