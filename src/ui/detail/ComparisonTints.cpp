// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#include "ui/detail/ComparisonPage.h"
#include "ui/style/Palette.h"

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
constexpr double kTintContrast = 3.0;
constexpr double kLightnessStep = 0.02;
/// A colour with less has no hue to speak of.
constexpr double kFewestColor = 0.15;

QColor solidGround(const QColor &foreground, const QColor &background)
{
    // Over an image nothing is known but that the foreground is meant to be seen on it.
    return background.alpha() == 255 ? background : contrastingNeutral(foreground);
}

double hueDistance(int hue, const QColor &color)
{
    if (color.hslSaturationF() < kFewestColor || color.hslHue() < 0)
        return 180;
    const int distance = std::abs(hue - color.hslHue()) % 360;
    return std::min(distance, 360 - distance);
}

/// Of that hue, as near to a middle lightness as the ground allows.
QColor readable(int hue, const QColor &ground)
{
    const double direction = contrastingNeutral(ground) == QColor(Qt::black) ? -1 : 1;
    double lightness = direction < 0 ? 0.5 : 0.55;
    QColor tint;
    do {
        tint = QColor::fromHslF(float(hue / 360.0), float(kSaturation), float(lightness),
                                float(kTintAlpha));
        lightness += direction * kLightnessStep;
    } while (contrastRatio(blended(tint, ground), ground) < kTintContrast && lightness > 0.04
             && lightness < 0.98);
    if (contrastRatio(blended(tint, ground), ground) < kTintContrast)
        tint.setAlphaF(1);
    return tint;
}

} // namespace

QColor comparisonTint(int index, const QColor &foreground, const QColor &background)
{
    const QColor ground = solidGround(foreground, background);
    std::vector<int> hues(kHues.begin(), kHues.end());
    // The hue that is nearest to what is there already goes.
    const auto clash = std::ranges::min_element(hues, {}, [&](int hue) {
        return std::min(hueDistance(hue, foreground), hueDistance(hue, ground));
    });
    const bool isGray =
        hueDistance(*clash, foreground) == 180 && hueDistance(*clash, ground) == 180;
    hues.erase(isGray ? hues.end() - 1 : clash);
    return readable(hues[size_t(index) % hues.size()], ground);
}

} // namespace lorva
