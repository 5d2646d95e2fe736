// Icons drawn from SVG at the exact size and scale they are shown at.
#pragma once

#include <QIcon>
#include <QString>

// An icon whose black strokes take the colour of the desktop's button texts, so that it reads on
// light and dark desktops; dimmed, without its accent, while its command is disabled.
QIcon LineIcon(const QString& svgFile);

// An icon in its own colours.
QIcon ColoredIcon(const QString& svgFile);
