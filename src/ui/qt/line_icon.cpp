#include "ui/qt/line_icon.h"

#include <QFile>
#include <QGuiApplication>
#include <QIconEngine>
#include <QImage>
#include <QPainter>
#include <QPalette>
#include <algorithm>

#include "ui/qt/contrast.h"

namespace {

// The one colour of the line icons, as the pictures have it.
constexpr QRgb Accent = 0xFFD4620A;

constexpr int LargestSize = 144; // pixels

// As sharp as can be in the sizes that there are; for other screens the largest is made smaller.
QImage PictureOf(const QString& name, QSize size) {
    const QString file = ":/icons/%1/" + name + ".png";
    const QString exact = file.arg(size.width());
    QImage picture(QFile::exists(exact) ? exact : file.arg(LargestSize));
    if (picture.size() != size)
        picture = picture.scaled(size, Qt::KeepAspectRatio, Qt::SmoothTransformation);
    return picture.convertToFormat(QImage::Format_ARGB32_Premultiplied);
}

struct IconColors {
    QColor Strokes, Accent;
};

// The desktop's text, and an accent and a disabled grey that stand out from its windows.
IconColors ColorsOf(QIcon::Mode mode) {
    const QPalette palette = QGuiApplication::palette();
    const QColor background = palette.color(QPalette::Window);
    const QColor text = palette.color(QPalette::ButtonText);
    const QColor start = mode == QIcon::Disabled ? background : QColor(Accent);
    const QColor seen = MixedUntilSeen(start, text, background, ContrastOfShapes);
    return {mode == QIcon::Disabled ? seen : text, seen};
}

// Of black and the accent only the latter has red in it, which so tells how much of a pixel is of
// which.
QRgb Colored(QRgb pixel, const IconColors& colors) {
    const int accent = std::min(qAlpha(pixel), qRed(pixel) * 255 / qRed(Accent));
    const int black = qAlpha(pixel) - accent;
    const auto mixed = [accent, black](int ofStrokes, int ofAccent) {
        return (ofStrokes * black + ofAccent * accent) / 255;
    };
    return qRgba(mixed(colors.Strokes.red(), colors.Accent.red()),
                 mixed(colors.Strokes.green(), colors.Accent.green()),
                 mixed(colors.Strokes.blue(), colors.Accent.blue()), qAlpha(pixel));
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
        auto* pixels = reinterpret_cast<QRgb*>(picture.bits());
        std::for_each(pixels, pixels + picture.sizeInBytes() / sizeof(QRgb),
                      [colors = ColorsOf(mode)](QRgb& pixel) { pixel = Colored(pixel, colors); });
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
