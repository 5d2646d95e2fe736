#include "ui/qt/swatch.h"

#include <QColorDialog>
#include <QPainter>

#include "platform/qt/qt_color.h"

Swatch::Swatch(const QString& objectName, const QString& accessibleName, QWidget* parent)
    : QWidget(parent) {
    setObjectName(objectName);
    setAccessibleName(accessibleName);
    setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
}

void Swatch::SetFillColor(Color color) {
    Show({color, Shown.Visible});
}

void Swatch::Show(const Shape& shape) {
    if (Shown == shape)
        return;
    Shown = shape;
    update();
}

QSize Swatch::sizeHint() const {
    const int height = fontMetrics().height();
    return {height * 5 / 4, height};
}

void Swatch::paintEvent(QPaintEvent* /*event*/) {
    if (!Shown.Visible)
        return;
    QPainter painter(this);
    painter.fillRect(rect(), palette().color(QPalette::PlaceholderText));
    painter.fillRect(rect().adjusted(1, 1, -1, -1), ToQColor(Shown.FillColor));
}

void PickColor(Swatch* swatch) {
    auto* dialog = new QColorDialog(ToQColor(swatch->FillColor()), swatch->window());
    dialog->setAttribute(Qt::WA_DeleteOnClose);
    QObject::connect(dialog, &QColorDialog::colorSelected, swatch,
                     [swatch](const QColor& color) { swatch->SetFillColor(FromQColor(color)); });
    dialog->open();
}
