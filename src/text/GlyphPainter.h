// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#pragma once

#include "text/TextLayout.h"

#include <QColor>
#include <QImage>
#include <QPainterPath>

class QPainter;

namespace lorva {

/// Fills glyph outlines into images.
///
/// Stateless. Thread: any, on images that no other thread touches. Units: points; the device-pixel
/// ratio of the image maps them to pixels, so outlines are sharp at every ratio. Hostile fonts: a
/// glyph of more than kMaxOutlineSegments segments is left out.
class GlyphPainter
{
public:
    /// Paints `layout` with its box's top left at `origin`; baselines move to the next pixel edge,
    /// so that the feet of letters are sharp. The image must be of format ARGB32_Premultiplied or
    /// RGB32.
    static void paint(QImage &image, const TextLayout &layout, QPointF origin, const QColor &color);

    /// Paints on any device: widgets, PDF, SVG. Outlines stay outlines, and colour glyphs vectors
    /// where the device can show them. Nothing is moved to pixel edges.
    static void paint(QPainter &painter, const TextLayout &layout, QPointF origin,
                      const QColor &color);

    /// The outlines of the whole layout as one path (points, y down, non-zero winding).
    static QPainterPath path(const TextLayout &layout);
};

} // namespace lorva
