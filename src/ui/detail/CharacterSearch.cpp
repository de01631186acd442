// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#include "ui/detail/CharacterSearch.h"

#include "text/GlyphNames.h"
#include "ui/detail/CharacterNames.h"

#include <algorithm>
#include <numeric>

namespace lorva {

namespace {

/// How often stopped work looks up.
constexpr qsizetype kStopEvery = 512;

/// "U+0041", "u+41", "0x41"; numbers that Unicode has no place for, too.
std::optional<char32_t> codePointIn(const QString &word)
{
    const bool isMarked = word.startsWith(QLatin1String("U+"), Qt::CaseInsensitive)
        || word.startsWith(QLatin1String("0x"), Qt::CaseInsensitive);
    bool isHex = false;
    const uint value = word.mid(2).toUInt(&isHex, 16);
    return isMarked && isHex ? std::optional(char32_t(value)) : std::nullopt;
}

/// Empty unless every word is one.
std::set<char32_t> codePointsIn(const QStringList &words)
{
    std::set<char32_t> scalars;
    for (const QString &word : words) {
        const std::optional<char32_t> scalar = codePointIn(word);
        if (!scalar)
            return {};
        scalars.insert(*scalar);
    }
    return scalars;
}

bool isDigit(QChar c)
{
    return c >= u'0' && c <= u'9';
}

/// Names are made of these; spaces part their words. The point and the underscore are for names of
/// glyphs.
bool isInNames(QChar c)
{
    return (c >= u'A' && c <= u'Z') || (c >= u'a' && c <= u'z') || isDigit(c) || c == u'-'
        || c == u' ' || c == u'.' || c == u'_';
}

/// "20AC": shorter ones would be found in too many places.
bool isHexOf(const QString &word, char32_t scalar)
{
    return word.size() >= 4 && codePointText(scalar).mid(2) == word;
}

template <class List, class Matches>
List kept(const List &items, const std::stop_token &stop, const Matches &matches)
{
    List found;
    qsizetype looked = 0;
    for (const auto &item : items) {
        if (looked++ % kStopEvery == 0 && stop.stop_requested())
            break;
        if (matches(item))
            found.push_back(item);
    }
    return found;
}

} // namespace

CharacterQuery::CharacterQuery(const QString &text)
    : m_isEmpty(text.isEmpty())
{
    const QString trimmed = text.trimmed();
    const QStringList words = trimmed.split(u' ', Qt::SkipEmptyParts);
    // Spaces by themselves are looked for, too; beside others they only part them.
    const QString &typed = trimmed.isEmpty() ? text : trimmed;
    m_scalars = codePointsIn(words);
    if (!m_scalars.empty())
        return;
    m_glyphName = trimmed;
    const bool isNumber = !trimmed.isEmpty() && std::all_of(typed.begin(), typed.end(), isDigit);
    bool fits = false;
    if (const uint number = trimmed.toUInt(&fits); isNumber && fits)
        m_number = number;
    m_isGlyphNumber = m_number && trimmed.size() > 1;
    const QList<uint> scalars = typed.toUcs4();
    const bool isName = std::all_of(typed.begin(), typed.end(), isInNames);
    if (scalars.size() > 1 && isName && !isNumber && !trimmed.isEmpty()) {
        m_words = trimmed.toUpper().split(u' ', Qt::SkipEmptyParts);
        return;
    }
    for (const uint scalar : scalars) {
        if (trimmed.isEmpty() || scalar != U' ')
            m_scalars.insert(scalar);
    }
}

bool CharacterQuery::hasAllWords(const QString &name) const
{
    return !m_words.isEmpty()
        && std::all_of(m_words.begin(), m_words.end(),
                       [&](const QString &word) { return name.contains(word); });
}

bool CharacterQuery::matches(char32_t scalar) const
{
    if (m_words.isEmpty())
        return m_scalars.contains(scalar);
    return hasAllWords(unicodeName(scalar))
        || (m_words.size() == 1 && isHexOf(m_words.front(), scalar));
}

bool CharacterQuery::matchesGlyph(quint32 glyph, const QString &name) const
{
    return m_number == glyph || (!name.isEmpty() && name == m_glyphName)
        || hasAllWords(name.toUpper());
}

std::vector<CharacterGridSection> foundCharacters(const std::vector<CharacterGridSection> &sections,
                                                  const CharacterQuery &query,
                                                  const std::stop_token &stop)
{
    if (query.isEmpty())
        return sections;
    std::vector<CharacterGridSection> found;
    for (const CharacterGridSection &section : sections) {
        const QStringList characters =
            kept(section.characters, stop,
                 [&](const QString &character) { return query.matches(firstScalar(character)); });
        if (!characters.isEmpty())
            found.push_back({section.block, characters});
    }
    return found;
}

std::vector<quint32> foundGlyphs(const std::vector<char32_t> &characterOfGlyph,
                                 const GlyphNames &names, const CharacterQuery &query,
                                 const std::stop_token &stop)
{
    std::vector<quint32> all(characterOfGlyph.size());
    std::iota(all.begin(), all.end(), 0U);
    if (query.isEmpty())
        return all;
    return kept(all, stop, [&](quint32 glyph) {
        const char32_t character = characterOfGlyph[glyph];
        return (character != 0 && !query.isGlyphNumber() && query.matches(character))
            || query.matchesGlyph(glyph, names.name(glyph));
    });
}

} // namespace lorva
