#include "ui/qt/line_icon.h"

#include <QFile>
#include <QGuiApplication>
#include <QIconEngine>
#include <QImage>
#include <QPainter>
#include <QPalette>
#include <algorithm>

namespace {

// The one colour of the line icons, which stands out from light and dark toolbars alike.
constexpr QRgb Accent = 0xFFD4620A;
constexpr int DisabledAlpha = 90; // of 255

constexpr int LargestSize = 96; // pixels

// As sharp as can be in the sizes that there are; for other screens the largest is made smaller.
QImage PictureOf(const QString& name, QSize size) {
    const QString file = ":/icons/%1/" + name + ".png";
    const QString exact = file.arg(size.width());
    QImage picture(QFile::exists(exact) ? exact : file.arg(LargestSize));
    if (picture.size() != size)
        picture = picture.scaled(size, Qt::KeepAspectRatio, Qt::SmoothTransformation);
    return picture.convertToFormat(QImage::Format_ARGB32_Premultiplied);
}

// Of black and the accent only the latter has red in it, which so tells how much of a pixel is
// black.
QRgb WithTextForBlack(QRgb pixel, QRgb text) {
    const int black = std::max(0, qAlpha(pixel) - qRed(pixel) * 255 / qRed(Accent));
    const auto mixed = [black](int own, int ofText) { return own + ofText * black / 255; };
    return qRgba(mixed(qRed(pixel), qRed(text)), mixed(qGreen(pixel), qGreen(text)),
                 mixed(qBlue(pixel), qBlue(text)), qAlpha(pixel));
}

class LineIconEngine : public QIconEngine {
public:
    explicit LineIconEngine(QString name) : Name(std::move(name)) {}

    void paint(QPainter* painter, const QRect& rect, QIcon::Mode mode,
               QIcon::State state) override {
        const qreal ratio = painter->device()->devicePixelRatioF();
        painter->drawPixmap(rect, pixmap(rect.size() * ratio, mode, state));
    }

    QPixmap pixmap(const QSize& size, QIcon::Mode mode, QIcon::State /*state*/) override {
        QImage picture = PictureOf(Name, size);
        QColor text = QGuiApplication::palette().color(QPalette::ButtonText);
        if (mode == QIcon::Disabled) {
            text.setAlpha(DisabledAlpha);
            QPainter painter(&picture);
            painter.setCompositionMode(QPainter::CompositionMode_SourceIn);
            painter.fillRect(picture.rect(), text);
        } else {
            auto* pixels = reinterpret_cast<QRgb*>(picture.bits());
            std::for_each(
                pixels, pixels + picture.sizeInBytes() / sizeof(QRgb),
                [rgb = text.rgb()](QRgb& pixel) { pixel = WithTextForBlack(pixel, rgb); });
        }
        return QPixmap::fromImage(picture);
    }

    QIconEngine* clone() const override { return new LineIconEngine(*this); }

private:
    QString Name;
};

} // namespace

QIcon LineIcon(const QString& name) {
    return QIcon(new LineIconEngine(name));
}
