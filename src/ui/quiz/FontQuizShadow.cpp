// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT

#include "ui/quiz/FontQuizShadow.h"

#include "ui/quiz/FontQuizCard.h"
#include "ui/quiz/FontQuizLayout.h"

#include <algorithm>
#include <cmath>
#include <mutex>

namespace lorva {

namespace {

/// How far the light comes from above.
constexpr double kDrop = 16;
/// Of the wide shadow, and of the one close to the edge.
constexpr double kWide = 54;
constexpr double kClose = 7;
constexpr double kWideAlpha = 0.17;
constexpr double kCloseAlpha = 0.10;
constexpr double kDarkFactor = 2.2;

/// From the edge of a rounded rectangle around the origin; negative inside.
double distanceTo(QPointF place, QSizeF half, double radius)
{
    const double dx = std::abs(place.x()) - half.width() + radius;
    const double dy = std::abs(place.y()) - half.height() + radius;
    return std::hypot(std::max(dx, 0.0), std::max(dy, 0.0)) + std::min(std::max(dx, dy), 0.0)
        - radius;
}

/// 1 well inside, 0 well outside.
double falloff(double distance, double reach)
{
    const double t = std::clamp(0.5 - distance / (2 * reach), 0.0, 1.0);
    return t * t * (3 - 2 * t);
}

/// At a place relative to the card's centre, in points.
double shadowAt(QPointF place)
{
    const QSizeF half = QSizeF(kFontQuizCardSize) / 2;
    const double wide =
        distanceTo(place - QPointF(0, kDrop), half - QSizeF(10, 10), kFontQuizCardRadius);
    const double close = distanceTo(place - QPointF(0, 2), half, kFontQuizCardRadius);
    return kWideAlpha * falloff(wide, kWide) + kCloseAlpha * falloff(close, kClose);
}

QImage makeShadow(QSize sizePx, double ratio, bool isDark)
{
    QImage image(sizePx, QImage::Format_ARGB32_Premultiplied);
    const double strength = 255 * (isDark ? kDarkFactor : 1.0);
    const QPointF middle(sizePx.width() / 2.0, sizePx.height() / 2.0);
    for (int row = 0; row < sizePx.height(); ++row) {
        auto *line = reinterpret_cast<QRgb *>(image.scanLine(row));
        for (int column = 0; column < sizePx.width(); ++column) {
            const QPointF place = (QPointF(column + 0.5, row + 0.5) - middle) / ratio;
            line[column] = qRgba(0, 0, 0, int(std::lround(strength * shadowAt(place))));
        }
    }
    return image;
}

} // namespace

QImage fontQuizShadow(QSize sizePx, double ratio, bool isDark)
{
    static std::mutex mutex;
    static QImage last;
    static bool lastIsDark = false;
    // Held while it is made: whoever comes meanwhile wants the same.
    const std::lock_guard lock(mutex);
    if (last.size() != sizePx || lastIsDark != isDark) {
        last = makeShadow(sizePx, ratio, isDark);
        lastIsDark = isDark;
    }
    return last;
}

} // namespace lorva
