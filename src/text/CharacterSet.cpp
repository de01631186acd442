// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#include "text/CharacterSet.h"

#include "text/CharacterMapWork.h"
#include "text/FontFaceData.h"
#include "text/WarmFaces.h"

#include <hb.h>

#include <algorithm>
#include <array>

namespace lorva {

namespace {

constexpr char32_t kLastScalar = 0x10FFFF;

/// HarfBuzz's view of the face for this one question: nothing stays in memory, and nothing but the
/// character map is read.
WarmFace passingFace(const FontFace &face)
{
    return {face.data().file, face.data().directory};
}

/// HarfBuzz reads U+0000 … U+00FF of a symbol font at U+F000 …, but lists the latter only.
void addSymbolCharacters(hb_font_t *font, std::vector<CharacterRange> &ranges)
{
    for (char32_t c = 0; c <= 0xFF; ++c) {
        hb_codepoint_t glyph = 0;
        if (hb_font_get_nominal_glyph(font, c, &glyph) && glyph != 0)
            ranges.push_back({c, c});
    }
}

CharacterSet charactersOf(const WarmFace &face)
{
    if (!isCharacterMapWorkable(face.face()))
        return {};
    const std::unique_ptr<hb_set_t, decltype(&hb_set_destroy)> characters(hb_set_create(),
                                                                          hb_set_destroy);
    hb_face_collect_unicodes(face.face(), characters.get());
    std::vector<CharacterRange> ranges;
    hb_codepoint_t first = HB_SET_VALUE_INVALID;
    hb_codepoint_t last = HB_SET_VALUE_INVALID;
    while (hb_set_next_range(characters.get(), &first, &last))
        ranges.push_back({first, last});
    addSymbolCharacters(face.font(), ranges);
    return CharacterSet(std::move(ranges));
}

/// Asks for many characters at once, which saves a call through HarfBuzz's tables for each.
void noteGlyphs(hb_font_t *font, CharacterRange range, std::vector<char32_t> &byGlyph)
{
    std::array<hb_codepoint_t, 256> characters;
    std::array<hb_codepoint_t, 256> glyphs;
    for (char32_t next = range.first; next <= range.last;) {
        const size_t wanted = std::min<size_t>(characters.size(), range.last - next + 1);
        for (size_t i = 0; i < wanted; ++i)
            characters[i] = next + char32_t(i);
        const size_t found = hb_font_get_nominal_glyphs(font, unsigned(wanted), characters.data(),
                                                        sizeof(hb_codepoint_t), glyphs.data(),
                                                        sizeof(hb_codepoint_t));
        for (size_t i = 0; i < found; ++i)
            if (glyphs[i] < byGlyph.size() && glyphs[i] != 0 && byGlyph[glyphs[i]] == 0)
                byGlyph[glyphs[i]] = characters[i];
        next += char32_t(std::max<size_t>(found, 1)); // the one after them leads to no glyph
    }
}

} // namespace

CharacterSet::CharacterSet(std::vector<CharacterRange> ranges)
{
    std::erase_if(ranges, [](const CharacterRange &range) {
        return range.first > range.last || range.first > kLastScalar;
    });
    std::sort(ranges.begin(), ranges.end(),
              [](const CharacterRange &a, const CharacterRange &b) { return a.first < b.first; });
    for (CharacterRange range : ranges) {
        range.last = std::min(range.last, kLastScalar);
        if (!m_ranges.empty() && range.first <= m_ranges.back().last + 1)
            m_ranges.back().last = std::max(m_ranges.back().last, range.last);
        else
            m_ranges.push_back(range);
    }
    m_ranges.shrink_to_fit();
    for (const CharacterRange &range : m_ranges)
        m_count += int(range.last - range.first + 1);
}

bool CharacterSet::contains(char32_t scalar) const
{
    return intersects({scalar, scalar});
}

bool CharacterSet::intersects(CharacterRange range) const
{
    const auto at = std::lower_bound(
        m_ranges.begin(), m_ranges.end(), range.first,
        [](const CharacterRange &held, char32_t wanted) { return held.last < wanted; });
    return at != m_ranges.end() && range.first <= range.last && at->first <= range.last;
}

CharacterSet readCharacters(const FontFace &face)
{
    return charactersOf(passingFace(face));
}

std::vector<char32_t> charactersByGlyph(const FontFace &face)
{
    std::vector<char32_t> byGlyph(size_t(face.glyphCount()), 0);
    const WarmFace passing = passingFace(face);
    const CharacterSet characters = charactersOf(passing);
    for (const CharacterRange &range : characters.ranges())
        noteGlyphs(passing.font(), range, byGlyph);
    return byGlyph;
}

} // namespace lorva
