// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT

#include "ui/quiz/FontQuizLayout.h"

#include "ui/style/Style.h"

#include <QEasingCurve>

#include <algorithm>
#include <cmath>
#include <numbers>

namespace lorva {

namespace {

constexpr int kNarrowWindow = 1240;
constexpr int kWideTile = 176;
constexpr int kNarrowTile = 132;
constexpr int kTileHeight = 150;
constexpr int kLowTileHeight = 104;
/// Under it there is no room for a high row of tiles and a line below it.
constexpr int kLowWindow = 640;
constexpr int kProgressTop = 32;
constexpr int kProgressHeight = 32;
constexpr int kHintHeight = 20;
/// Around the card, where its neighbours show.
constexpr int kPeekRoom = 24;
constexpr double kLeastCardScale = 0.2;
/// Of the room that a card leaves.
constexpr double kSlackAbove = 0.12;
/// The card within a tile.
constexpr double kPileShare = 0.55;
constexpr double kPileLift = 0.15;
/// How high a thrown card rises over where it started, to its height.
constexpr double kRise = 0.22;
constexpr double kTurn = 7;

struct TileRow
{
    int width;
    int gap;
};

TileRow tileRow(int windowWidth)
{
    if (windowWidth >= kNarrowWindow)
        return {kWideTile, spacing::k20};
    const int gap = windowWidth >= 960 ? spacing::k12 : spacing::k8;
    const int room = windowWidth - 2 * spacing::k24 - (kFontQuizTiles - 1) * gap;
    return {std::clamp(room / kFontQuizTiles, 48, kNarrowTile), gap};
}

void placeTiles(FontQuizLayout &layout, QSize window, Qt::LayoutDirection direction)
{
    const bool isLow = window.height() < kLowWindow;
    const TileRow row = tileRow(window.width());
    const int width = kFontQuizTiles * row.width + (kFontQuizTiles - 1) * row.gap;
    const int height = isLow ? kLowTileHeight : kTileHeight;
    const int bottom = window.height() - (isLow ? spacing::k16 : spacing::k40);
    const int left = (window.width() - width) / 2;
    for (int i = 0; i < kFontQuizTiles; ++i) {
        const int place = direction == Qt::RightToLeft ? kFontQuizTiles - 1 - i : i;
        layout.tiles[size_t(i)] =
            QRect(left + place * (row.width + row.gap), bottom - height, row.width, height);
    }
    if (!isLow)
        layout.hint = QRect(0, bottom + spacing::k8, window.width(), kHintHeight);
}

/// In the middle of what tiles and progress leave, a little above it.
void placeCard(FontQuizLayout &layout, QSize window)
{
    const int top = layout.progress.bottom() + spacing::k4 + kPeekRoom;
    const int bottom = layout.tiles[0].top() - kPeekRoom - spacing::k8;
    const double across = (window.width() - 2.0 * spacing::k48) / kFontQuizCardSize.width();
    const double down = double(bottom - top) / kFontQuizCardSize.height();
    layout.cardScale = std::clamp(std::min(across, down), kLeastCardScale, 1.0);
    const QSizeF size = QSizeF(kFontQuizCardSize) * layout.cardScale;
    const double slack = std::max(0.0, bottom - top - size.height());
    const QPointF corner(std::round((window.width() - size.width()) / 2),
                         std::round(top + slack * kSlackAbove));
    layout.card = QRectF(corner, size);
    const int below = int(std::ceil(layout.card.bottom()));
    const int gap = layout.tiles[0].top() - below;
    layout.notice = QRect(spacing::k24, below + (gap - spacing::k28) / 2,
                          window.width() - 2 * spacing::k24, spacing::k28);
}

double eased(QEasingCurve::Type type, double share)
{
    return QEasingCurve(type).valueForProgress(share);
}

double mixed(double from, double to, double share)
{
    return from + (to - from) * share;
}

} // namespace

FontQuizLayout fontQuizLayout(QSize window, Qt::LayoutDirection direction)
{
    FontQuizLayout layout;
    const int top = window.height() < kLowWindow ? spacing::k8 : kProgressTop;
    layout.progress = QRect(0, top, window.width(), kProgressHeight);
    placeTiles(layout, window, direction);
    placeCard(layout, window);
    return layout;
}

QTransform FontQuizPose::transform() const
{
    return QTransform::fromTranslate(centre.x(), centre.y()).rotate(degrees).scale(scale, scale);
}

QRectF FontQuizPose::bounds(double margin) const
{
    const QSizeF size(kFontQuizCardSize);
    const QRectF card(-size.width() / 2, -size.height() / 2, size.width(), size.height());
    return transform().mapRect(card.adjusted(-margin, -margin, margin, margin));
}

FontQuizPose fontQuizRestPose(const FontQuizLayout &layout, int depth)
{
    FontQuizPose pose{layout.card.center(), layout.cardScale};
    if (depth == 1)
        pose.degrees = -1.1;
    if (depth >= 2) {
        pose.degrees = 1.8;
        pose.centre += QPointF(7, 7) * layout.cardScale;
    }
    if (depth >= 3)
        pose.opacity = 0;
    return pose;
}

FontQuizPose fontQuizPilePose(const QRect &tile, int number)
{
    static constexpr std::array kTurns{-2.5, 3.5, -5.0, 1.5, 5.5, -1.0, -4.0};
    static constexpr std::array kShifts{0.0, 2.0, -1.5, 1.0, -2.0};
    const double width = tile.width() * kPileShare;
    const QPointF shift(kShifts[size_t(number) % kShifts.size()],
                        kShifts[size_t(number + 2) % kShifts.size()] / 2);
    return {QRectF(tile).center() - QPointF(0, tile.height() * kPileLift) + shift,
            width / kFontQuizCardSize.width(), kTurns[size_t(number) % kTurns.size()]};
}

FontQuizPose between(const FontQuizPose &from, const FontQuizPose &to, double share)
{
    return {from.centre + (to.centre - from.centre) * share, mixed(from.scale, to.scale, share),
            mixed(from.degrees, to.degrees, share), mixed(from.opacity, to.opacity, share)};
}

FontQuizPose thrown(const FontQuizPose &from, const FontQuizPose &to, double share)
{
    const double way = eased(QEasingCurve::InOutQuad, share);
    FontQuizPose pose = between(from, to, way);
    // It gets small first, as what is thrown away from the eye does.
    pose.scale = mixed(from.scale, to.scale, eased(QEasingCurve::OutCubic, share));
    const double hump = std::sin(std::numbers::pi * way);
    const double larger = std::max(from.scale, to.scale);
    pose.centre.ry() -= hump * kRise * kFontQuizCardSize.height() * larger;
    const double side = to.centre.x() - from.centre.x();
    pose.degrees += hump * kTurn * std::clamp(side / 200, -1.0, 1.0);
    return pose;
}

} // namespace lorva
