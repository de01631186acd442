// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT

#include "ui/browser/BrowserLayout.h"

#include <algorithm>
#include <cmath>

namespace lorva {

int BrowserLayout::columnCount(ViewMode mode, double contentWidth)
{
    if (mode == ViewMode::list)
        return 1;
    if (contentWidth < 1000)
        return 2;
    return contentWidth < 1520 ? 3 : 4;
}

int BrowserLayout::cardHeight(ViewMode mode, double pointSize)
{
    if (mode == ViewMode::list)
        return 204;
    return int(std::ceil(std::max(220.0, pointSize * 1.9 + 55)));
}

BrowserLayout::BrowserLayout(ViewMode mode, int contentWidth, double pointSize, int itemCount)
    : m_contentWidth(std::max(contentWidth, 1))
    , m_columns(columnCount(mode, contentWidth))
    , m_rowHeight(cardHeight(mode, pointSize))
    , m_itemCount(itemCount)
{
}

QRect BrowserLayout::cardRect(int index) const
{
    const int column = index % m_columns;
    const int left = column * m_contentWidth / m_columns;
    const int right = (column + 1) * m_contentWidth / m_columns;
    return {left, index / m_columns * m_rowHeight, right - left, m_rowHeight};
}

int BrowserLayout::indexAt(QPoint point) const
{
    if (point.x() < 0 || point.y() < 0 || point.x() >= m_contentWidth)
        return -1;
    const int row = point.y() / m_rowHeight;
    for (int column = 0; column < m_columns; ++column) {
        const int index = row * m_columns + column;
        if (index < m_itemCount && cardRect(index).contains(point))
            return index;
    }
    return -1;
}

std::vector<int> BrowserLayout::itemsIn(const QRect &rect) const
{
    const Range rows = visibleRange(rect.top(), rect.height());
    std::vector<int> items;
    for (int index = rows.first; index < rows.last; ++index) {
        if (cardRect(index).intersects(rect))
            items.push_back(index);
    }
    return items;
}

BrowserLayout::Range BrowserLayout::visibleRange(int top, int height) const
{
    const int firstRow = std::max(top, 0) / m_rowHeight;
    const int endRow = (std::max(top + height, 0) + m_rowHeight - 1) / m_rowHeight;
    return {std::min(firstRow * m_columns, m_itemCount), std::min(endRow * m_columns, m_itemCount)};
}

int BrowserLayout::firstInSight(int top, int height) const
{
    const Range range = visibleRange(top, height);
    if (range.first == range.last)
        return -1;
    const int next = range.first + m_columns;
    const bool isCut = cardRect(range.first).top() < top;
    return isCut && next < range.last ? next : range.first;
}

std::vector<int> BrowserLayout::nearbyItems(int top, int height) const
{
    const Range shown = visibleRange(top, height);
    std::vector<int> items;
    for (int index = shown.last; index < visibleRange(top + height, height).last; ++index)
        items.push_back(index);
    for (int index = shown.first - 1; index >= visibleRange(top - height, height).first; --index)
        items.push_back(index);
    return items;
}

int BrowserLayout::neighbour(int index, Step step, int pageHeight) const
{
    if (m_itemCount == 0)
        return -1;
    if (index < 0 || index >= m_itemCount)
        return step == Step::end ? m_itemCount - 1 : 0;
    const int page = std::max(pageHeight / m_rowHeight, 1) * m_columns;
    const auto moved = [&](int delta) {
        // A short last row: moving down past it ends on its last card rather than nowhere.
        if (index + delta >= m_itemCount && index / m_columns < rows() - 1 && delta > 1)
            return m_itemCount - 1;
        return index + delta < 0 || index + delta >= m_itemCount ? index : index + delta;
    };
    switch (step) {
    case Step::left:
        return moved(-1);
    case Step::right:
        return moved(1);
    case Step::up:
        return moved(-m_columns);
    case Step::down:
        return m_columns == 1 ? moved(1) : moved(m_columns);
    case Step::pageUp:
        return index < page ? index % m_columns : index - page;
    case Step::pageDown:
        return moved(page);
    case Step::home:
        return 0;
    case Step::end:
        return m_itemCount - 1;
    }
    return index;
}

} // namespace lorva
