// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#include "ui/style/SoftShadow.h"

#include "ui/style/DeviceSpace.h"

#include <array>
#include <cmath>

namespace lorva {

namespace {

constexpr int kReach = 28;
constexpr int kDrop = 8;
constexpr double kStrongest = 0.22;
constexpr int kSteps = 256;

/// How far outside of a rounded rectangle around the origin a point lies; negative inside.
double distanceOutside(double x, double y, double halfWidth, double halfHeight, double radius)
{
    const double dx = std::abs(x) - halfWidth + radius;
    const double dy = std::abs(y) - halfHeight + radius;
    const double outside = std::hypot(std::max(dx, 0.0), std::max(dy, 0.0));
    return outside + std::min(std::max(dx, dy), 0.0) - radius;
}

/// Alpha by distance, from a reach inside to a reach outside.
std::array<QRgb, kSteps> makeFalloff()
{
    std::array<QRgb, kSteps> falloff{};
    for (int i = 0; i < kSteps; ++i) {
        const double t = 1.0 - double(i) / (kSteps - 1);
        const double alpha = kStrongest * t * t * (3.0 - 2.0 * t);
        falloff[size_t(i)] = qRgba(0, 0, 0, int(std::lround(alpha * 255)));
    }
    return falloff;
}

QImage makeShadow(QSize sizePx, double ratio, double radius)
{
    static const std::array<QRgb, kSteps> falloff = makeFalloff();
    QImage image(sizePx, QImage::Format_ARGB32_Premultiplied);
    const double reach = kReach * ratio;
    const double halfWidth = sizePx.width() / 2.0 - reach;
    const double halfHeight = sizePx.height() / 2.0 - reach;
    for (int row = 0; row < sizePx.height(); ++row) {
        auto *line = reinterpret_cast<QRgb *>(image.scanLine(row));
        const double y = row + 0.5 - sizePx.height() / 2.0;
        for (int column = 0; column < sizePx.width(); ++column) {
            const double x = column + 0.5 - sizePx.width() / 2.0;
            const double distance =
                distanceOutside(x, y, halfWidth, halfHeight, radius * ratio) + reach;
            const double share = std::clamp(distance / (2 * reach), 0.0, 1.0);
            line[column] = falloff[size_t(share * (kSteps - 1))];
        }
    }
    return image;
}

} // namespace

QRect SoftShadow::outerRect(const QRect &panel)
{
    return panel.adjusted(-kReach, -kReach, kReach, kReach).translated(0, kDrop);
}

void SoftShadow::draw(QPainter &painter, const QRect &outer, double radius)
{
    const DeviceSpace device(painter);
    const QSize sizePx = device.deviceRect(outer).size();
    if (sizePx.isEmpty())
        return;
    if (m_image.size() != sizePx)
        m_image = makeShadow(sizePx, device.ratio(), radius);
    device.drawImage(outer.topLeft(), {}, m_image);
}

} // namespace lorva
