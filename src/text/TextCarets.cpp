// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#include "text/TextCarets.h"

#include "text/layout/CaretMap.h"
#include "text/layout/TextBoundaries.h"

#include <algorithm>

namespace lorva {

namespace {

using Kind = TextBoundaries::Kind;

bool isSelected(const CaretCell &cell, int start, int end)
{
    if (cell.isEllipsis)
        return start <= cell.start && end > cell.start;
    return cell.end > start && cell.end <= end;
}

void addRects(const CaretLine &line, int start, int end, std::vector<QRectF> &rects)
{
    bool isOpen = false;
    for (const CaretCell &cell : line.cells) {
        const bool selected = isSelected(cell, start, end);
        if (selected && isOpen)
            rects.back().setRight(std::max(rects.back().right(), cell.right));
        else if (selected)
            rects.emplace_back(QPointF(cell.left, line.top), QPointF(cell.right, line.bottom));
        isOpen = selected;
    }
}

} // namespace

TextCarets::TextCarets(QString text, TextLayout layout)
    : m_text(std::move(text))
    , m_layout(std::move(layout))
    , m_lines(std::make_shared<const std::vector<CaretLine>>(caretLines(m_text, m_layout)))
{
}

int TextCarets::clamped(int index) const
{
    return std::clamp(index, 0, int(m_text.size()));
}

const CaretLine &TextCarets::lineAt(int line) const
{
    return (*m_lines)[size_t(line)];
}

int TextCarets::lineOf(TextPosition position) const
{
    const int index = clamped(position.index);
    const auto after =
        std::partition_point(m_lines->begin(), m_lines->end(),
                             [&](const CaretLine &line) { return line.textStart <= index; });
    const int line = std::max(0, int(after - m_lines->begin()) - 1);
    const bool isAtWrap = line > 0 && lineAt(line).textStart == index && lineAt(line - 1).isWrapped;
    return position.isAfterPrevious && isAtWrap ? line - 1 : line;
}

TextCarets::Spot TextCarets::spotOf(TextPosition position) const
{
    const int index = clamped(position.index);
    const int lineIndex = lineOf(position);
    const CaretLine &line = lineAt(lineIndex);
    if (index > line.textEnd)
        return {lineIndex, line.endEdge()};
    if (const int before = line.cellBefore(index); position.isAfterPrevious && before >= 0)
        return {lineIndex, before + (line.cells[size_t(before)].isRightToLeft ? 0 : 1)};
    if (position.isAfterPrevious && index == line.textStart)
        return {lineIndex, line.startEdge()};
    const int at = line.cellAt(index);
    if (at < 0)
        return {lineIndex, line.endEdge()};
    return {lineIndex, at + (line.cells[size_t(at)].isRightToLeft ? 1 : 0)};
}

/// Of two names for one place the one that follows.
TextPosition TextCarets::canonical(TextPosition position) const
{
    const TextPosition following{position.index, false};
    return spotOf(following) == spotOf(position) ? following : position;
}

TextPosition TextCarets::sideOf(int line, int cell, bool isRightSide) const
{
    const CaretCell &at = lineAt(line).cells[size_t(cell)];
    const bool isEnd = isRightSide != at.isRightToLeft;
    return canonical(isEnd ? TextPosition{at.end, true} : TextPosition{at.start, false});
}

/// Before the first character in the paragraph's direction, whatever direction that has.
TextPosition TextCarets::startOf(int line) const
{
    return canonical({lineAt(line).textStart, line == 0 || !lineAt(line - 1).isWrapped});
}

TextPosition TextCarets::endOf(int line) const
{
    const CaretLine &at = lineAt(line);
    return at.isWrapped ? canonical({at.textEnd, true}) : TextPosition{at.hiddenEnd, false};
}

/// The line's start or end where that stands at its outermost edge, else the side of the cell
/// there.
TextPosition TextCarets::outermost(Spot spot) const
{
    const CaretLine &line = lineAt(spot.line);
    const TextPosition edge = spot.edge == line.endEdge() ? endOf(spot.line) : startOf(spot.line);
    if (spotOf(edge) == spot)
        return edge;
    return spot.edge == 0 ? sideOf(spot.line, 0, false) : sideOf(spot.line, spot.edge - 1, true);
}

TextPosition TextCarets::hitTestLine(int lineIndex, double x) const
{
    const CaretLine &line = lineAt(lineIndex);
    if (line.cells.empty())
        return {line.textStart, false};
    if (x <= line.edgeX(0))
        return outermost({lineIndex, 0});
    if (x >= line.edgeX(line.edgeCount()))
        return outermost({lineIndex, line.edgeCount()});
    const int nearest = line.cellNear(x);
    const CaretCell &cell = line.cells[size_t(nearest)];
    return sideOf(lineIndex, nearest, x > (cell.left + cell.right) / 2);
}

TextPosition TextCarets::hitTest(QPointF point) const
{
    if (m_lines->empty())
        return {};
    // What lies between two lines belongs to the nearer one.
    int line = 0;
    const int last = int(m_lines->size()) - 1;
    const auto after =
        std::partition_point(m_lines->begin(), m_lines->begin() + last, [&](const CaretLine &at) {
            return (at.bottom + (&at + 1)->top) / 2 <= point.y();
        });
    line = int(after - m_lines->begin());
    return hitTestLine(line, point.x());
}

QRectF TextCarets::caretRect(TextPosition position) const
{
    if (m_lines->empty())
        return {};
    const Spot spot = spotOf(position);
    const CaretLine &line = lineAt(spot.line);
    return {line.edgeX(spot.edge), line.top, 0, line.bottom - line.top};
}

std::vector<QRectF> TextCarets::selectionRects(int start, int end) const
{
    std::vector<QRectF> rects;
    if (m_lines->empty() || start >= end)
        return rects;
    const int first = lineOf({start, false});
    const int last = lineOf({end, true});
    for (int line = first; line <= last; ++line)
        addRects(lineAt(line), clamped(start), clamped(end), rects);
    return rects;
}

int TextCarets::next(int index) const
{
    return TextBoundaries(Kind::grapheme, m_text).following(clamped(index));
}

int TextCarets::previous(int index) const
{
    return TextBoundaries(Kind::grapheme, m_text).preceding(clamped(index));
}

int TextCarets::nextWord(int index) const
{
    TextBoundaries words(Kind::word, m_text);
    const int end = int(m_text.size());
    for (int start = words.following(clamped(index)); start < end;) {
        const int next = words.following(start);
        if (words.isWordEnd(next))
            return start;
        start = next;
    }
    return end;
}

int TextCarets::previousWord(int index) const
{
    TextBoundaries words(Kind::word, m_text);
    int end = clamped(index);
    // The word that holds the index counts, though its end lies behind.
    if (!words.isBoundary(end))
        end = words.following(end);
    while (end > 0) {
        const bool isWord = words.isWordEnd(end);
        end = words.preceding(end);
        if (isWord)
            return end;
    }
    return 0;
}

std::pair<int, int> TextCarets::wordAt(int index) const
{
    TextBoundaries words(Kind::word, m_text);
    const int at = std::min(clamped(index), std::max(0, int(m_text.size()) - 1));
    return {words.isBoundary(at) ? at : words.preceding(at), words.following(at)};
}

TextPosition TextCarets::left(TextPosition position) const
{
    return moved(position, false);
}

TextPosition TextCarets::right(TextPosition position) const
{
    return moved(position, true);
}

TextPosition TextCarets::moved(TextPosition position, bool toRight) const
{
    if (m_lines->empty())
        return {};
    const Spot spot = spotOf(position);
    const CaretLine &line = lineAt(spot.line);
    if (toRight ? spot.edge < line.edgeCount() : spot.edge > 0)
        return crossed(spot, toRight);
    const bool isForward = toRight != line.isRightToLeft;
    if (isForward)
        return intoNextLine(spot, toRight);
    return spot.line > 0 ? intoPreviousLine(spot, toRight)
                         : canonical({clamped(position.index), position.isAfterPrevious});
}

/// The far side of the next cell. Where a line wraps its end and the next one's start are one
/// index: the start is shown, so that every step moves the caret on.
TextPosition TextCarets::crossed(Spot spot, bool toRight) const
{
    const CaretLine &line = lineAt(spot.line);
    if (line.cells.empty())
        return {line.textStart, false};
    const TextPosition to = sideOf(spot.line, toRight ? spot.edge : spot.edge - 1, toRight);
    const bool isAtWrap = line.isWrapped && to.index == line.textEnd;
    return isAtWrap ? TextPosition{to.index, false} : to;
}

TextPosition TextCarets::intoNextLine(Spot spot, bool toRight) const
{
    if (spot.line + 1 == int(m_lines->size()))
        return endOf(spot.line);
    const CaretLine &next = lineAt(spot.line + 1);
    const Spot entry{spot.line + 1, next.startEdge()};
    if (lineAt(spot.line).isWrapped)
        return crossed(entry, toRight);
    if (next.cells.empty())
        return {next.textStart, false};
    return outermost(entry);
}

TextPosition TextCarets::intoPreviousLine(Spot spot, bool toRight) const
{
    const int previous = spot.line - 1;
    if (lineAt(previous).isWrapped)
        return crossed({previous, lineAt(previous).endEdge()}, toRight);
    return endOf(previous);
}

TextPosition TextCarets::above(TextPosition position, double x) const
{
    const int line = m_lines->empty() ? 0 : lineOf(position) - 1;
    return m_lines->empty() || line < 0 ? position : hitTestLine(line, x);
}

TextPosition TextCarets::below(TextPosition position, double x) const
{
    const int line = m_lines->empty() ? 0 : lineOf(position) + 1;
    return line >= int(m_lines->size()) ? position : hitTestLine(line, x);
}

TextPosition TextCarets::lineStart(TextPosition position) const
{
    return m_lines->empty() ? TextPosition()
                            : TextPosition{lineAt(lineOf(position)).textStart, false};
}

TextPosition TextCarets::lineEnd(TextPosition position) const
{
    return m_lines->empty() ? TextPosition() : endOf(lineOf(position));
}

} // namespace lorva
