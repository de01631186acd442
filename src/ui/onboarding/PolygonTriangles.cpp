// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT

#include "ui/onboarding/PolygonRings.h"

#include <algorithm>
#include <limits>
#include <optional>

namespace lorva {

namespace {

/// What is left of a ring while ears are cut from it.
class EarCutter
{
public:
    explicit EarCutter(const QPolygonF &ring)
        : m_ring(ring)
    {
        for (int i = 0; i < int(ring.size()); ++i)
            m_left.push_back(i);
    }

    std::vector<TriangleCorners> cut()
    {
        std::vector<TriangleCorners> triangles;
        while (m_left.size() >= 3) {
            dropStraightCorners();
            const std::optional<size_t> ear = bestEar();
            if (!ear)
                break;
            triangles.push_back(cornersAt(*ear));
            m_left.erase(m_left.begin() + std::ptrdiff_t(*ear));
        }
        return triangles;
    }

private:
    TriangleCorners cornersAt(size_t i) const
    {
        const size_t count = m_left.size();
        return {m_left[(i + count - 1) % count], m_left[i], m_left[(i + 1) % count]};
    }
    double turnAt(size_t i) const
    {
        const auto [a, b, c] = cornersAt(i);
        return turn(m_ring[a], m_ring[b], m_ring[c]);
    }
    void dropStraightCorners()
    {
        for (size_t i = 0; m_left.size() >= 3 && i < m_left.size();)
            if (turnAt(i) == 0)
                m_left.erase(m_left.begin() + std::ptrdiff_t(i));
            else
                ++i;
    }
    bool isEar(size_t i) const
    {
        if (turnAt(i) <= 0)
            return false;
        const TriangleCorners corners = cornersAt(i);
        return std::ranges::none_of(m_left, [&](int other) {
            return std::ranges::find(corners, other) == corners.end()
                && isInside(m_ring[other], corners);
        });
    }
    bool isInside(QPointF point, const TriangleCorners &corners) const
    {
        const auto [a, b, c] = corners;
        return turn(m_ring[a], m_ring[b], point) >= 0 && turn(m_ring[b], m_ring[c], point) >= 0
            && turn(m_ring[c], m_ring[a], point) >= 0;
    }
    /// The one with the shortest cut, which leaves the fewest splinters.
    std::optional<size_t> bestEar() const
    {
        std::optional<size_t> best;
        double shortest = std::numeric_limits<double>::infinity();
        for (size_t i = 0; m_left.size() >= 3 && i < m_left.size(); ++i) {
            const auto [a, b, c] = cornersAt(i);
            const QPointF cut = m_ring[c] - m_ring[a];
            const double length = QPointF::dotProduct(cut, cut);
            if (length < shortest && isEar(i)) {
                shortest = length;
                best = i;
            }
        }
        return best;
    }

    const QPolygonF &m_ring;
    std::vector<int> m_left;
};

using Corners = std::vector<int>;

/// Where the side from one corner to the other begins.
std::optional<size_t> sideOf(const Corners &polygon, int from, int to)
{
    for (size_t i = 0; i < polygon.size(); ++i)
        if (polygon[i] == from && polygon[(i + 1) % polygon.size()] == to)
            return i;
    return {};
}

bool isConvex(const QPolygonF &ring, const Corners &polygon)
{
    const size_t count = polygon.size();
    for (size_t i = 0; i < count; ++i)
        if (turn(ring[polygon[i]], ring[polygon[(i + 1) % count]], ring[polygon[(i + 2) % count]])
            < 0)
            return false;
    return true;
}

/// Both polygons as one, without the side that they share.
Corners joined(const Corners &first, size_t side, const Corners &second, size_t otherSide)
{
    Corners both;
    for (size_t i = 1; i <= first.size(); ++i)
        both.push_back(first[(side + i) % first.size()]);
    for (size_t i = 2; i < second.size(); ++i)
        both.push_back(second[(otherSide + i) % second.size()]);
    return both;
}

/// Joins `polygon` with another one across one of its sides, if any allows it (Hertel and
/// Mehlhorn).
bool joinWithNeighbour(const QPolygonF &ring, std::vector<Corners> &polygons, size_t at,
                       size_t maximumCorners)
{
    const Corners polygon = polygons[at];
    for (size_t side = 0; side < polygon.size(); ++side)
        for (size_t other = at + 1; other < polygons.size(); ++other) {
            const auto shared =
                sideOf(polygons[other], polygon[(side + 1) % polygon.size()], polygon[side]);
            if (!shared || polygon.size() + polygons[other].size() - 2 > maximumCorners)
                continue;
            Corners both = joined(polygon, side, polygons[other], *shared);
            if (!isConvex(ring, both))
                continue;
            polygons[at] = std::move(both);
            polygons.erase(polygons.begin() + std::ptrdiff_t(other));
            return true;
        }
    return false;
}

} // namespace

std::vector<TriangleCorners> triangulated(const QPolygonF &ring)
{
    return EarCutter(ring).cut();
}

std::vector<QPolygonF> joinedTriangles(const QPolygonF &ring,
                                       const std::vector<TriangleCorners> &triangles,
                                       int maximumCorners)
{
    std::vector<Corners> polygons;
    polygons.reserve(triangles.size());
    for (const TriangleCorners &corners : triangles)
        polygons.emplace_back(corners.begin(), corners.end());
    for (size_t at = 0; at < polygons.size();)
        if (!joinWithNeighbour(ring, polygons, at, size_t(maximumCorners)))
            ++at;
    std::vector<QPolygonF> result;
    for (const Corners &corners : polygons) {
        QPolygonF polygon;
        for (const int corner : corners)
            polygon.append(ring[corner]);
        result.push_back(std::move(polygon));
    }
    return result;
}

} // namespace lorva
