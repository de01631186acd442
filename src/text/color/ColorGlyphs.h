// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#pragma once

#include "text/color/ColorGlyphSource.h"

namespace lorva {

/// Of each glyph of a font the coloured picture that counts: `COLR`, else `SVG `, else a bitmap.
///
/// Sources are made when first needed; a font without colour costs nothing. As ColorGlyphSource
/// else.
class ColorGlyphs
{
public:
    explicit ColorGlyphs(Font font);
    ~ColorGlyphs();

    bool has(quint32 glyph) { return source(glyph) != nullptr; }
    QRectF bounds(quint32 glyph);
    bool paint(QPainter &painter, quint32 glyph, const QColor &foreground);

private:
    /// Null for a glyph without colour.
    ColorGlyphSource *source(quint32 glyph);
    void ensureSources();

    Font m_font;
    bool m_areSourcesMade = false;
    std::vector<std::unique_ptr<ColorGlyphSource>> m_sources;
};

} // namespace lorva
