// What the field's picture looks like in screen pixels.
#include "platform/qt/field_picture.h"

#include <gtest/gtest.h>

#include <QPainter>
#include <QRegion>
#include <map>

#include "platform/picture.h"

TEST(FieldPictureTest, KeepsDotsWholeOnTopAndClearOfBoxesAtEveryScale) {
    SetPictureScale(15, 15);
    for (const int quarters : {4, 5, 6, 7, 8, 12}) {
        TheFieldPicture.Resize({40, 40}, quarters / 4.0);
        ClearPicture();
        PlotPoint(300, 300, BrightWhite);
        FillPictureBox(345, 345, 630, 630, LightRed);
        DrawPictureLine(300, 300, 675, 300, LightGreen);
        ErasePictureLine(315, 300, 660, 300);
        QImage shown = *TheFieldPicture.Layers().at(0);
        QPainter(&shown).drawImage(0, 0, *TheFieldPicture.Layers().at(1));
        std::map<QRgb, QRegion> pixels;
        for (int x = 0; x < shown.width(); ++x)
            for (int y = 0; y < shown.height(); ++y)
                pixels[shown.pixel(x, y)] += QRect(x, y, 1, 1);
        const QRect dot = pixels[0xFFFFFFFF].boundingRect();
        EXPECT_EQ(pixels[0xFFFFFFFF], QRegion(dot)) << quarters;
        EXPECT_TRUE(dot.width() == dot.height() && dot.width() % 2 == 1) << quarters;
        EXPECT_GT(pixels[0xFFFF0000].boundingRect().left(), dot.right() + 1) << quarters;
        EXPECT_FALSE(pixels.contains(0xFF00FF00)) << quarters;
    }
}
