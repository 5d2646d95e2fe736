// The image behind the playing field. It lies transparent over the background, so that a new
// background shows under what is drawn, and keeps its drawing while the window is covered.
#pragma once

#include <QImage>
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

    const QImage& Image() const { return Pixels; }
    // The pixels of the image to one logical pixel.
    qreal PixelRatio() const { return Ratio; }

    void Clear();

    // Fills whole screen pixels between two corners in twips, both included; 0 clears them.
    void Fill(int left, int top, int right, int bottom, QRgb color);

    // Called with the changed rectangle, in logical pixels.
    std::function<void(const QRect&)> WhenChanged = [](const QRect&) {};

private:
    QSize Size;
    qreal ScreenRatio = 1;
    QImage Pixels; // at least as large as the picture
    qreal Ratio = 1;
    QSize TwipsPerPixel{1, 1};
};

extern FieldPicture TheFieldPicture;
