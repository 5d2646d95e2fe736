// Between the game's colours and the toolkit's.
#pragma once

#include <QColor>

#include "platform/color.h"

// What lies outside the 24 bits of a colour is ignored.
inline QColor ToQColor(Color color) {
    return {color & 0xFF, (color >> 8) & 0xFF, (color >> 16) & 0xFF};
}

inline Color FromQColor(const QColor& color) {
    return color.red() | color.green() << 8 | color.blue() << 16;
}
