// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#include "text/color/ColrBlend.h"

#include <QPainter>

#include <algorithm>
#include <array>
#include <cmath>
#include <optional>

namespace lorva {

namespace {

using Channels = std::array<double, 3>;

double luminosity(const Channels &color)
{
    return 0.3 * color[0] + 0.59 * color[1] + 0.11 * color[2];
}

double saturation(const Channels &color)
{
    const auto [least, most] = std::minmax_element(color.begin(), color.end());
    return *most - *least;
}

/// ClipColor of "Compositing and Blending Level 1", section 10.2.
Channels clipColor(Channels color)
{
    const double light = luminosity(color);
    const auto [least, most] = std::minmax({color[0], color[1], color[2]});
    for (double &channel : color) {
        if (least < 0)
            channel = light + (channel - light) * light / (light - least);
        if (most > 1)
            channel = light + (channel - light) * (1 - light) / (most - light);
    }
    return color;
}

Channels withLuminosity(Channels color, double light)
{
    const double change = light - luminosity(color);
    for (double &channel : color)
        channel += change;
    return clipColor(color);
}

Channels withSaturation(Channels color, double wanted)
{
    const double least = *std::min_element(color.begin(), color.end());
    const double own = saturation(color);
    for (double &channel : color)
        channel = own > 0 ? (channel - least) * wanted / own : 0;
    return color;
}

double colorDodge(double backdrop, double source)
{
    if (backdrop <= 0)
        return 0;
    return source >= 1 ? 1 : std::min(1.0, backdrop / (1 - source));
}

double colorBurn(double backdrop, double source)
{
    if (backdrop >= 1)
        return 1;
    return source <= 0 ? 0 : 1 - std::min(1.0, (1 - backdrop) / source);
}

double softLight(double backdrop, double source)
{
    if (source <= 0.5)
        return backdrop - (1 - 2 * source) * backdrop * (1 - backdrop);
    const double lightened =
        backdrop <= 0.25 ? ((16 * backdrop - 12) * backdrop + 4) * backdrop : std::sqrt(backdrop);
    return backdrop + (2 * source - 1) * (lightened - backdrop);
}

using Blend = Channels (*)(const Channels &backdrop, const Channels &source);

template <double (*blend)(double, double)>
Channels eachChannel(const Channels &b, const Channels &s)
{
    return {blend(b[0], s[0]), blend(b[1], s[1]), blend(b[2], s[2])};
}

/// The modes that QPainter lacks, and those for which it follows older formulas (SVG 1.2). Null for
/// others.
Blend ownBlend(ColrComposite mode)
{
    switch (mode) {
    case ColrComposite::colorDodge:
        return eachChannel<colorDodge>;
    case ColrComposite::colorBurn:
        return eachChannel<colorBurn>;
    case ColrComposite::softLight:
        return eachChannel<softLight>;
    case ColrComposite::hslHue:
        return [](const Channels &b, const Channels &s) {
            return withLuminosity(withSaturation(s, saturation(b)), luminosity(b));
        };
    case ColrComposite::hslSaturation:
        return [](const Channels &b, const Channels &s) {
            return withLuminosity(withSaturation(b, saturation(s)), luminosity(b));
        };
    case ColrComposite::hslColor:
        return
            [](const Channels &b, const Channels &s) { return withLuminosity(s, luminosity(b)); };
    case ColrComposite::hslLuminosity:
        return
            [](const Channels &b, const Channels &s) { return withLuminosity(b, luminosity(s)); };
    default:
        return nullptr;
    }
}

Channels straight(QRgb pixel)
{
    const double alpha = std::max(1, qAlpha(pixel));
    return {std::min(1.0, qRed(pixel) / alpha), std::min(1.0, qGreen(pixel) / alpha),
            std::min(1.0, qBlue(pixel) / alpha)};
}

/// co = cs·αs·(1 − αb) + cb·αb·(1 − αs) + αs·αb·B(cb, cs)
QRgb blended(QRgb backdrop, QRgb source, Blend blend)
{
    const double sourceAlpha = qAlpha(source) / 255.0;
    const double backdropAlpha = qAlpha(backdrop) / 255.0;
    const Channels mixed = blend(straight(backdrop), straight(source));
    const auto channel = [&](int b, int s, double m) {
        const double value =
            s * (1 - backdropAlpha) + b * (1 - sourceAlpha) + 255 * sourceAlpha * backdropAlpha * m;
        return int(std::lround(std::clamp(value, 0.0, 255.0)));
    };
    const double alpha = sourceAlpha + backdropAlpha - sourceAlpha * backdropAlpha;
    return qRgba(channel(qRed(backdrop), qRed(source), mixed[0]),
                 channel(qGreen(backdrop), qGreen(source), mixed[1]),
                 channel(qBlue(backdrop), qBlue(source), mixed[2]), int(std::lround(alpha * 255)));
}

QPainter::CompositionMode painterMode(ColrComposite mode)
{
    static constexpr QPainter::CompositionMode kModes[]{
        QPainter::CompositionMode_Clear,
        QPainter::CompositionMode_Source,
        QPainter::CompositionMode_Destination,
        QPainter::CompositionMode_SourceOver,
        QPainter::CompositionMode_DestinationOver,
        QPainter::CompositionMode_SourceIn,
        QPainter::CompositionMode_DestinationIn,
        QPainter::CompositionMode_SourceOut,
        QPainter::CompositionMode_DestinationOut,
        QPainter::CompositionMode_SourceAtop,
        QPainter::CompositionMode_DestinationAtop,
        QPainter::CompositionMode_Xor,
        QPainter::CompositionMode_Plus,
        QPainter::CompositionMode_Screen,
        QPainter::CompositionMode_Overlay,
        QPainter::CompositionMode_Darken,
        QPainter::CompositionMode_Lighten,
        QPainter::CompositionMode_ColorDodge,
        QPainter::CompositionMode_ColorBurn,
        QPainter::CompositionMode_HardLight,
        QPainter::CompositionMode_SoftLight,
        QPainter::CompositionMode_Difference,
        QPainter::CompositionMode_Exclusion,
        QPainter::CompositionMode_Multiply,
    };
    const size_t index = size_t(mode);
    return index < std::size(kModes) ? kModes[index] : QPainter::CompositionMode_SourceOver;
}

} // namespace

void compose(QImage &backdrop, const QImage &source, ColrComposite mode)
{
    const Blend blend = ownBlend(mode);
    if (!blend) {
        QPainter painter(&backdrop);
        painter.setCompositionMode(painterMode(mode));
        painter.drawImage(0, 0, source);
        return;
    }
    for (int y = 0; y < backdrop.height(); ++y) {
        auto *const row = reinterpret_cast<QRgb *>(backdrop.scanLine(y));
        const auto *const sourceRow = reinterpret_cast<const QRgb *>(source.constScanLine(y));
        for (int x = 0; x < backdrop.width(); ++x) {
            if (qAlpha(sourceRow[x]) != 0)
                row[x] = blended(row[x], sourceRow[x], blend);
        }
    }
}

} // namespace lorva
