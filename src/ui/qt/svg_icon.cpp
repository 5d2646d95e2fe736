#include "ui/qt/svg_icon.h"

#include <QFile>
#include <QGuiApplication>
#include <QIconEngine>
#include <QPainter>
#include <QPalette>
#include <QSvgRenderer>

namespace {

// The one colour of the line icons, which stands out from light and dark toolbars alike.
constexpr const char* Accent = "#d4620a";
constexpr int DisabledAlpha = 90; // of 255

QByteArray ReadFile(const QString& name) {
    QFile file(name);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

class SvgIconEngine : public QIconEngine {
public:
    SvgIconEngine(QByteArray svg, bool takesTextColor)
        : Svg(std::move(svg)), TakesTextColor(takesTextColor) {}

    void paint(QPainter* painter, const QRect& rect, QIcon::Mode mode,
               QIcon::State state) override {
        const qreal ratio = painter->device()->devicePixelRatioF();
        painter->drawPixmap(rect, pixmap(rect.size() * ratio, mode, state));
    }

    QPixmap pixmap(const QSize& size, QIcon::Mode mode, QIcon::State /*state*/) override {
        QPixmap pixmap(size);
        pixmap.fill(Qt::transparent);
        QPainter painter(&pixmap);
        QSvgRenderer(ColoredSvg(mode)).render(&painter);
        if (mode == QIcon::Disabled) {
            // As a whole: strokes faded one by one would show where they cross.
            painter.setCompositionMode(QPainter::CompositionMode_DestinationIn);
            painter.fillRect(pixmap.rect(), QColor(0, 0, 0, DisabledAlpha));
        }
        return pixmap;
    }

    // The sizes that a desktop's task bars and window lists ask for.
    QList<QSize> availableSizes(QIcon::Mode /*mode*/, QIcon::State /*state*/) override {
        return {{16, 16}, {32, 32}, {48, 48}, {128, 128}};
    }

    QIconEngine* clone() const override { return new SvgIconEngine(*this); }

private:
    QByteArray ColoredSvg(QIcon::Mode mode) const {
        if (!TakesTextColor)
            return Svg;
        const QColor color = QGuiApplication::palette().color(QPalette::ButtonText);
        const QByteArray text = color.name().toLatin1();
        QByteArray colored = QByteArray(Svg).replace("#000000", text);
        if (mode == QIcon::Disabled)
            colored.replace(Accent, text);
        return colored;
    }

    QByteArray Svg;
    bool TakesTextColor;
};

} // namespace

QIcon LineIcon(const QString& svgFile) {
    return QIcon(new SvgIconEngine(ReadFile(svgFile), true));
}

QIcon ColoredIcon(const QString& svgFile) {
    return QIcon(new SvgIconEngine(ReadFile(svgFile), false));
}
