// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#pragma once

#include "text/layout/TextItemizer.h"

#include <hb.h>

namespace lorva {

/// One glyph as shaped, in points.
struct ShapedGlyph
{
    quint32 glyph = 0;
    /// UTF-16 index into the paragraph.
    int cluster = 0;
    double advance = 0;
    /// From the pen, y down.
    QPointF offset;
    /// Text cut before this cluster has to be shaped anew.
    bool isUnsafeToBreak = false;
};

/// An item and its glyphs from left to right; clusters rise, or fall when the item is
/// right-to-left.
struct ShapedRun
{
    TextItem item;
    std::vector<ShapedGlyph> glyphs;
};

/// Turns items of a paragraph into glyphs of one font (HarfBuzz).
///
/// Thread: any, one at a time per object; the shaping buffer is the thread's.
/// Hostile fonts: HarfBuzz bounds its own work; advances and offsets that no type has are clamped.
class TextShaper
{
public:
    TextShaper(const Font &font, double letterSpacing, const QByteArray &language);

    const Font &font() const { return m_font; }
    /// BCP 47: what was asked for, else what the item's writing implies, else empty.
    QByteArray languageTag(const TextItem &item) const;
    /// The glyphs of `item`, joined to the text around it as that stands in `paragraph`.
    ShapedRun shape(QStringView paragraph, const TextItem &item) const;
    /// The ellipsis that the face can draw, in the item's direction and script, with every cluster
    /// at the item's start; no glyphs if it can draw none.
    ShapedRun shapeEllipsis(const TextItem &item) const;

private:
    double toPoints(hb_position_t units) const;
    hb_language_t languageFor(const TextItem &item) const;
    std::vector<ShapedGlyph> glyphsIn(hb_buffer_t *buffer) const;
    void addLetterSpacing(QStringView paragraph, ShapedRun &run) const;

    Font m_font;
    std::shared_ptr<hb_font_t> m_shapingFont;
    std::vector<hb_feature_t> m_features;
    double m_letterSpacing = 0;
    double m_pointsPerUnit = 0;
    QByteArray m_languageTag;
    hb_language_t m_language = HB_LANGUAGE_INVALID;
};

} // namespace lorva
