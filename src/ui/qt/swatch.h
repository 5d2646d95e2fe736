// A small rectangle filled with a colour. Its outline keeps it visible on any background.
#pragma once

#include <QWidget>

#include "platform/controls.h"

class Swatch : public QWidget {
    Q_OBJECT

public:
    Swatch(const QString& objectName, const QString& accessibleName, QWidget* parent);

    Color FillColor() const { return Shown.FillColor; }
    void SetFillColor(Color color);

    // A hidden swatch keeps its place.
    void Show(const Shape& shape);

    // As high as a line of text.
    QSize sizeHint() const override;

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    Shape Shown{Black, true};
};

// Lets the user pick a colour for the swatch in a dialog of its own; returns at once.
void PickColor(Swatch* swatch);
