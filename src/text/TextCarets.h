// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#pragma once

#include "text/TextLayout.h"

namespace lorva {

struct CaretLine;

/// A place between two grapheme clusters of a text.
struct TextPosition
{
    /// UTF-16 units before it.
    int index = 0;
    /// Where a line wraps, or two directions meet, one index has two places: this one belongs to
    /// the character before it (the end of the upper line), not to the one that follows.
    bool isAfterPrevious = false;
    bool operator==(const TextPosition &) const = default;
};

/// Where carets stand in a layout, for editing: hit testing, caret and selection rectangles,
/// movement by grapheme cluster (UAX #29), word, line. A ligature of several clusters is divided as
/// the font says (`GDEF` ligature carets), else evenly.
///
/// What is not shown of a truncated text stands at the end of its ellipsis, or of the last line
/// where there is none. White space that hangs over a line's end keeps its places there, beyond the
/// layout's width. What follows the last character of a paragraph, or comes before the first one,
/// has the paragraph's direction.
///
/// Holds the text and the layout. Immutable, cheap to copy. Thread: any.
/// Units: points in the layout's coordinates; UTF-16 units of the text. Indices are clamped to the
/// text; a layout without lines has no places.
class TextCarets
{
public:
    /// `layout` must be made of `text`.
    TextCarets(QString text, TextLayout layout);

    const TextLayout &layout() const { return m_layout; }
    /// The nearest place; above the first line and below the last one those lines count. Left and
    /// right of a line is its start or its end.
    TextPosition hitTest(QPointF point) const;
    /// Of width 0, as high as its line. An index inside a cluster stands at its start.
    QRectF caretRect(TextPosition position) const;
    /// The line that shows the position.
    int lineOf(TextPosition position) const;
    /// What covers the text between two indices, line by line, from left to right; a selected line
    /// end is not shown.
    std::vector<QRectF> selectionRects(int start, int end) const;

    /// Grapheme-cluster boundaries; stay at the text's ends.
    int next(int index) const;
    int previous(int index) const;
    /// To the start of the next word, or of this or the previous one (UAX #29).
    int nextWord(int index) const;
    int previousWord(int index) const;
    /// The word at an index, for a double click.
    std::pair<int, int> wordAt(int index) const;
    /// One cluster to the left or right as seen, through bidirectional text.
    TextPosition left(TextPosition position) const;
    TextPosition right(TextPosition position) const;
    /// To the line above or below at x; stays at the first or last line.
    TextPosition above(TextPosition position, double x) const;
    TextPosition below(TextPosition position, double x) const;
    TextPosition lineStart(TextPosition position) const;
    TextPosition lineEnd(TextPosition position) const;

private:
    /// An edge of a line as seen; see CaretLine.
    struct Spot
    {
        int line = 0;
        int edge = 0;
        bool operator==(const Spot &) const = default;
    };

    int clamped(int index) const;
    const CaretLine &lineAt(int line) const;
    Spot spotOf(TextPosition position) const;
    TextPosition canonical(TextPosition position) const;
    TextPosition sideOf(int line, int cell, bool isRightSide) const;
    TextPosition hitTestLine(int line, double x) const;
    TextPosition startOf(int line) const;
    TextPosition endOf(int line) const;
    TextPosition outermost(Spot spot) const;
    TextPosition moved(TextPosition position, bool toRight) const;
    TextPosition crossed(Spot spot, bool toRight) const;
    TextPosition intoNextLine(Spot spot, bool toRight) const;
    TextPosition intoPreviousLine(Spot spot, bool toRight) const;

    QString m_text;
    TextLayout m_layout;
    std::shared_ptr<const std::vector<CaretLine>> m_lines;
};

} // namespace lorva
