// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#include "text/color/ColorGlyphs.h"

#include "text/FontFaceData.h"

#include <algorithm>

namespace lorva {

bool mayHaveColor(const FontFace &face)
{
    const SfntDirectory &directory = face.data().directory;
    return directory.has(fontTag('C', 'O', 'L', 'R')) || directory.has(fontTag('S', 'V', 'G', ' '))
        || directory.has(fontTag('C', 'B', 'D', 'T')) || directory.has(fontTag('s', 'b', 'i', 'x'));
}

ColorGlyphs::ColorGlyphs(Font font)
    : m_font(std::move(font))
{
}

ColorGlyphs::~ColorGlyphs() = default;

QRectF ColorGlyphs::bounds(quint32 glyph)
{
    ColorGlyphSource *const found = source(glyph);
    return found ? found->bounds(glyph) : QRectF();
}

bool ColorGlyphs::paint(QPainter &painter, quint32 glyph, const QColor &foreground)
{
    ColorGlyphSource *const found = source(glyph);
    return found && found->paint(painter, glyph, foreground);
}

ColorGlyphSource *ColorGlyphs::source(quint32 glyph)
{
    ensureSources();
    const auto found = std::find_if(m_sources.begin(), m_sources.end(),
                                    [glyph](const auto &source) { return source->has(glyph); });
    return found == m_sources.end() ? nullptr : found->get();
}

void ColorGlyphs::ensureSources()
{
    if (m_areSourcesMade)
        return;
    m_areSourcesMade = true;
    if (m_font.isNull() || !mayHaveColor(*m_font.face()))
        return;
    for (const auto make : {makeColrGlyphs, makeSvgGlyphs, makeBitmapGlyphs}) {
        if (auto source = make(m_font))
            m_sources.push_back(std::move(source));
    }
}

} // namespace lorva
