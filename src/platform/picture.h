// The picture that the playing field is drawn on. All coordinates are twips from its top-left
// corner; what lies outside is clipped. Nothing here blocks or yields.
#pragma once

#include "platform/color.h"

// Twips to one logical pixel, across and down, from 1. Set once, before anything is drawn.
void SetPictureScale(int twipsPerPixelX, int twipsPerPixelY);

// Inner size in twips, 0 to LargestPicture.
inline constexpr int LargestPicture = 32767;
int PictureWidth();
int PictureHeight();

// Takes everything off the picture, so that its background shows.
void ClearPicture();

// Plots one point: a dot of three by three pixels, or so many that there is a middle one, around
// (x, y). It stays on top of all lines and boxes, whenever they are drawn or erased.
void PlotPoint(int x, int y, Color color);

// Draws a horizontal or vertical line, a pixel wide, from one end point to the other, both
// included.
void DrawPictureLine(int fromX, int fromY, int toX, int toY, Color color);

// Gives the pixels of such a line back to the background.
void ErasePictureLine(int fromX, int fromY, int toX, int toY);

// Fills the rectangle between two corners, both included.
void FillPictureBox(int left, int top, int right, int bottom, Color color);
