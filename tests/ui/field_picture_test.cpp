// What the field's picture looks like in screen pixels.
#include "platform/qt/field_picture.h"

#include <gtest/gtest.h>

#include <QPainter>
#include <map>

#include "platform/picture.h"

namespace {

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
        std::map<QRgb, QRect> around; // all pixels of a colour
        std::map<QRgb, int> count;
        for (int i = 0; i < shown.width() * shown.height(); ++i) {
            const QPoint place(i % shown.width(), i / shown.width());
            around[shown.pixel(place)] |= QRect(place, place);
            ++count[shown.pixel(place)];
        }
        const QRect dot = around[0xFFFFFFFF];
        EXPECT_TRUE(dot.width() == dot.height() && dot.width() % 2 == 1) << quarters;
        EXPECT_EQ(count[0xFFFFFFFF], dot.width() * dot.height()) << quarters;
        EXPECT_GT(around[0xFFFF0000].left(), dot.right() + 1) << quarters;
        EXPECT_FALSE(around.contains(0xFF00FF00)) << quarters;
    }
}

} // namespace
