// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT

#include "ui/onboarding/PolygonRings.h"

#include <QLineF>

#include <algorithm>
#include <cmath>

namespace lorva {

namespace {

double dot(QPointF a, QPointF b)
{
    return a.x() * b.x() + a.y() * b.y();
}

double distanceToSegment(QPointF point, QPointF from, QPointF to)
{
    const QPointF along = to - from;
    const double squared = dot(along, along);
    const double share =
        squared > 0 ? std::clamp(dot(point - from, along) / squared, 0.0, 1.0) : 0.0;
    return QLineF(point, from + share * along).length();
}

/// Keeps what is needed between two points that are kept (Ramer, Douglas and Peucker).
void keepBetween(const QPolygonF &ring, qsizetype first, qsizetype last, double tolerance,
                 std::vector<bool> &isKept)
{
    double farthest = tolerance;
    qsizetype at = -1;
    for (qsizetype i = first + 1; i < last; ++i) {
        const double distance = distanceToSegment(ring[i], ring[first], ring[last % ring.size()]);
        if (distance > farthest) {
            farthest = distance;
            at = i;
        }
    }
    if (at < 0)
        return;
    isKept[size_t(at)] = true;
    keepBetween(ring, first, at, tolerance, isKept);
    keepBetween(ring, at, last, tolerance, isKept);
}

qsizetype farthestFrom(const QPolygonF &ring, QPointF point)
{
    const auto far = std::ranges::max_element(
        ring, {}, [point](QPointF p) { return dot(p - point, p - point); });
    return far - ring.begin();
}

bool isOnSegment(QPointF point, QPointF from, QPointF to)
{
    return turn(from, to, point) == 0 && std::min(from.x(), to.x()) <= point.x()
        && point.x() <= std::max(from.x(), to.x()) && std::min(from.y(), to.y()) <= point.y()
        && point.y() <= std::max(from.y(), to.y());
}

int sign(double value)
{
    return (value > 0) - (value < 0);
}

bool segmentsMeet(QPointF a, QPointF b, QPointF c, QPointF d)
{
    if (isOnSegment(c, a, b) || isOnSegment(d, a, b) || isOnSegment(a, c, d)
        || isOnSegment(b, c, d))
        return true;
    return sign(turn(a, b, c)) != sign(turn(a, b, d)) && sign(turn(c, d, a)) != sign(turn(c, d, b));
}

} // namespace

double turn(QPointF a, QPointF b, QPointF c)
{
    return (b.x() - a.x()) * (c.y() - a.y()) - (b.y() - a.y()) * (c.x() - a.x());
}

double signedArea(const QPolygonF &ring)
{
    double twice = 0;
    for (qsizetype i = 0; i < ring.size(); ++i)
        twice += turn(ring[0], ring[i], ring[(i + 1) % ring.size()]);
    return twice / 2;
}

QPolygonF convexHull(QPolygonF points)
{
    std::ranges::sort(points, [](QPointF a, QPointF b) {
        return a.x() != b.x() ? a.x() < b.x() : a.y() < b.y();
    });
    // Lower and upper chain, one after the other (Andrew).
    QPolygonF hull;
    for (int pass = 0; pass < 2; ++pass) {
        const qsizetype start = hull.size();
        for (const QPointF point : points) {
            while (hull.size() >= start + 2 && turn(hull[hull.size() - 2], hull.back(), point) <= 0)
                hull.removeLast();
            hull.append(point);
        }
        if (!hull.isEmpty())
            hull.removeLast();
        std::ranges::reverse(points);
    }
    return hull;
}

QPolygonF thinnedRing(const QPolygonF &ring, double tolerance)
{
    if (ring.size() < 4)
        return ring;
    // Two points far from each other stay in any case.
    QPolygonF turned = ring;
    std::rotate(turned.begin(), turned.begin() + farthestFrom(ring, ring[0]), turned.end());
    const qsizetype opposite = farthestFrom(turned, turned[0]);
    std::vector<bool> isKept(size_t(turned.size()), false);
    isKept[0] = isKept[size_t(opposite)] = true;
    keepBetween(turned, 0, opposite, tolerance, isKept);
    keepBetween(turned, opposite, turned.size(), tolerance, isKept);
    QPolygonF thinned;
    for (qsizetype i = 0; i < turned.size(); ++i)
        if (isKept[size_t(i)])
            thinned.append(turned[i]);
    return thinned;
}

bool isSimpleRing(const QPolygonF &ring)
{
    const qsizetype count = ring.size();
    if (count < 3)
        return false;
    const auto at = [&ring, count](qsizetype i) { return ring[i % count]; };
    for (qsizetype i = 0; i < count; ++i) {
        // A side that goes back over the one before it.
        if (isOnSegment(at(i + 2), at(i), at(i + 1)) || isOnSegment(at(i), at(i + 1), at(i + 2)))
            return false;
        for (qsizetype j = i + 2; j < count - (i == 0 ? 1 : 0); ++j)
            if (segmentsMeet(at(i), at(i + 1), at(j), at(j + 1)))
                return false;
    }
    return true;
}

bool containsPoint(const QPolygonF &ring, QPointF point)
{
    bool isInside = false;
    for (qsizetype i = 0; i < ring.size(); ++i) {
        const QPointF a = ring[i];
        const QPointF b = ring[(i + 1) % ring.size()];
        if (isOnSegment(point, a, b))
            return true;
        if ((a.y() > point.y()) != (b.y() > point.y())
            && point.x() < a.x() + (point.y() - a.y()) / (b.y() - a.y()) * (b.x() - a.x()))
            isInside = !isInside;
    }
    return isInside;
}

} // namespace lorva
