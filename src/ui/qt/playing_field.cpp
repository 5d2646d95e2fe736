#include "ui/qt/playing_field.h"

#include <QApplication>
#include <QCursor>
#include <QKeyEvent>
#include <QLabel>
#include <QMouseEvent>
#include <QPainter>
#include <QVBoxLayout>
#include <utility>

#include "core/state/game_state.h"
#include "platform/qt/field_picture.h"
#include "platform/qt/qt_color.h"
#include "ui/commands.h"
#include "ui/qt/contrast.h"
#include "ui/qt/spoken_widgets.h"

namespace {

std::optional<FieldKey> FieldKeyOf(const QKeyEvent& event) {
    if ((event.modifiers() & (Qt::ControlModifier | Qt::AltModifier | Qt::MetaModifier)) != 0)
        return std::nullopt;
    const bool asks = (event.modifiers() & Qt::ShiftModifier) != 0;
    switch (event.key()) {
    case Qt::Key_Left:
        return asks ? FieldKey::TellBoxLeft : FieldKey::Left;
    case Qt::Key_Up:
        return asks ? FieldKey::TellBoxAbove : FieldKey::Up;
    case Qt::Key_Right:
        return asks ? FieldKey::TellBoxRight : FieldKey::Right;
    case Qt::Key_Down:
        return asks ? FieldKey::TellBoxBelow : FieldKey::Down;
    case Qt::Key_Home:
        return FieldKey::TellPlace;
    case Qt::Key_End:
        return FieldKey::TellStanding;
    case Qt::Key_Space:
        return FieldKey::Turn;
    case Qt::Key_Return:
    case Qt::Key_Enter:
        return FieldKey::Draw;
    default:
        return std::nullopt;
    }
}

PointerPlace InTwips(QPointF place) {
    return {static_cast<float>(place.x() * Game.TwipsPerPixelX),
            static_cast<float>(place.y() * Game.TwipsPerPixelY)};
}

} // namespace

PlayingField::PlayingField(QWidget* parent) : QWidget(parent), lblInvitation(new QLabel(this)) {
    MakeWidgetsSpeak(); // before a name is set, which a screen reader asks for at once
    setObjectName("picPlayingField");
    setAccessibleName("Playing field");
    lblInvitation->setObjectName("lblInvitation");
    lblInvitation->setText("Ctrl+T starts a game, Ctrl+P makes you a player");
    lblInvitation->setAlignment(Qt::AlignCenter);
    lblInvitation->setWordWrap(true);
    (new QVBoxLayout(this))->addWidget(lblInvitation);
    setFocusPolicy(Qt::StrongFocus);
    setAttribute(Qt::WA_OpaquePaintEvent);
    setMouseTracking(true);
    TheFieldPicture.WhenChanged = [this](const QRect& changed) { update(changed); };
}

void PlayingField::ShowControls() {
    const bool isBusy = frmQuibsMain.picPlayingField.MousePointer == PointerShape::Hourglass;
    setCursor(isBusy ? Qt::WaitCursor : Qt::ArrowCursor);
    ShowInvitation(Game.BoxCount == 0);
    update();
}

void PlayingField::ShowInvitation(bool isShown) {
    if (isShown) {
        const QColor background = ToQColor(frmQuibsMain.picPlayingField.BackColor);
        QPalette quiet;
        quiet.setColor(QPalette::WindowText, MixedUntilSeen(background, StrongestOn(background),
                                                            background, ContrastOfText));
        lblInvitation->setPalette(quiet);
    }
    lblInvitation->setVisible(isShown);
}

PointerPlace PlayingField::PlaceOfPointer() {
    StillPointer = QCursor::pos();
    return InTwips(mapFromGlobal(*StillPointer));
}

// Events tell fractions of a pixel on an enlarged screen, the desktop when asked does not.
PointerPlace PlayingField::PlaceOf(const QMouseEvent& event) {
    if (event.globalPosition().toPoint() == StillPointer)
        return InTwips(mapFromGlobal(*StillPointer));
    StillPointer.reset();
    return InTwips(event.position());
}

void PlayingField::Say(const QString& text) {
    Unsaid = text;
    SayWhatWaits();
}

void PlayingField::SayWhatWaits() {
    if (!Unsaid.isEmpty() && hasFocus() && QApplication::activePopupWidget() == nullptr)
        SayAt(this, std::exchange(Unsaid, QString()));
}

void PlayingField::focusInEvent(QFocusEvent* event) {
    if (event->reason() == Qt::TabFocusReason || event->reason() == Qt::BacktabFocusReason)
        FocusIsMarked = true;
    if (FocusIsMarked)
        update();
    // After what the toolkit itself tells about the focus, which would be heard instead.
    QMetaObject::invokeMethod(this, &PlayingField::SayWhatWaits, Qt::QueuedConnection);
}

void PlayingField::MarkFocus(bool isMarked) {
    if (FocusIsMarked == isMarked)
        return;
    FocusIsMarked = isMarked;
    update();
}

void PlayingField::PaintFocusFrame(QPainter& painter) const {
    const QColor background = ToQColor(frmQuibsMain.picPlayingField.BackColor);
    const QColor color = MixedUntilSeen(palette().color(QPalette::Highlight),
                                        StrongestOn(background), background, ContrastOfShapes);
    constexpr qreal width = 2;
    painter.setPen(QPen(color, width, Qt::SolidLine, Qt::SquareCap, Qt::MiterJoin));
    painter.drawRect(QRectF(rect()).adjusted(width / 2, width / 2, -width / 2, -width / 2));
}

void PlayingField::paintEvent(QPaintEvent* /*event*/) {
    if (TheFieldPicture.ScreenPixelRatio() != devicePixelRatioF())
        emit PictureOutdated();
    QPainter painter(this);
    painter.fillRect(rect(), ToQColor(frmQuibsMain.picPlayingField.BackColor));
    const qreal ratio = TheFieldPicture.PixelRatio();
    // A picture that was drawn for a screen of another scale loses no line.
    painter.setRenderHint(QPainter::SmoothPixmapTransform, ratio != devicePixelRatioF());
    for (const QImage* layer : TheFieldPicture.Layers())
        painter.drawImage(QRectF(0, 0, layer->width() / ratio, layer->height() / ratio), *layer);
    if (FocusIsMarked && hasFocus())
        PaintFocusFrame(painter);
}

void PlayingField::keyPressEvent(QKeyEvent* event) {
    const std::optional<FieldKey> key = FieldKeyOf(*event);
    if (key || event->key() == Qt::Key_Tab || event->key() == Qt::Key_Backtab)
        MarkFocus(true);
    if (!key)
        return QWidget::keyPressEvent(event);
    // A held Return would draw line after line, or draw what it first agreed to in a dialog.
    if (key == FieldKey::Draw && event->isAutoRepeat())
        return;
    RunGuarded([key] { picPlayingField_KeyDown(*key); });
}

void PlayingField::mousePressEvent(QMouseEvent* event) {
    MarkFocus(false);
    RunGuarded([place = PlaceOf(*event)] { picPlayingField_MouseDown(place.X, place.Y); });
}

void PlayingField::mouseMoveEvent(QMouseEvent* event) {
    RunGuarded([place = PlaceOf(*event)] { picPlayingField_MouseMove(place.X, place.Y); });
}
