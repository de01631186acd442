// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT

#include "ui/onboarding/ConvexParts.h"

#include "ui/onboarding/PolygonRings.h"

#include <algorithm>
#include <cmath>
#include <functional>
#include <iterator>
#include <limits>
#include <numeric>
#include <optional>

namespace lorva {

namespace {

constexpr int kMaximumElements = 3000;
constexpr int kMaximumRings = 64;
constexpr qsizetype kMaximumCorners = 140;
/// Letters of more pieces, which are ideographs mostly, would catch others between them.
constexpr size_t kMostIslands = 3;
/// Crossings are looked for in time that grows with the square.
constexpr qsizetype kMaximumCrossingPoints = 400;
constexpr double kFirstTolerance = 0.7;
constexpr int kCoarsenings = 3;
/// In square points: smaller parts hold nothing up, and the physics takes them for lines.
constexpr double kLeastArea = 1;
/// Of the largest contour, which the union of all cannot be smaller than.
constexpr double kLeastUnion = 0.9;
/// Corners nearer than this are one for the physics, which counts in larger units.
constexpr double kNearestCorners = 0.5;

using Rings = std::vector<QPolygonF>;

bool isReasonable(const QRectF &bounds)
{
    const QRectF room(-kFarthestPart, -kFarthestPart, 2 * kFarthestPart, 2 * kFarthestPart);
    return std::isfinite(bounds.width()) && std::isfinite(bounds.height()) && room.contains(bounds);
}

QPolygonF withoutRepeats(const QPolygonF &points, double distance)
{
    QPolygonF ring;
    const auto isNear = [distance](QPointF a, QPointF b) {
        return std::hypot(a.x() - b.x(), a.y() - b.y()) <= distance;
    };
    for (const QPointF point : points)
        if (ring.isEmpty() || !isNear(ring.back(), point))
            ring.append(point);
    while (ring.size() > 1 && isNear(ring.back(), ring.front()))
        ring.removeLast();
    return ring;
}

QPolygonF turnedPositive(QPolygonF ring)
{
    if (signedArea(ring) < 0)
        std::ranges::reverse(ring);
    return ring;
}

Rings ringsOf(const QPainterPath &outline)
{
    Rings rings;
    for (const QPolygonF &polygon : outline.toSubpathPolygons()) {
        QPolygonF ring = turnedPositive(withoutRepeats(polygon, 1e-6));
        // Loops of opposite direction may cancel each other out.
        if (ring.size() >= 3 && signedArea(convexHull(ring)) >= kLeastArea)
            rings.push_back(std::move(ring));
    }
    std::ranges::sort(rings, std::greater(), signedArea);
    if (rings.size() > kMaximumRings)
        rings.resize(kMaximumRings);
    return rings;
}

bool liesWithin(const QPolygonF &inner, const QPolygonF &outer)
{
    return outer.boundingRect().contains(inner.boundingRect())
        && std::ranges::all_of(inner,
                               [&outer](QPointF point) { return containsPoint(outer, point); });
}

/// Counters, and what lies in them.
Rings withoutInner(const Rings &rings)
{
    Rings outer;
    for (const QPolygonF &ring : rings)
        if (std::ranges::none_of(
                outer, [&ring](const QPolygonF &other) { return liesWithin(ring, other); }))
            outer.push_back(ring);
    return outer;
}

/// Nothing where it cannot be thinned without crossing itself.
std::optional<QPolygonF> simpleRing(const QPolygonF &ring, double tolerance)
{
    // Thinning may let a thin stroke cross itself; a finer one does not.
    for (const double factor : {1.0, 0.5, 0.2, 2.0}) {
        QPolygonF thinned = thinnedRing(ring, tolerance * factor);
        if (thinned.size() <= kMaximumCorners && isSimpleRing(thinned))
            return thinned;
    }
    return {};
}

/// The corners of a convex polygon, at most as many as the physics takes: those go first that cut
/// off least.
QPolygonF withFewerCorners(QPolygonF hull)
{
    while (hull.size() > kMaximumPartCorners) {
        const qsizetype count = hull.size();
        qsizetype least = 0;
        double leastLoss = std::numeric_limits<double>::infinity();
        for (qsizetype i = 0; i < count; ++i) {
            const double loss = turn(hull[(i + count - 1) % count], hull[i], hull[(i + 1) % count]);
            if (loss < leastLoss) {
                leastLoss = loss;
                least = i;
            }
        }
        hull.remove(least);
    }
    return hull;
}

void appendSound(std::vector<QPolygonF> &parts, const QPolygonF &polygon)
{
    const QPolygonF part =
        withFewerCorners(convexHull(withoutRepeats(convexHull(polygon), kNearestCorners)));
    if (part.size() >= 3 && signedArea(part) >= kLeastArea)
        parts.push_back(part);
}

void appendParts(std::vector<QPolygonF> &parts, const QPolygonF &ring, double tolerance)
{
    const std::optional<QPolygonF> simple = simpleRing(ring, tolerance);
    if (!simple)
        return appendSound(parts, ring);
    for (const QPolygonF &polygon :
         joinedTriangles(*simple, triangulated(*simple), kMaximumPartCorners))
        appendSound(parts, polygon);
}

double areaOf(const Rings &rings)
{
    return std::accumulate(rings.begin(), rings.end(), 0.0, [](double sum, const QPolygonF &ring) {
        return sum + signedArea(ring);
    });
}

/// Contours that overlap, or cross themselves, as contours that do not: variable fonts and scripts
/// are drawn like that. As they are where there are too many points to look for crossings.
Rings united(const Rings &rings)
{
    Rings thinned;
    qsizetype points = 0;
    for (const QPolygonF &ring : rings) {
        thinned.push_back(thinnedRing(ring, kFirstTolerance / 2));
        points += thinned.back().size();
    }
    const bool isSeparate = rings.size() == 1 && isSimpleRing(thinned.front());
    if (isSeparate || rings.empty() || points > kMaximumCrossingPoints)
        return rings;
    QPainterPath path;
    path.setFillRule(Qt::WindingFill);
    for (const QPolygonF &ring : thinned) {
        path.addPolygon(ring);
        path.closeSubpath();
    }
    Rings whole = withoutInner(ringsOf(path.simplified()));
    // Rounding may have lost some of it.
    return areaOf(whole) < kLeastUnion * signedArea(rings.front()) ? rings : whole;
}

std::vector<QPolygonF> partsOf(const Rings &rings, double tolerance)
{
    std::vector<QPolygonF> parts;
    for (const QPolygonF &ring : rings)
        appendParts(parts, ring, tolerance);
    return parts;
}

std::vector<QPolygonF> hullsOf(const Rings &rings)
{
    std::vector<QPolygonF> hulls;
    for (const QPolygonF &ring : rings)
        appendSound(hulls, ring);
    return hulls;
}

std::vector<QPolygonF> hullOf(const QPolygonF &points)
{
    std::vector<QPolygonF> parts;
    appendSound(parts, points);
    return parts;
}

/// Without looking at the order that the points come in.
std::vector<QPolygonF> wholeHull(const QPainterPath &outline)
{
    QPolygonF points;
    for (int i = 0; i < outline.elementCount(); ++i)
        points.append(QPointF(outline.elementAt(i)));
    return hullOf(points);
}

std::vector<QPolygonF> jointHull(const Rings &rings)
{
    QPolygonF points;
    for (const QPolygonF &ring : rings)
        points += ring;
    return hullOf(points);
}

} // namespace

std::vector<QPolygonF> convexParts(const QPainterPath &outline)
{
    if (!isReasonable(outline.controlPointRect()))
        return {};
    if (outline.elementCount() > kMaximumElements)
        return wholeHull(outline);
    const Rings rings = united(withoutInner(ringsOf(outline)));
    if (rings.size() > kMostIslands)
        return jointHull(rings);
    double tolerance = kFirstTolerance;
    for (int i = 0; i < kCoarsenings; ++i, tolerance *= 2)
        if (std::vector<QPolygonF> parts = partsOf(rings, tolerance); parts.size() <= kMaximumParts)
            return parts;
    std::vector<QPolygonF> hulls = hullsOf(rings);
    std::ranges::sort(hulls, std::greater(), signedArea);
    hulls.resize(std::min<size_t>(hulls.size(), kMaximumParts));
    return hulls;
}

} // namespace lorva
