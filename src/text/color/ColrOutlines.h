// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#pragma once

#include "text/color/ColrPaint.h"
#include "text/FontLimits.h"
#include "text/GlyphOutlines.h"

#include <unordered_map>

namespace lorva {

/// Outlines that the paints of colour glyphs refer to, in font units, y up. Paints use the same
/// few over and over.
///
/// Thread: any, one at a time per object. Hostile fonts: after kMaxColorSegments segments all
/// outlines are empty.
class ColrOutlines
{
public:
    explicit ColrOutlines(const Font &font);

    /// Stays where it is until the next call.
    const QPainterPath &outline(quint32 glyph);

private:
    const QPainterPath &keptOutline(quint32 glyph);

    GlyphOutliner m_outliner;
    std::unordered_map<quint32, QPainterPath> m_outlines;
    int m_segments = 0;
    qint64 m_segmentsLeft = kMaxColorSegments;
};

/// Where a paint shows.
struct ColrExtent
{
    /// Everywhere; `box` says nothing then.
    bool isUnbounded = false;
    QRectF box;
};
/// After `transform`. Boxes of rotated outlines are as tight as those of upright ones.
ColrExtent extentOf(const ColrPaint &paint, const QTransform &transform, ColrOutlines &outlines);

} // namespace lorva
