// The images behind the playing field: lines and boxes, and above them the points, which nothing
// that is drawn or erased can touch. They lie transparent over the background, so that a new
// background shows under what is drawn, and keep their drawing while the window is covered.
#pragma once

#include <QImage>
#include <array>
#include <functional>

class FieldPicture {
public:
    // Twips to one logical pixel, across and down.
    void SetScale(QSize twipsPerPixel) { TwipsPerPixel = twipsPerPixel; }

    // Takes the size in logical pixels and the screen pixels to one of them. What was drawn stays
    // where and as it was until the picture is cleared, also what lies outside meanwhile.
    void Resize(QSize logicalSize, qreal screenPixelRatio);

    // Inner size in twips, 0 to 32767.
    QSize SizeInTwips() const;
    // The screen pixels that the window asked for.
    qreal ScreenPixelRatio() const { return ScreenRatio; }

    // From the lowest to the highest. One that nothing was drawn on is null.
    std::array<const QImage*, 2> Layers() const { return {&Lines, &Points}; }
    // The pixels of the layers to one logical pixel.
    qreal PixelRatio() const { return Ratio; }

    void Clear();

    // All take corners in twips, both included, and fill whole screen pixels; the colour 0 clears
    // them. Dots and strokes have their middle where they are put and are odd numbers of screen
    // pixels wide, so that they meet evenly at every scale. A dot ends before a box begins.
    void FillDot(int x, int y, QRgb color);
    void FillStroke(int fromX, int fromY, int toX, int toY, QRgb color);
    void FillBox(int left, int top, int right, int bottom, QRgb color);

    // Called with the changed rectangle, in logical pixels.
    std::function<void(const QRect&)> WhenChanged = [](const QRect&) {};

private:
    QRect ToScreen(int left, int top, int right, int bottom) const;
    void Fill(QImage& layer, const QRect& screenPixels, QRgb color) const;

    QSize Size;
    qreal ScreenRatio = 1;
    QImage Lines, Points; // as large as was needed when they were last drawn on
    QSize Pixels;         // what is needed now
    qreal Ratio = 1;      // of the three
    QSize TwipsPerPixel{1, 1};
};

extern FieldPicture TheFieldPicture;
