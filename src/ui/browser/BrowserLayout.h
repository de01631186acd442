// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#pragma once

#include "model/records/DisplayRecords.h"

#include <QRect>

#include <vector>

namespace lorva {

/// Where the cards of the browser stand, as plain arithmetic: no widget decides anything of this.
///
/// Units: points (logical pixels), y down from the top of the content. A value.
class BrowserLayout
{
public:
    /// Columns for a content width: one in a list; in a grid two below 1000, three below 1520, else
    /// four.
    static int columnCount(ViewMode mode, double contentWidth);
    /// Height of a card: 204 in a list, else max(220, pointSize × 1.9 + 55), rounded up to whole
    /// points.
    static int cardHeight(ViewMode mode, double pointSize);

    BrowserLayout() = default;
    BrowserLayout(ViewMode mode, int contentWidth, double pointSize, int itemCount);

    int contentWidth() const { return m_contentWidth; }
    int columns() const { return m_columns; }
    int rowHeight() const { return m_rowHeight; }
    int rows() const { return (m_itemCount + m_columns - 1) / m_columns; }
    int itemCount() const { return m_itemCount; }
    int contentHeight() const { return rows() * m_rowHeight; }
    /// Cards share the width without gaps; what does not divide evenly goes to single columns.
    QRect cardRect(int index) const;
    bool isFirstColumn(int index) const { return index % m_columns == 0; }
    /// The card at a point of the content; −1 where there is none.
    int indexAt(QPoint point) const;

    /// The cards that a rectangle of the content touches.
    std::vector<int> itemsIn(const QRect &rect) const;

    struct Range
    {
        int first = 0;
        /// One past the last.
        int last = 0;
        bool operator==(const Range &) const = default;
    };
    /// The cards that a window of `height` points at scroll offset `top` touches.
    Range visibleRange(int top, int height) const;

    /// The first card that such a window shows whole, or else touches; −1 when it touches none.
    int firstInSight(int top, int height) const;

    /// The cards that a scroll would bring into that window: those of the next screen, then those
    /// of the previous one, the nearest first.
    std::vector<int> nearbyItems(int top, int height) const;

    enum class Step { left, right, up, down, pageUp, pageDown, home, end };
    /// The card that a key press moves the selection to, from `index` (−1: none yet). Up and down
    /// stay in the column; a step that would leave the cards stays where it is. −1 only without any
    /// card.
    int neighbour(int index, Step step, int pageHeight) const;

    bool operator==(const BrowserLayout &) const = default;

private:
    int m_contentWidth = 1;
    int m_columns = 1;
    int m_rowHeight = 204;
    int m_itemCount = 0;
};

} // namespace lorva
