// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QStringView>

namespace lorva {

/// About how often the lines of an outline cross each other, which is what filling it costs: the
/// library that draws looks for every crossing, and a path of n lines can have n² of them. Lines of
/// control points stand for curves. `points` are SVG path data, or the list of a polygon's corners.
/// Takes a few passes over the lines, whatever they are, and ends beyond kMaxSvgCrossings. Thread:
/// any.
double svgCrossings(QStringView points, bool isPathData);
/// The most that a stroke along the outline can have, whose sides cross at every bend.
double svgMostCrossings(QStringView points, bool isPathData);

} // namespace lorva
