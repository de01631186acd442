// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QPolygonF>

#include <array>
#include <vector>

namespace lorva {

// Closed rings of points: what outlines become before they can fall. The last point is not the
// first one again. Pure functions. Thread: any.

/// A corner by its index in the ring.
using TriangleCorners = std::array<int, 3>;

/// Positive when the ring turns from the x axis towards the y axis.
double signedArea(const QPolygonF &ring);
/// Of the turn at b on the way a, b, c: positive towards the y axis.
double turn(QPointF a, QPointF b, QPointF c);
/// The smallest convex ring around the points, with positive area and without corners that are
/// straight; fewer than three points when they lie on one line.
QPolygonF convexHull(QPolygonF points);
/// Leaves out points that lie nearer than `tolerance` to the line without them.
QPolygonF thinnedRing(const QPolygonF &ring, double tolerance);
/// No two sides cross or touch, but neighbours where they meet. Takes the square of the points.
bool isSimpleRing(const QPolygonF &ring);
/// Also true on the border. The ring may be of either direction.
bool containsPoint(const QPolygonF &ring, QPointF point);

/// The triangles that make up a simple ring of positive area. Where rounding leaves no ear to cut,
/// the rest is left out. Takes the cube of the points at worst.
std::vector<TriangleCorners> triangulated(const QPolygonF &ring);
/// Joins triangles of the ring into convex polygons of at most `maximumCorners` corners.
std::vector<QPolygonF> joinedTriangles(const QPolygonF &ring,
                                       const std::vector<TriangleCorners> &triangles,
                                       int maximumCorners);

} // namespace lorva
