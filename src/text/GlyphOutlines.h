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

private:
    Font m_font;
    std::shared_ptr<hb_font_t> m_shapingFont;
    /// Glyphs without ink. HarfBuzz works long on some hostile ones before it gives them up, and a
    /// text may repeat them thousands of times.
    std::unordered_set<quint32> m_inkless;
    double m_pointsPerUnit = 0;
    double m_reach = 0;
};

/// The outlines of all that has ink, in the layout's coordinates, with non-zero winding. Neighbours
/// whose boxes touch come as one path, so that joined scripts are filled without a seam; others
/// apart, because the cost of filling grows steeply with the length of a path. Ends early when the
/// whole takes more segments than any text does.
void forEachOutline(
    const TextLayout &layout,
    const std::function<void(const LayoutLine &line, const QPainterPath &outline)> &visit);

} // namespace lorva
