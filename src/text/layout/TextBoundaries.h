// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QStringView>

#include <unicode/ubrk.h>

namespace lorva {

/// Where a text may be cut: between grapheme clusters or words (UAX #29), or lines (UAX #14).
///
/// Grapheme clusters keep Indic conjuncts and stacked consonants whole (rule GB9c, and the scripts
/// with an invisible stacker), which is what a reader takes for one sign.
///
/// Keeps a view: the text must outlive it. Thread: one; the iterators are the thread's and are
/// bound again when another object has used them meanwhile. Indices are UTF-16 units; without ICU's
/// data every unit is a boundary.
class TextBoundaries
{
public:
    enum class Kind { grapheme, word, line };

    TextBoundaries(Kind kind, QStringView text);

    /// The first boundary after `index`, at most the text's end.
    int following(int index);
    /// The last boundary before `index`, at least 0.
    int preceding(int index);
    bool isBoundary(int index);
    /// Whether a word (letters, digits, kana, ideographs; not blanks or signs) ends at a word
    /// boundary.
    bool isWordEnd(int boundary);

private:
    int end() const { return int(m_text.size()); }
    bool keepsTogether(int index) const;
    UBreakIterator *iterator() const;

    Kind m_kind;
    QStringView m_text;
    quint64 m_id;
};

} // namespace lorva
