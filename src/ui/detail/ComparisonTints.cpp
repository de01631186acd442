// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#include "ui/detail/ComparisonPage.h"
#include "ui/style/Palette.h"
#include "ui/style/PaneColors.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <vector>

namespace lorva {

namespace {

/// Vermilion, azure, green and violet: told apart by most who cannot tell red from green, too.
constexpr std::array<int, 4> kHues{12, 208, 150, 286};
constexpr double kSaturation = 0.9;
constexpr double kTintAlpha = 0.62;
constexpr double kDenseTintAlpha = 0.8;
constexpr double kMiddleLightness = 0.5;
/// Further from the middle all hues are nearly black or white.
constexpr double kHueRange = 0.22;
constexpr double kTintContrast = 3.0;
constexpr double kLightnessStep = 0.02;
/// A colour with less has no hue to speak of.
constexpr double kFewestColor = 0.15;

double hueDistance(int hue, const QColor &color)
{
    if (color.hslSaturationF() < kFewestColor || color.hslHue() < 0)
        return 180;
    const int distance = std::abs(hue - color.hslHue()) % 360;
    return std::min(distance, 360 - distance);
}

/// Of that hue, as near to a middle lightness as lets it be seen on the ground.
QColor readable(int hue, const QColor &ground, double alpha)
{
    const double step =
        contrastingNeutral(ground) == QColor(Qt::black) ? -kLightnessStep : kLightnessStep;
    double lightness = kMiddleLightness;
    QColor tint;
    do {
        tint = QColor::fromHslF(float(hue / 360.0), float(kSaturation), float(lightness),
                                float(alpha));
        lightness += step;
    } while (contrastRatio(blended(tint, ground), ground) < kTintContrast && lightness > 0.02
             && lightness < 0.98);
    return tint;
}

} // namespace

QColor comparisonTint(int index, const QColor &foreground, const QColor &background)
{
    const QColor ground = groundUnder(foreground, background);
    std::vector<int> hues(kHues.begin(), kHues.end());
    // The hue that is nearest to what is there already goes.
    const auto clash = std::ranges::min_element(hues, {}, [&](int hue) {
        return std::min(hueDistance(hue, foreground), hueDistance(hue, ground));
    });
    const bool isGray =
        hueDistance(*clash, foreground) == 180 && hueDistance(*clash, ground) == 180;
    hues.erase(isGray ? hues.end() - 1 : clash);
    const int hue = hues[size_t(index) % hues.size()];
    // A ground with a colour of its own would wash through.
    const bool isColored = ground.hsvSaturationF() > kFewestColor;
    for (const double alpha : {kTintAlpha, kDenseTintAlpha}) {
        const QColor tint = readable(hue, ground, alpha);
        const bool keepsHue = std::abs(tint.lightnessF() - kMiddleLightness) < kHueRange;
        if (keepsHue && !(isColored && alpha == kTintAlpha))
            return tint;
    }
    return readable(hue, ground, 1);
}

} // namespace lorva
