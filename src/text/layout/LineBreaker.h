// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#pragma once

#include "text/layout/ShapedParagraph.h"
#include "text/layout/TextBoundaries.h"

namespace lorva {

/// The runs of one line in logical order; a truncated line ends in the run of its ellipsis.
struct BrokenLine
{
    int start = 0;
    int end = 0;
    /// `end` without trailing white space.
    int visibleEnd = 0;
    std::vector<ShapedRun> runs;
    bool hasEllipsis = false;
};

/// Cuts a shaped paragraph into lines: between words (UAX #14), else between grapheme clusters (UAX
/// #29).
///
/// Thread: any, one at a time per object. No break is looked for while text fits. Widths in points.
class LineBreaker
{
public:
    explicit LineBreaker(const ShapedParagraph &paragraph)
        : m_paragraph(paragraph)
        , m_words(TextBoundaries::Kind::line, paragraph.text())
        , m_graphemes(TextBoundaries::Kind::grapheme, paragraph.text())
    {
    }

    bool restFits(int start, double available) const;
    /// All that is left, however wide.
    BrokenLine rest(int start) const;
    /// As many words as fit; at least one grapheme cluster.
    BrokenLine wrap(int start, double available);
    /// As many grapheme clusters as fit before an ellipsis, then the ellipsis.
    BrokenLine truncate(int start, double available);

private:
    int end() const { return int(m_paragraph.text().size()); }
    BrokenLine line(int start, int end) const;
    bool isTooWide(const BrokenLine &line, double available) const;
    int lastFittingWordBreak(int start, double available);
    int lastFittingGraphemeBreak(int start, double available);
    int breakBefore(int start, int index);

    const ShapedParagraph &m_paragraph;
    TextBoundaries m_words;
    TextBoundaries m_graphemes;
};

} // namespace lorva
