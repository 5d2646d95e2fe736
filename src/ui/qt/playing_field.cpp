#include "ui/qt/playing_field.h"

#include <QMouseEvent>
#include <QPainter>

#include "core/state/game_state.h"
#include "platform/qt/field_picture.h"
#include "platform/qt/qt_color.h"
#include "ui/commands.h"

PlayingField::PlayingField(QWidget* parent) : QWidget(parent) {
    setObjectName("picPlayingField");
    setAccessibleName("Playing field");
    setAccessibleDescription("Point at the gap between two points and press to draw a line.");
    setAttribute(Qt::WA_OpaquePaintEvent);
    setMouseTracking(true);
    TheFieldPicture.WhenChanged = [this](const QRect& changed) { update(changed); };
}

void PlayingField::ShowControls() {
    const bool isBusy = frmQuibsMain.picPlayingField.MousePointer == PointerShape::Hourglass;
    setCursor(isBusy ? Qt::WaitCursor : Qt::ArrowCursor);
    update();
}

void PlayingField::paintEvent(QPaintEvent* /*event*/) {
    if (TheFieldPicture.ScreenPixelRatio() != devicePixelRatioF())
        emit PictureOutdated();
    QPainter painter(this);
    painter.fillRect(rect(), ToQColor(frmQuibsMain.picPlayingField.BackColor));
    const QImage& image = TheFieldPicture.Image();
    const qreal ratio = TheFieldPicture.PixelRatio();
    // A picture that was drawn for a screen of another scale loses no line.
    painter.setRenderHint(QPainter::SmoothPixmapTransform, ratio != devicePixelRatioF());
    painter.drawImage(QRectF(0, 0, image.width() / ratio, image.height() / ratio), image);
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
