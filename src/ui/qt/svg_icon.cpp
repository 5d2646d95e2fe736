#include "ui/qt/svg_icon.h"

#include <QFile>
#include <QGuiApplication>
#include <QIconEngine>
#include <QPainter>
#include <QPalette>
#include <QSvgRenderer>

namespace {

constexpr qreal DisabledOpacity = 0.35;

QByteArray ReadFile(const QString& name) {
    QFile file(name);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

class SvgIconEngine : public QIconEngine {
public:
    SvgIconEngine(QByteArray svg, bool takesTextColor)
        : Svg(std::move(svg)), TakesTextColor(takesTextColor) {}

    void paint(QPainter* painter, const QRect& rect, QIcon::Mode mode,
               QIcon::State /*state*/) override {
        if (mode == QIcon::Disabled)
            painter->setOpacity(DisabledOpacity);
        QSvgRenderer(ColoredSvg()).render(painter, rect);
    }

    QPixmap pixmap(const QSize& size, QIcon::Mode mode, QIcon::State state) override {
        QPixmap pixmap(size);
        pixmap.fill(Qt::transparent);
        QPainter painter(&pixmap);
        paint(&painter, QRect(QPoint(), size), mode, state);
        return pixmap;
    }

    // The sizes that a desktop's task bars and window lists ask for.
    QList<QSize> availableSizes(QIcon::Mode /*mode*/, QIcon::State /*state*/) override {
        return {{16, 16}, {32, 32}, {48, 48}, {128, 128}};
    }

    QIconEngine* clone() const override { return new SvgIconEngine(*this); }

private:
    QByteArray ColoredSvg() const {
        if (!TakesTextColor)
            return Svg;
        const QColor text = QGuiApplication::palette().color(QPalette::ButtonText);
        return QByteArray(Svg).replace("#000000", text.name().toLatin1());
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
