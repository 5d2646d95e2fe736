#include "platform/qt/field_picture.h"

#include <algorithm>
#include <cmath>

#include "platform/picture.h"
#include "platform/qt/qt_color.h"

FieldPicture TheFieldPicture;

namespace {

constexpr int DotSize = 3; // logical pixels
// Screen pixels of a layer, across or down: more than screens have. A scale that asks for more is
// drawn in fewer.
constexpr int LargestLayer = 8192;

QRgb Opaque(Color color) {
    return ToQColor(color).rgb();
}

// With what is drawn already where and as it is.
QImage Resized(const QImage& layer, QSize pixels) {
    if (!layer.isNull())
        return layer.copy(QRect(QPoint(), pixels));
    QImage blank(pixels, QImage::Format_ARGB32_Premultiplied);
    blank.fill(Qt::transparent);
    return blank;
}

QSize ImageSize(QSize logicalSize, qreal pixelRatio) {
    return {static_cast<int>(std::ceil(logicalSize.width() * pixelRatio)),
            static_cast<int>(std::ceil(logicalSize.height() * pixelRatio))};
}

qreal LargestRatio(QSize logicalSize) {
    const int longerSide = std::max({1, logicalSize.width(), logicalSize.height()});
    return static_cast<qreal>(LargestLayer) / longerSide;
}

} // namespace

void FieldPicture::Resize(QSize logicalSize, qreal screenPixelRatio) {
    Size = logicalSize;
    ScreenRatio = screenPixelRatio;
    Pixels = ImageSize(Size, Ratio).expandedTo(Pixels).boundedTo({LargestLayer, LargestLayer});
}

void FieldPicture::Clear() {
    Ratio = std::min(ScreenRatio, LargestRatio(Size));
    Pixels = ImageSize(Size, Ratio);
    Lines = Points = QImage();
    WhenChanged(QRect(QPoint(), Size));
}

void FieldPicture::FillDot(int x, int y, QRgb color) {
    const int reach = static_cast<int>(Ratio * DotSize / 2);
    Fill(Points, ToScreen(x, y, x, y).adjusted(-reach, -reach, reach, reach), color);
}

void FieldPicture::FillStroke(int fromX, int fromY, int toX, int toY, QRgb color) {
    const int reach = static_cast<int>(Ratio / 2);
    Fill(Lines, ToScreen(fromX, fromY, toX, toY).adjusted(-reach, -reach, reach, reach), color);
}

void FieldPicture::FillBox(int left, int top, int right, int bottom, QRgb color) {
    Fill(Lines, ToScreen(left, top, right, bottom), color);
}

QRect FieldPicture::ToScreen(int left, int top, int right, int bottom) const {
    const auto toScreen = [this](int twips, int twipsPerPixel) {
        return static_cast<int>(std::floor(twips * Ratio / twipsPerPixel));
    };
    return {
        QPoint(toScreen(left, TwipsPerPixel.width()), toScreen(top, TwipsPerPixel.height())),
        QPoint(toScreen(right, TwipsPerPixel.width()), toScreen(bottom, TwipsPerPixel.height()))};
}

void FieldPicture::Fill(QImage& layer, const QRect& screenPixels, QRgb color) const {
    if (layer.size() != Pixels)
        layer = Resized(layer, Pixels);
    const QRect filled = screenPixels & layer.rect(); // empty when there was no memory for it
    if (filled.isEmpty())
        return;
    for (int y = filled.top(); y <= filled.bottom(); ++y) {
        auto* row = reinterpret_cast<QRgb*>(layer.scanLine(y));
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
    TheFieldPicture.FillDot(x, y, Opaque(color));
}

void DrawPictureLine(int fromX, int fromY, int toX, int toY, Color color) {
    TheFieldPicture.FillStroke(fromX, fromY, toX, toY, Opaque(color));
}

void ErasePictureLine(int fromX, int fromY, int toX, int toY) {
    TheFieldPicture.FillStroke(fromX, fromY, toX, toY, qRgba(0, 0, 0, 0));
}

void FillPictureBox(int left, int top, int right, int bottom, Color color) {
    TheFieldPicture.FillBox(left, top, right, bottom, Opaque(color));
}
