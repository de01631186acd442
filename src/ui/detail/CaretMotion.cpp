// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#include "ui/detail/CaretMotion.h"

#include <algorithm>
#include <limits>

namespace lorva {

namespace {

/// Beyond any text; the carets clamp it.
constexpr int kEnd = std::numeric_limits<int>::max();

bool isRightToLeft(const TextCarets &carets, TextPosition at)
{
    const std::vector<LayoutLine> &lines = carets.layout().lines();
    return !lines.empty() && lines[size_t(carets.lineOf(at))].isRightToLeft;
}

TextPosition byWord(const TextCarets &carets, TextPosition from, bool toRight)
{
    const bool isForward = toRight != isRightToLeft(carets, from);
    return {isForward ? carets.nextWord(from.index) : carets.previousWord(from.index), false};
}

} // namespace

TextPosition CaretMotion::moved(const TextCarets &carets, TextPosition from, CaretMove move)
{
    if (move == CaretMove::up || move == CaretMove::down)
        return vertically(carets, from, move == CaretMove::down);
    forget();
    switch (move) {
    case CaretMove::left:
        return carets.left(from);
    case CaretMove::right:
        return carets.right(from);
    case CaretMove::wordLeft:
        return byWord(carets, from, false);
    case CaretMove::wordRight:
        return byWord(carets, from, true);
    case CaretMove::lineStart:
        return carets.lineStart(from);
    case CaretMove::lineEnd:
        return carets.lineEnd(from);
    case CaretMove::textEnd:
        return {kEnd, true};
    case CaretMove::textStart:
    case CaretMove::up:
    case CaretMove::down:
        break;
    }
    return {0, false};
}

TextPosition CaretMotion::vertically(const TextCarets &carets, TextPosition from, bool down)
{
    const double x = m_keptX.value_or(carets.caretRect(from).x());
    m_keptX = x;
    const int line = carets.lineOf(from);
    if (down)
        return line + 1 < int(carets.layout().lines().size()) ? carets.below(from, x)
                                                              : TextPosition{kEnd, true};
    return line > 0 ? carets.above(from, x) : TextPosition{0, false};
}

TextPosition CaretMotion::collapsed(const TextCarets &carets, int start, int end, bool toRight)
{
    const bool toEnd = toRight != isRightToLeft(carets, {end, true});
    return toEnd ? TextPosition{end, true} : TextPosition{start, false};
}

int clusterAt(const TextCarets &carets, QPointF point)
{
    const TextPosition nearest = carets.hitTest(point);
    const int before = carets.previous(nearest.index);
    const std::vector<QRectF> rects = carets.selectionRects(before, nearest.index);
    const bool isBefore = std::ranges::any_of(rects, [&](const QRectF &rect) {
        return rect.left() <= point.x() && point.x() < rect.right()
            && rect.top() <= carets.caretRect(nearest).center().y()
            && carets.caretRect(nearest).center().y() <= rect.bottom();
    });
    return isBefore || nearest.isAfterPrevious ? before : nearest.index;
}

std::pair<int, int> unitAt(const TextCarets &carets, QStringView text, int index,
                           SelectionUnit unit)
{
    index = std::clamp(index, 0, int(text.size()));
    switch (unit) {
    case SelectionUnit::word: {
        // A double click right of a line's last word means that word, not the line break.
        const bool isAtLineEnd = index == text.size() || text[index] == u'\n';
        const bool hasBefore = index > 0 && text[index - 1] != u'\n';
        return isAtLineEnd && !hasBefore ? std::pair(index, index)
                                         : carets.wordAt(isAtLineEnd ? index - 1 : index);
    }
    case SelectionUnit::paragraph: {
        const qsizetype before = index > 0 ? text.lastIndexOf(u'\n', index - 1) : -1;
        const qsizetype after = text.indexOf(u'\n', index);
        return {int(before) + 1, int(after < 0 ? text.size() : after)};
    }
    case SelectionUnit::character:
        break;
    }
    return {index, index};
}

} // namespace lorva
