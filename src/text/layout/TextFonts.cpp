// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#include "text/layout/TextFonts.h"

#include "base/Folding.h"
#include "text/FontFallback.h"
#include "text/layout/TextBoundaries.h"

#include <unicode/uchar.h>
#include <unicode/unorm2.h>
#include <unicode/utf16.h>

#include <algorithm>

namespace lorva {

namespace {

/// Clusters of more characters are no writing; what follows decides nothing.
constexpr size_t kMaxClusterCharacters = 32;

template <class Visit>
void forEachCharacter(QStringView text, Visit visit)
{
    const auto *units = reinterpret_cast<const UChar *>(text.utf16());
    for (int at = 0; at < int(text.size());) {
        UChar32 c = 0;
        U16_NEXT(units, at, int(text.size()), c);
        if (!visit(char32_t(c)))
            return;
    }
}

/// Whether a character leaves a gap where a font has no glyph for it.
bool isMissed(char32_t c)
{
    const int8_t category = u_charType(UChar32(c));
    switch (category) {
    case U_CONTROL_CHAR:
    case U_SURROGATE:
    case U_PRIVATE_USE_CHAR:
    case U_LINE_SEPARATOR:
    case U_PARAGRAPH_SEPARATOR:
        return false;
    default:
        return !isDefaultIgnorable(c);
    }
}

/// What the shaper draws in place of a character that the font lacks.
std::optional<char32_t> substituteFor(char32_t c)
{
    constexpr char32_t kNoBreakHyphen = 0x2011;
    if (c == kNoBreakHyphen)
        return char32_t(0x2010);
    return u_charType(UChar32(c)) == U_SPACE_SEPARATOR ? std::optional(char32_t(' '))
                                                       : std::nullopt;
}

QString normalized(QStringView text, const UNormalizer2 *form)
{
    if (!form)
        return {};
    QString result(text.size() * 4 + 16, Qt::Uninitialized);
    UErrorCode status = U_ZERO_ERROR;
    const int32_t length =
        unorm2_normalize(form, reinterpret_cast<const UChar *>(text.utf16()), int32_t(text.size()),
                         reinterpret_cast<UChar *>(result.data()), int32_t(result.size()), &status);
    return U_SUCCESS(status) ? result.left(length) : QString();
}

std::u32string charactersOf(QStringView cluster)
{
    std::u32string characters;
    forEachCharacter(cluster, [&](char32_t c) {
        if (isMissed(c) || isDefaultIgnorable(c))
            characters += c;
        return characters.size() < kMaxClusterCharacters;
    });
    return characters;
}

} // namespace

TextFonts::TextFonts(const Font &font, const TextLayoutOptions &options)
    : m_letterSpacing(options.letterSpacing)
    , m_language(options.language)
    , m_fallback(font.isNull() ? nullptr : options.fallback)
{
    m_shapers.push_back(std::make_unique<TextShaper>(font, m_letterSpacing, m_language));
    if (m_fallback)
        m_mainFont = font.shapingFont();
}

bool TextFonts::hasGlyphFor(char32_t c)
{
    const auto ask = [&] {
        hb_codepoint_t glyph = 0;
        return hb_font_get_nominal_glyph(m_mainFont.get(), c, &glyph) && glyph != 0;
    };
    if (c >= m_ascii.size())
        return ask();
    std::optional<bool> &known = m_ascii[c];
    if (!known)
        known = ask();
    return *known;
}

bool TextFonts::canWrite(QStringView text)
{
    bool canWriteAll = true;
    forEachCharacter(text, [&](char32_t c) {
        if (!hasGlyphFor(c) && isMissed(c)) {
            const std::optional<char32_t> substitute = substituteFor(c);
            canWriteAll = substitute && hasGlyphFor(*substitute);
        }
        return canWriteAll;
    });
    return canWriteAll;
}

/// The shaper composes and decomposes as the font needs it.
bool TextFonts::lacks(QStringView cluster)
{
    if (canWrite(cluster))
        return false;
    UErrorCode status = U_ZERO_ERROR;
    const std::array forms{unorm2_getNFCInstance(&status), unorm2_getNFDInstance(&status)};
    return std::none_of(forms.begin(), forms.end(), [&](const UNormalizer2 *form) {
        const QString other = normalized(cluster, form);
        return !other.isEmpty() && other != cluster && canWrite(other);
    });
}

bool TextFonts::lacksAny(QStringView text)
{
    return !canWrite(text);
}

int TextFonts::indexOf(const Font &font)
{
    for (size_t i = 0; i < m_shapers.size(); ++i) {
        if (m_shapers[i]->font() == font)
            return int(i);
    }
    m_shapers.push_back(std::make_unique<TextShaper>(font, m_letterSpacing, m_language));
    return int(m_shapers.size()) - 1;
}

int TextFonts::fontFor(QStringView cluster, const TextItem &item)
{
    if (!lacks(cluster))
        return 0;
    const std::pair key(mainShaper().languageTag(item), cluster.toString());
    if (const auto known = m_known.constFind(key); known != m_known.cend())
        return *known;
    const Font font = m_fallback->fontFor(charactersOf(cluster), key.first, main());
    const int index = font.isNull() ? 0 : indexOf(font);
    m_known.insert(key, index);
    return index;
}

/// Cuts items at grapheme clusters; neighbours of one font are one item.
class TextFonts::Splitter
{
public:
    Splitter(TextFonts &fonts, QStringView paragraph)
        : m_fonts(fonts)
        , m_paragraph(paragraph)
        , m_graphemes(TextBoundaries::Kind::grapheme, paragraph)
    {
    }

    void split(const TextItem &item)
    {
        if (!m_fonts.lacksAny(m_paragraph.mid(item.start, item.end - item.start))) {
            m_items.push_back(item);
            return;
        }
        const size_t first = m_items.size();
        for (int at = item.start; at < item.end;) {
            const int next = std::min(item.end, m_graphemes.following(at));
            const int font = m_fonts.fontFor(m_paragraph.mid(at, next - at), item);
            if (m_items.size() > first && m_items.back().font == font)
                m_items.back().end = next;
            else
                m_items.push_back({at, next, item.level, item.script, item.writing, font});
            at = next;
        }
    }

    std::vector<TextItem> takeItems() { return std::move(m_items); }

private:
    TextFonts &m_fonts;
    QStringView m_paragraph;
    TextBoundaries m_graphemes;
    std::vector<TextItem> m_items;
};

std::vector<TextItem> TextFonts::assign(QStringView paragraph, std::vector<TextItem> items)
{
    if (!m_fallback || !lacksAny(paragraph))
        return items;
    Splitter splitter(*this, paragraph);
    for (const TextItem &item : items)
        splitter.split(item);
    return splitter.takeItems();
}

} // namespace lorva
