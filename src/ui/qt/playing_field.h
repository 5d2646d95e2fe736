// The picture that the field is drawn on, as the window shows it.
#pragma once

#include <QWidget>
#include <optional>

#include "platform/desktop.h"

class QLabel;

class PlayingField : public QWidget {
    Q_OBJECT

public:
    explicit PlayingField(QWidget* parent);

    // Shows background and pointer as the controls' data have them.
    void ShowControls();

    PointerPlace PlaceOfPointer();

    // Says a text to a screen reader as soon as the keyboard is on the field. Only the latest of
    // what waits is said.
    void Say(const QString& text);

signals:
    // The screen has other pixels than the picture, or the picture another size.
    void PictureOutdated();

protected:
    void focusInEvent(QFocusEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;

private:
    void SayWhatWaits();
    void ShowInvitation(bool isShown);
    void PaintFocusFrame(QPainter& painter) const;
    void MarkFocus(bool isMarked);

    QLabel* lblInvitation; // over a field on which there is no game
    QString Unsaid;
    // Of a pointer that lies still, the very place that was told.
    PointerPlace PlaceOf(const QMouseEvent& event);

    bool FocusIsMarked = false;         // for who uses the keyboard
    std::optional<QPoint> StillPointer; // on the screen, as long as it lies where it was asked for
};
