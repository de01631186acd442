// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#pragma once

#include "ui/detail/CharacterBlocks.h"

#include <QString>

#include <optional>
#include <set>
#include <stop_token>
#include <vector>

namespace lorva {

class GlyphNames;

/// What someone typed to find characters, read once.
///
///     "é"  "ß→"        these characters (several, when one of them is in no character's name)
///     "65"             the digits 6 and 5; among glyphs the glyph of that number
///     "U+0041 0x42"    these code points
///     "arrow left"     characters whose name has all of these words, in any order and case
///
/// A value. Thread: any.
class CharacterQuery
{
public:
    CharacterQuery() = default;
    explicit CharacterQuery(const QString &text);

    /// Nothing is looked for: everything is shown.
    bool isEmpty() const { return m_isEmpty; }
    /// A number of several digits, which among glyphs is nothing else.
    bool isGlyphNumber() const { return m_isGlyphNumber; }
    bool matches(char32_t scalar) const;
    /// By its number or its own name; not by the character that reaches it.
    bool matchesGlyph(quint32 glyph, const QString &name) const;

private:
    bool hasAllWords(const QString &name) const;

    /// Either some of these, or words of a name.
    std::set<char32_t> m_scalars;
    /// Upper case.
    QStringList m_words;
    /// Typed as a number of digits only.
    std::optional<quint32> m_number;
    QString m_glyphName;
    bool m_isEmpty = true;
    bool m_isGlyphNumber = false;
};

/// What is left of the sections; without those of which nothing is. Stopped work gives less.
std::vector<CharacterGridSection> foundCharacters(const std::vector<CharacterGridSection> &sections,
                                                  const CharacterQuery &query,
                                                  const std::stop_token &stop = {});
/// The glyphs that are found, by number, name, or the character that reaches them (see
/// charactersByGlyph()). Stopped work gives less.
std::vector<quint32> foundGlyphs(const std::vector<char32_t> &characterOfGlyph,
                                 const GlyphNames &names, const CharacterQuery &query,
                                 const std::stop_token &stop = {});

} // namespace lorva
