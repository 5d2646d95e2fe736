// A small rectangle filled with a colour. Its outline keeps it visible on any background.
#pragma once

#include <QLabel>

#include "platform/controls.h"

class Swatch : public QLabel {
    Q_OBJECT

public:
    // A screen reader tells the name and the color in words: "Color of player 1: light red".
    Swatch(const QString& objectName, QString name, QWidget* parent);

    Color FillColor() const { return Shown.FillColor; }
    void SetFillColor(Color color);

    // A hidden swatch keeps its place.
    void Show(const ::Shape& shape); // not a frame's

    // As high as a line of text.
    QSize sizeHint() const override;
    QSize minimumSizeHint() const override { return sizeHint(); } // a label keeps an old font's

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    void TellColor();

    QString Name;
    ::Shape Shown{Black, true};
};

// Lets the user pick a colour for the swatch in a dialog of its own; returns at once.
void PickColor(Swatch* swatch);
