// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#pragma once

#include "text/Font.h"

#include <QColor>
#include <QImage>
#include <QPoint>
#include <QSize>

#include <memory>

class QPainter;

namespace lorva {

/// The pixels of one glyph in its box.
struct GlyphInk
{
    /// Coverage (Alpha8), or premultiplied colours of a coloured glyph; null for one without ink.
    QImage image;
    /// The image's top left, in device pixels from the box's.
    QPoint devicePosition;
    bool isColored = false;

    /// What is drawn for a text of that colour.
    QImage colored(const QColor &color) const;
};

/// How glyphs are painted.
struct GlyphLook
{
    Font font;
    /// Of the box that each glyph stands in, in points.
    QSize box = {64, 64};
    /// Kept free around the ink.
    int margin = 4;
    double devicePixelRatio = 1.0;
    /// For the parts of coloured glyphs that ask for it.
    QColor foreground = Qt::black;

    bool operator==(const GlyphLook &) const = default;
};

/// Paints glyphs one at a time, without shaping: centred by their advance, on a baseline that all
/// of them share. Ink that would leave the box is moved into it, and made smaller where it is too
/// large.
///
/// Thread: any, one at a time per object. Hostile fonts: as GlyphOutliner.
class GlyphInkPainter
{
public:
    explicit GlyphInkPainter(const GlyphLook &look);
    ~GlyphInkPainter();

    GlyphInk paint(quint32 glyph);

private:
    struct Parts;
    /// From glyph space (origin on the baseline, points) to the box's device pixels.
    QTransform placed(const QRectF &ink, double advance) const;
    template <class Draw>
    GlyphInk painted(const QRectF &inkPx, const Draw &draw) const;

    const GlyphLook m_look;
    double m_baseline = 0;
    std::unique_ptr<Parts> m_parts;
};

} // namespace lorva
