// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QtGlobal>

#include <memory>
#include <span>
#include <vector>

namespace lorva {

class FontFace;

/// Both ends included.
struct CharacterRange
{
    char32_t first = 0;
    char32_t last = 0;
    bool operator==(const CharacterRange &) const = default;
};

/// The code points that a face maps to a glyph, as ranges: 65,000 characters take a few kilobytes.
///
/// A value; ranges rise, never touch and never reach beyond U+10FFFF. Thread: any.
class CharacterSet
{
public:
    CharacterSet() = default;
    /// Any ranges in any order.
    explicit CharacterSet(std::vector<CharacterRange> ranges);

    std::span<const CharacterRange> ranges() const { return m_ranges; }
    /// How many characters.
    int count() const { return m_count; }
    bool isEmpty() const { return m_ranges.empty(); }
    bool contains(char32_t scalar) const;
    /// Whether any character lies in the range.
    bool intersects(CharacterRange range) const;

private:
    std::vector<CharacterRange> m_ranges;
    int m_count = 0;
};

/// What the face maps (OpenType `cmap`, the subtable that HarfBuzz draws with), characters that
/// lead to glyph 0 left out. Reads the file; empty when that fails. At most a few milliseconds for
/// the largest faces. Not kept. Thread: any.
CharacterSet readCharacters(const FontFace &face);

/// The characters that lead to each glyph, by glyph: entry i is the lowest character of glyph i, or
/// 0 for a glyph that no character reaches. As long as the face has glyphs. Thread: any.
std::vector<char32_t> charactersByGlyph(const FontFace &face);

} // namespace lorva
