#include "platform/qt/field_picture.h"

#include <QPainter>
#include <algorithm>
#include <cmath>

#include "platform/picture.h"
#include "platform/qt/qt_color.h"

FieldPicture TheFieldPicture;

namespace {

constexpr int LargestPicture = 32767; // twips

QRgb Opaque(Color color) {
    return ToQColor(color).rgb();
}

QImage BlankImage(QSize pixels) {
    QImage image(pixels, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    return image;
}

QSize ImageSize(QSize logicalSize, qreal pixelRatio) {
    return {static_cast<int>(std::ceil(logicalSize.width() * pixelRatio)),
            static_cast<int>(std::ceil(logicalSize.height() * pixelRatio))};
}

} // namespace

void FieldPicture::Resize(QSize logicalSize, qreal screenPixelRatio) {
    Size = logicalSize;
    ScreenRatio = screenPixelRatio;
    const QSize needed = ImageSize(Size, Ratio).expandedTo(Pixels.size());
    if (needed == Pixels.size())
        return;
    QImage grown = BlankImage(needed);
    if (!Pixels.isNull())
        QPainter(&grown).drawImage(0, 0, Pixels);
    Pixels = grown;
}

void FieldPicture::Clear() {
    Ratio = ScreenRatio;
    Pixels = BlankImage(ImageSize(Size, Ratio));
    WhenChanged(QRect(QPoint(), Size));
}

void FieldPicture::Fill(int left, int top, int right, int bottom, QRgb color) {
    const int stroke = std::max(1, static_cast<int>(Ratio));
    const auto toScreen = [this](int twips, int twipsPerPixel) {
        return static_cast<int>(std::floor(twips * Ratio / twipsPerPixel));
    };
    const QRect wanted(
        QPoint(toScreen(left, TwipsPerPixel.width()), toScreen(top, TwipsPerPixel.height())),
        QPoint(toScreen(right, TwipsPerPixel.width()) + stroke - 1,
               toScreen(bottom, TwipsPerPixel.height()) + stroke - 1));
    const QRect filled = wanted & Pixels.rect();
    if (filled.isEmpty())
        return;
    for (int y = filled.top(); y <= filled.bottom(); ++y) {
        auto* row = reinterpret_cast<QRgb*>(Pixels.scanLine(y));
        std::fill_n(row + filled.left(), filled.width(), color);
    }
    const QRectF logical(filled.left() / Ratio, filled.top() / Ratio, filled.width() / Ratio,
                         filled.height() / Ratio);
    WhenChanged(logical.toAlignedRect());
}

QSize FieldPicture::SizeInTwips() const {
    return QSize(Size.width() * TwipsPerPixel.width(), Size.height() * TwipsPerPixel.height())
        .boundedTo(QSize(LargestPicture, LargestPicture));
}

void SetPictureScale(int twipsPerPixelX, int twipsPerPixelY) {
    TheFieldPicture.SetScale(QSize(twipsPerPixelX, twipsPerPixelY));
}

int PictureWidth() {
    return TheFieldPicture.SizeInTwips().width();
}

int PictureHeight() {
    return TheFieldPicture.SizeInTwips().height();
}

void ClearPicture() {
    TheFieldPicture.Clear();
}

void PlotPoint(int x, int y, Color color) {
    TheFieldPicture.Fill(x, y, x, y, Opaque(color));
}

void DrawPictureLine(int fromX, int fromY, int toX, int toY, Color color) {
    TheFieldPicture.Fill(fromX, fromY, toX, toY, Opaque(color));
}

void ErasePictureLine(int fromX, int fromY, int toX, int toY) {
    TheFieldPicture.Fill(fromX, fromY, toX, toY, qRgba(0, 0, 0, 0));
}

void FillPictureBox(int left, int top, int right, int bottom, Color color) {
    TheFieldPicture.Fill(left, top, right, bottom, Opaque(color));
}
