// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#pragma once

#include "ui/quiz/FontQuizDeck.h"

#include <QPointF>
#include <QRect>
#include <QRectF>
#include <QSize>
#include <QTransform>

#include <array>

namespace lorva {

// Where everything in the quiz stands and how it moves. Plain functions; thread: any. Units: points
// of the window.

/// A card at full size.
inline constexpr QSize kFontQuizCardSize{760, 470};
inline constexpr double kFontQuizCardRadius = 22;

struct FontQuizLayout
{
    /// Above the card, and as wide as the window.
    QRect progress;
    QRectF card;
    /// Of the card to its full size, at most 1.
    double cardScale = 1;
    /// From tile 1 on.
    std::array<QRect, kFontQuizTiles> tiles;
    /// Below the tiles, for one quiet line; empty where there is no room.
    QRect hint;
    /// Between card and tiles.
    QRect notice;

    bool operator==(const FontQuizLayout &) const = default;
};

FontQuizLayout fontQuizLayout(QSize window, Qt::LayoutDirection direction);

/// How a card lies in the window.
struct FontQuizPose
{
    QPointF centre;
    /// To the card's full size.
    double scale = 1;
    /// Clockwise.
    double degrees = 0;
    double opacity = 1;

    /// From points of the card, whose centre is the origin.
    QTransform transform() const;
    /// What a card there covers, `margin` points of the card around it included.
    QRectF bounds(double margin) const;
    bool operator==(const FontQuizPose &) const = default;
};

/// Of the card that is current (0), and of the next ones behind it; those beyond the second are not
/// seen.
FontQuizPose fontQuizRestPose(const FontQuizLayout &layout, int depth);
/// The card within a tile that lies `number`th on its pile, from 0.
FontQuizPose fontQuizPilePose(const QRect &tile, int number);
/// In a straight line.
FontQuizPose between(const FontQuizPose &from, const FontQuizPose &to, double share);
/// Thrown in an arc; turned a little in the middle.
FontQuizPose thrown(const FontQuizPose &from, const FontQuizPose &to, double share);

} // namespace lorva
