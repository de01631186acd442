// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#pragma once

#include "text/layout/TextFonts.h"

#include <optional>

namespace lorva {

/// A paragraph shaped as a whole: widths of any stretch of it, and its glyphs cut to lines.
///
/// Keeps views: the text and the fonts must outlive it. Thread: any, one at a time per object.
/// Indices are UTF-16 units of the paragraph.
class ShapedParagraph
{
public:
    ShapedParagraph(QStringView text, TextDirection direction, TextFonts &fonts);

    QStringView text() const { return m_text; }
    quint8 baseLevel() const { return m_baseLevel; }
    bool isRightToLeft() const { return baseLevel() & 1; }
    /// `end` without the white space before it, but not below `start`.
    int trimmedEnd(int start, int end) const;

    /// Width in points of the clusters that start in the range, as the whole paragraph was shaped.
    /// A cluster's width is spread evenly over its units.
    double width(int start, int end) const { return m_positions[end] - m_positions[start]; }

    /// The runs of a line, in logical order; what may not be cut there is shaped anew. Trailing
    /// white space is a run at the paragraph's level (UAX #9, L1).
    std::vector<ShapedRun> cut(int start, int end) const;
    /// An ellipsis that stands at `at`: the paragraph's level, the script of the text before it,
    /// the main font.
    ShapedRun ellipsisAt(int at) const;

private:
    void measure();
    void measureRun(const ShapedRun &run);
    ShapedRun cutRun(const ShapedRun &run, int start, int end, quint8 level) const;
    std::vector<ShapedRun>::const_iterator runAt(int index) const;

    QStringView m_text;
    const TextFonts &m_fonts;
    quint8 m_baseLevel = 0;
    std::vector<ShapedRun> m_runs;
    /// Where each unit starts if all clusters stood in logical order; one more than units.
    std::vector<double> m_positions;
};

/// Width of runs without the clusters at or after `trimmedEnd`.
double visibleWidth(std::span<const ShapedRun> runs, int trimmedEnd);

} // namespace lorva
