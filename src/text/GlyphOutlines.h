// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#pragma once

#include "text/TextLayout.h"

#include <QPainterPath>

#include <functional>
#include <unordered_set>

namespace lorva {

/// Outlines of the glyphs of one font at its size.
///
/// Thread: any, one at a time per object. Units: points, y down.
/// Hostile fonts: a glyph of more than kMaxOutlineSegments segments, or one that reaches further
/// than any type does, is left out.
class GlyphOutliner
{
public:
    explicit GlyphOutliner(const Font &font);

    const Font &font() const { return m_font; }
    /// Appends the glyph with its origin at `at`; gives the number of segments that this took,
    /// drawn or not.
    int append(QPainterPath &path, quint32 glyph, QPointF at);
    /// Points that the pen moves on after the glyph when it stands alone; 0 for one that claims to
    /// reach further than any type does.
    double advance(quint32 glyph) const;
    /// Points that the face's missing glyph takes by itself, without letter spacing.
    double missingAdvance(double otherwise) const;

private:
    Font m_font;
    std::shared_ptr<hb_font_t> m_shapingFont;
    /// Glyphs without ink. HarfBuzz works long on some hostile ones before it gives them up, and a
    /// text may repeat them thousands of times.
    std::unordered_set<quint32> m_inkless;
    double m_pointsPerUnit = 0;
    double m_reach = 0;
};

class ColorGlyphs;

/// What shows of a layout, in the visual order of its lines. Coordinates are the layout's.
class InkVisitor
{
public:
    virtual ~InkVisitor() = default;

    /// Outlines with non-zero winding. Neighbours whose boxes touch come as one path, so that
    /// joined scripts are filled without a seam; others apart, because the cost of filling grows
    /// steeply with the length of a path.
    virtual void outline(const LayoutLine &line, const QPainterPath &outline) = 0;
    /// A coloured picture of `glyph` that has its origin at `at`. False if it could not be drawn:
    /// the glyph's outline follows.
    virtual bool picture(const LayoutLine &line, ColorGlyphs &glyphs, quint32 glyph,
                         QPointF at) = 0;
};

/// Visits coloured pictures where glyphs have one, else outlines, and a hollow box for missing
/// glyphs whose face has no ink for them. Ends early when the whole takes more segments than any
/// text does.
void visitInk(const TextLayout &layout, InkVisitor &visitor);

/// As visitInk(), the outlines of all glyphs, coloured or not.
void forEachOutline(
    const TextLayout &layout,
    const std::function<void(const LayoutLine &line, const QPainterPath &outline)> &visit);

/// The box around what visitInk() visits; null when nothing shows.
QRectF inkBoundsOf(const TextLayout &layout);

} // namespace lorva
