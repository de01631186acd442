// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#include "ui/detail/CharacterBlocks.h"

#include "base/Folding.h"

#include <QCoreApplication>

#include <unicode/uchar.h>
#include <unicode/unorm2.h>

#include <algorithm>
#include <array>

namespace lorva {

namespace {

constexpr char32_t kLastListed = 0x3FFFF;
constexpr char32_t kAfterAllLetters = U'Z' + 1;
constexpr size_t kBlocks = size_t(Block::other) + 1;

constexpr CharacterRange kKana[]{{0x3041, 0x30FF}, {0x31F0, 0x31FF}, {0xFF66, 0xFF9F}};
constexpr CharacterRange kHangul[]{
    {0x1100, 0x11FF}, {0x3130, 0x318F}, {0xA960, 0xA97F}, {0xAC00, 0xD7FF}};
constexpr CharacterRange kHan[]{
    {0x2E80, 0x2FDF}, {0x3400, 0x4DBF}, {0x4E00, 0x9FFF}, {0xF900, 0xFAFF}, {0x20000, 0x3FFFF}};

bool isIn(char32_t c, std::span<const CharacterRange> ranges)
{
    return std::any_of(ranges.begin(), ranges.end(), [c](const CharacterRange &range) {
        return c >= range.first && c <= range.last;
    });
}

bool isAsciiLetter(char32_t c)
{
    return (c >= U'A' && c <= U'Z') || (c >= U'a' && c <= U'z');
}

bool isLatin(char32_t c)
{
    const bool isAmongLetters = (c >= 0x00C0 && c <= 0x024F) || (c >= 0x1E00 && c <= 0x1EFF);
    return isAsciiLetter(c)
        || (isAmongLetters && u_hasBinaryProperty(UChar32(c), UCHAR_ALPHABETIC));
}

bool isPunctuationOrSymbol(char32_t c)
{
    return (U_GET_GC_MASK(UChar32(c)) & (U_GC_P_MASK | U_GC_S_MASK | U_GC_ZS_MASK)) != 0;
}

char32_t asciiUpper(char32_t c)
{
    return c >= U'a' && c <= U'z' ? c - U'a' + U'A' : c;
}

/// What the character decomposes to begins with; itself where it does not decompose.
char32_t firstOfDecomposition(char32_t c)
{
    // Characters decompose to at most four others.
    std::array<UChar, 16> units;
    UErrorCode code = U_ZERO_ERROR;
    const UNormalizer2 *form = unorm2_getNFDInstance(&code);
    if (U_FAILURE(code))
        return c;
    const int32_t length =
        unorm2_getDecomposition(form, UChar32(c), units.data(), int32_t(units.size()), &code);
    if (U_FAILURE(code) || length <= 0)
        return c;
    UChar32 first = 0;
    U16_GET(units, 0, 0, length, first);
    return char32_t(first);
}

void sortLatin(std::vector<char32_t> &characters)
{
    std::vector<std::pair<char32_t, char32_t>> keyed;
    keyed.reserve(characters.size());
    for (const char32_t c : characters) {
        const char32_t letter = latinSortLetter(c);
        keyed.emplace_back(letter ? letter : kAfterAllLetters, c);
    }
    std::stable_sort(keyed.begin(), keyed.end(),
                     [](const auto &a, const auto &b) { return a.first < b.first; });
    std::transform(keyed.begin(), keyed.end(), characters.begin(),
                   [](const auto &each) { return each.second; });
}

CharacterGridSection sectionOf(Block block, const std::vector<char32_t> &characters)
{
    CharacterGridSection section{block, {}};
    section.characters.reserve(qsizetype(characters.size()));
    for (const char32_t c : characters)
        section.characters.append(QString::fromUcs4(&c, 1));
    return section;
}

struct Texts
{
    Q_DECLARE_TR_FUNCTIONS(CharacterBlocks)
};

} // namespace

Block blockOf(char32_t scalar)
{
    if (scalar >= U'0' && scalar <= U'9')
        return Block::digits;
    if (isIn(scalar, kKana))
        return Block::kana;
    if (isIn(scalar, kHangul))
        return Block::hangul;
    if (isIn(scalar, kHan))
        return Block::han;
    if (isLatin(scalar))
        return Block::latin;
    return isPunctuationOrSymbol(scalar) ? Block::punctuationAndSymbols : Block::other;
}

QString blockName(Block block)
{
    switch (block) {
    case Block::latin:
        return Texts::tr("Latin");
    case Block::digits:
        return Texts::tr("Digits");
    case Block::punctuationAndSymbols:
        return Texts::tr("Punctuation & Symbols");
    case Block::kana:
        return Texts::tr("Kana");
    case Block::hangul:
        return Texts::tr("Hangul");
    case Block::han:
        //: The Chinese characters.
        return Texts::tr("Han");
    case Block::other:
        break;
    }
    //: Other characters.
    return Texts::tr("Other");
}

char32_t latinSortLetter(char32_t scalar)
{
    const char32_t base = isAsciiLetter(scalar) ? scalar : firstOfDecomposition(scalar);
    return isAsciiLetter(base) ? asciiUpper(base) : 0;
}

bool isListed(char32_t scalar)
{
    const bool isControl = scalar < 0x20 || (scalar >= 0x7F && scalar <= 0x9F);
    const bool isSurrogate = scalar >= 0xD800 && scalar <= 0xDFFF;
    return !isControl && !isSurrogate && scalar <= kLastListed && !isDefaultIgnorable(scalar);
}

std::vector<CharacterGridSection> enumerateCharacters(const CharacterSet &characters)
{
    std::array<std::vector<char32_t>, kBlocks> buckets;
    for (const CharacterRange &range : characters.ranges()) {
        for (char32_t c = range.first; c <= std::min(range.last, kLastListed); ++c) {
            if (isListed(c))
                buckets[size_t(blockOf(c))].push_back(c);
        }
    }
    sortLatin(buckets[size_t(Block::latin)]);
    std::vector<CharacterGridSection> sections;
    for (size_t i = 0; i < kBlocks; ++i) {
        if (!buckets[i].empty())
            sections.push_back(sectionOf(Block(i), buckets[i]));
    }
    return sections;
}

} // namespace lorva
