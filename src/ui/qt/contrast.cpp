#include "ui/qt/contrast.h"

#include <algorithm>
#include <cmath>

namespace {

// As the eye weighs the three lights of a screen.
double Luminance(const QColor& color) {
    const auto light = [](float share) {
        return share <= 0.04045F ? share / 12.92 : std::pow((share + 0.055) / 1.055, 2.4);
    };
    return 0.2126 * light(color.redF()) + 0.7152 * light(color.greenF()) +
           0.0722 * light(color.blueF());
}

QColor Mixed(const QColor& from, const QColor& to, int percent) {
    const auto mixed = [percent](int one, int other) {
        return one + (other - one) * percent / 100;
    };
    return {mixed(from.red(), to.red()), mixed(from.green(), to.green()),
            mixed(from.blue(), to.blue())};
}

} // namespace

double Contrast(const QColor& one, const QColor& other) {
    constexpr double ofScreenItself = 0.05; // no black is without light
    const auto [darker, lighter] = std::minmax({Luminance(one), Luminance(other)});
    return (lighter + ofScreenItself) / (darker + ofScreenItself);
}

QColor MixedUntilSeen(const QColor& from, const QColor& to, const QColor& background,
                      double contrast) {
    int percent = 0;
    while (percent < 100 && Contrast(Mixed(from, to, percent), background) < contrast)
        percent += 2;
    return Mixed(from, to, percent);
}

QColor StrongestOn(const QColor& background) {
    const bool isDark = Contrast(background, Qt::white) > Contrast(background, Qt::black);
    return isDark ? Qt::white : Qt::black;
}
