// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#include "text/layout/TextBoundaries.h"

#include <unicode/uchar.h>
#include <unicode/utf16.h>

#include <algorithm>
#include <array>
#include <memory>

namespace lorva {

namespace {

/// No conjunct has more joiners and marks in a row; a text of nothing else must not cost its
/// square.
constexpr int kMaxConjunctMarks = 16;

using BreakIteratorPtr = std::unique_ptr<UBreakIterator, decltype(&ubrk_close)>;

const UChar *units(QStringView text)
{
    return reinterpret_cast<const UChar *>(text.utf16());
}

BreakIteratorPtr openIterator(UBreakIteratorType type)
{
    UErrorCode status = U_ZERO_ERROR;
    return {ubrk_open(type, "", nullptr, 0, &status), &ubrk_close};
}

struct ThreadIterator
{
    BreakIteratorPtr iterator;
    /// Which object bound it last.
    quint64 owner = 0;
};

/// Opening an iterator costs more than a short text is worth, so each thread keeps one of a kind.
ThreadIterator &threadIterator(TextBoundaries::Kind kind)
{
    switch (kind) {
    case TextBoundaries::Kind::grapheme: {
        thread_local ThreadIterator graphemes{openIterator(UBRK_CHARACTER)};
        return graphemes;
    }
    case TextBoundaries::Kind::word: {
        thread_local ThreadIterator words{openIterator(UBRK_WORD)};
        return words;
    }
    case TextBoundaries::Kind::line:
        break;
    }
    thread_local ThreadIterator lines{openIterator(UBRK_LINE)};
    return lines;
}

quint64 nextId()
{
    thread_local quint64 id = 0;
    return ++id;
}

/// Ends of the boxes of most text: no character below U+0300 but CR LF joins another one, and no
/// ideograph does.
bool isPlainBoundary(char16_t before, char16_t after)
{
    const auto isIdeograph = [](char16_t u) { return u >= 0x4E00 && u <= 0x9FFF; };
    if (before < 0x0300 && after < 0x0300)
        return before != u'\r' || after != u'\n';
    return isIdeograph(before) && isIdeograph(after);
}

bool isLinker(UChar32 c)
{
    switch (c) {
    case 0x094D: // Devanagari
    case 0x09CD: // Bengali
    case 0x0ACD: // Gujarati
    case 0x0B4D: // Oriya
    case 0x0C4D: // Telugu
    case 0x0D4D: // Malayalam
        return true;
    default:
        return u_getIntPropertyValue(c, UCHAR_INDIC_SYLLABIC_CATEGORY) == U_INSC_INVISIBLE_STACKER;
    }
}

bool isConsonant(UChar32 c)
{
    return u_getIntPropertyValue(c, UCHAR_INDIC_SYLLABIC_CATEGORY) == U_INSC_CONSONANT;
}

/// What may stand between the parts of a conjunct: nuktas, marks, a joiner.
bool isConjunctMark(UChar32 c)
{
    return c == 0x200D || (c != 0x200C && u_hasBinaryProperty(c, UCHAR_GRAPHEME_EXTEND));
}

bool isInsideConjunct(QStringView text, int index)
{
    constexpr char16_t kFirstIndic = 0x0900;
    if (index <= 0 || index >= text.size() || text[index].unicode() < kFirstIndic)
        return false;
    UChar32 c = 0;
    U16_GET(units(text), 0, index, int(text.size()), c);
    if (!isConsonant(c))
        return false;
    bool isLinked = false;
    int at = index;
    for (int steps = 0; at > 0 && steps < kMaxConjunctMarks; ++steps) {
        U16_PREV(units(text), 0, at, c);
        if (isLinker(c))
            isLinked = true;
        else if (!isConjunctMark(c))
            return isLinked && isConsonant(c);
    }
    return false;
}

} // namespace

TextBoundaries::TextBoundaries(Kind kind, QStringView text)
    : m_kind(kind)
    , m_text(text)
    , m_id(nextId())
{
}

UBreakIterator *TextBoundaries::iterator() const
{
    ThreadIterator &shared = threadIterator(m_kind);
    if (!shared.iterator || shared.owner == m_id)
        return shared.iterator.get();
    UErrorCode status = U_ZERO_ERROR;
    ubrk_setText(shared.iterator.get(), units(m_text), end(), &status);
    shared.owner = U_SUCCESS(status) ? m_id : 0;
    return U_SUCCESS(status) ? shared.iterator.get() : nullptr;
}

bool TextBoundaries::keepsTogether(int index) const
{
    return m_kind == Kind::grapheme && isInsideConjunct(m_text, index);
}

int TextBoundaries::following(int index)
{
    if (index >= end())
        return end();
    if (index < 0)
        return 0;
    if (m_kind == Kind::grapheme && index + 1 < end()
        && isPlainBoundary(m_text[index].unicode(), m_text[index + 1].unicode()))
        return index + 1;
    int next = index;
    do {
        UBreakIterator *const breaks = iterator();
        next = breaks ? ubrk_following(breaks, next) : next + 1;
    } while (next != UBRK_DONE && next < end() && keepsTogether(next));
    return next == UBRK_DONE ? end() : std::min(next, end());
}

int TextBoundaries::preceding(int index)
{
    if (index <= 0)
        return 0;
    if (index > end())
        return end();
    int previous = index;
    do {
        UBreakIterator *const breaks = iterator();
        previous = breaks ? ubrk_preceding(breaks, previous) : previous - 1;
    } while (previous != UBRK_DONE && previous > 0 && keepsTogether(previous));
    return std::max(previous, 0);
}

bool TextBoundaries::isBoundary(int index)
{
    if (index <= 0 || index >= end())
        return true;
    if (m_kind == Kind::grapheme
        && isPlainBoundary(m_text[index - 1].unicode(), m_text[index].unicode()))
        return true;
    UBreakIterator *const breaks = iterator();
    return (!breaks || ubrk_isBoundary(breaks, index)) && !keepsTogether(index);
}

bool TextBoundaries::isWordEnd(int boundary)
{
    UBreakIterator *const breaks = iterator();
    return boundary > 0 && boundary <= end() && breaks && ubrk_isBoundary(breaks, boundary)
        && ubrk_getRuleStatus(breaks) >= UBRK_WORD_NONE_LIMIT;
}

} // namespace lorva
