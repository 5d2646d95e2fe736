#include "ui/qt/playing_field.h"

#include <QApplication>
#include <QMouseEvent>
#include <QPainter>
#include <utility>

#include "core/state/game_state.h"
#include "platform/qt/field_picture.h"
#include "platform/qt/qt_color.h"
#include "ui/commands.h"
#include "ui/qt/accessible_field.h"

PlayingField::PlayingField(QWidget* parent) : QWidget(parent) {
    setObjectName("picPlayingField");
    setAccessibleName("Playing field");
    setAccessibleDescription(
        "Point at the gap between two points and press to draw a line; or the arrow keys move the "
        "ghost line, Space turns it, Return draws it.");
    setFocusPolicy(Qt::StrongFocus);
    MakeFieldAccessible();
    setAttribute(Qt::WA_OpaquePaintEvent);
    setMouseTracking(true);
    TheFieldPicture.WhenChanged = [this](const QRect& changed) { update(changed); };
}

void PlayingField::ShowControls() {
    const bool isBusy = frmQuibsMain.picPlayingField.MousePointer == PointerShape::Hourglass;
    setCursor(isBusy ? Qt::WaitCursor : Qt::ArrowCursor);
    update();
}

void PlayingField::Say(const QString& text) {
    Unsaid = text;
    SayWhatWaits();
}

void PlayingField::SayWhatWaits() {
    if (!Unsaid.isEmpty() && hasFocus() && QApplication::activePopupWidget() == nullptr)
        SayAtField(this, std::exchange(Unsaid, QString()));
}

void PlayingField::focusInEvent(QFocusEvent* event) {
    QWidget::focusInEvent(event);
    // After what the toolkit itself tells about the focus, which would be heard instead.
    QMetaObject::invokeMethod(this, &PlayingField::SayWhatWaits, Qt::QueuedConnection);
}

void PlayingField::paintEvent(QPaintEvent* /*event*/) {
    if (TheFieldPicture.PixelRatio() != devicePixelRatioF())
        emit PictureOutdated();
    QPainter painter(this);
    painter.fillRect(rect(), ToQColor(frmQuibsMain.picPlayingField.BackColor));
    const qreal ratio = TheFieldPicture.PixelRatio();
    for (const QImage* layer : TheFieldPicture.Layers())
        painter.drawImage(QRectF(0, 0, layer->width() / ratio, layer->height() / ratio), *layer);
}

void PlayingField::mousePressEvent(QMouseEvent* /*event*/) {
    RunGuarded(picPlayingField_MouseDown);
}

void PlayingField::mouseMoveEvent(QMouseEvent* event) {
    const QPointF twips(event->position().x() * Game.TwipsPerPixelX,
                        event->position().y() * Game.TwipsPerPixelY);
    RunGuarded([twips] {
        picPlayingField_MouseMove(static_cast<float>(twips.x()), static_cast<float>(twips.y()));
    });
}
