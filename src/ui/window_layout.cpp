#include "ui/window_layout.h"

#include <algorithm>
#include <cmath>

#include "platform/picture.h"

namespace {

constexpr int PictureMargins = 120; // left and right of the picture together

int Centred(int available, int size) {
    return static_cast<int>(std::nearbyint((available - size) / 2.0));
}

} // namespace

WindowLayout LayOutWindow(int innerWidth, int innerHeight, int toolbarHeight, int frameWidth,
                          int frameHeight) {
    WindowLayout layout{};
    layout.Frame = {Centred(innerWidth, frameWidth), innerHeight - frameHeight - BottomMargin,
                    frameWidth, frameHeight};
    const int width = std::clamp(innerWidth - PictureMargins, 0, LargestPicture);
    const int height =
        std::clamp(innerHeight - toolbarHeight - frameHeight - BottomMargin, 0, LargestPicture);
    layout.Picture = {Centred(innerWidth, width), toolbarHeight + 1, width, height};
    return layout;
}
