#include "ui/qt/swatch.h"

#include <QColorDialog>
#include <QPainter>
#include <utility>

#include "display/color_words.h"
#include "platform/qt/qt_color.h"

Swatch::Swatch(const QString& objectName, QString name, QWidget* parent)
    : QLabel(parent), Name(std::move(name)) {
    setObjectName(objectName);
    QSizePolicy policy(QSizePolicy::Fixed, QSizePolicy::Fixed);
    policy.setRetainSizeWhenHidden(true);
    setSizePolicy(policy);
    TellColor();
}

void Swatch::TellColor() {
    setAccessibleName(Name + ": " + QString::fromStdString(ColorInWords(Shown.FillColor)));
}

void Swatch::SetFillColor(Color color) {
    Show({color, Shown.Visible});
}

void Swatch::Show(const ::Shape& shape) {
    if (Shown == shape)
        return;
    Shown = shape;
    TellColor();
    setVisible(shape.Visible);
    update();
}

QSize Swatch::sizeHint() const {
    const int height = fontMetrics().height();
    return {height * 5 / 4, height};
}

void Swatch::paintEvent(QPaintEvent* /*event*/) {
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
