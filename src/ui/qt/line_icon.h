// Icons of lines, from pictures that were made of SVG in the sizes of usual screens.
#pragma once

#include <QIcon>
#include <QString>

// An icon whose black strokes take the colour of the desktop's button texts, and whose accent takes
// as much of it as it needs, so that it reads on light and dark desktops; dimmed, without its
// accent, while its command is disabled.
QIcon LineIcon(const QString& name);
