// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#pragma once

#include "text/Font.h"

#include <QColor>
#include <QRectF>

class QPainter;

namespace lorva {

/// The coloured pictures that one table of a font gives to glyphs.
///
/// Made for one font at its size. Thread: any, one at a time per object.
/// Units: points, y down, the glyph's origin at (0, 0).
/// Hostile fonts: work per glyph is bounded; a picture that cannot be drawn counts as absent.
class ColorGlyphSource
{
public:
    virtual ~ColorGlyphSource() = default;

    /// Whether the glyph has a picture that can be drawn.
    virtual bool has(quint32 glyph) = 0;
    /// What paint() touches; null when has() is false or nothing shows.
    virtual QRectF bounds(quint32 glyph) = 0;
    /// Paints the picture; true if it did. The painter's transform says how many device pixels a
    /// point takes. `foreground` is the text's colour, where the picture asks for it. The painter's
    /// state is left as it was. Paints as vectors where the painter's device and the picture allow.
    virtual bool paint(QPainter &painter, quint32 glyph, const QColor &foreground) = 0;
};

/// OpenType `COLR` versions 0 and 1 with the font's palette; null when the face has none.
std::unique_ptr<ColorGlyphSource> makeColrGlyphs(const Font &font);
/// OpenType `SVG `; null when the face has none.
std::unique_ptr<ColorGlyphSource> makeSvgGlyphs(const Font &font);
/// `CBDT` and `sbix` bitmaps; null when the face has none.
std::unique_ptr<ColorGlyphSource> makeBitmapGlyphs(const Font &font);

/// Whether the face has a table of coloured glyphs at all; costs nothing.
bool mayHaveColor(const FontFace &face);

} // namespace lorva
