// How well colours stand out from each other for the eye.
#pragma once

#include <QColor>

inline constexpr double ContrastOfText = 6; // small letters are read with ease
// To be recognised takes 3; and a little, for styles shade their bars.
inline constexpr double ContrastOfShapes = 3.2;

// From 1, for equal ones, to 21, for black and white: the ratio of their luminances.
double Contrast(const QColor& one, const QColor& other);

// The first colour on the way from one to the other that has such a contrast to its background; the
// other one where none has.
QColor MixedUntilSeen(const QColor& from, const QColor& to, const QColor& background,
                      double contrast);

// Black or white.
QColor StrongestOn(const QColor& background);
