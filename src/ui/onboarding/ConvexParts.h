// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QPainterPath>
#include <QPolygonF>

#include <vector>

namespace lorva {

/// The most corners of a part: what the physics takes.
constexpr int kMaximumPartCorners = 8;
/// The most parts of one outline.
constexpr int kMaximumParts = 40;

/// An outline as convex polygons that may overlap, for letters that fall: of positive area, each of
/// three to kMaximumPartCorners corners, none of them straight, none smaller than a point squared,
/// at most kMaximumParts of them.
///
/// Counters are filled: nothing from outside can ever lie in one. Curves are followed to about a
/// point. An outline of many pieces, or of more points than any letter, gives the hull of what it
/// has; one without any area gives nothing.
///
/// Thread: any. Work is bounded: milliseconds for letters, some
/// tenths of a second for the worst that a font can hold. Units: points; what lies farther than
/// kFarthestPart from the origin gives nothing.
std::vector<QPolygonF> convexParts(const QPainterPath &outline);

constexpr double kFarthestPart = 4096;

} // namespace lorva
