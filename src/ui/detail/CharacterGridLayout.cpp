// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#include "ui/detail/CharacterGridLayout.h"

#include <algorithm>

namespace lorva {

std::optional<int> characterColumns(int width)
{
    if (width < kCharacterCell)
        return std::nullopt;
    return std::max(1, width / kCharacterCell);
}

CharacterGridLayout::CharacterGridLayout(const std::vector<Section> &sections, int columns,
                                         int width, bool isMirrored)
    : m_columns(std::max(1, columns))
    , m_width(width)
    , m_isMirrored(isMirrored)
{
    int flat = 0;
    for (const Section &section : sections) {
        Placed placed{section, m_height, m_height, 0, flat};
        if (section.hasHeader)
            placed.rowsTop += kHeaderHeight + kHeaderGap;
        placed.rows = (section.count + m_columns - 1) / m_columns;
        m_height = placed.rowsTop + placed.rows * kCharacterCell + kSectionGap;
        flat += section.count;
        m_sections.push_back(placed);
    }
    m_height = std::max(0, m_height - kSectionGap);
}

int CharacterGridLayout::cellCount() const
{
    return m_sections.empty() ? 0 : m_sections.back().firstFlat + m_sections.back().section.count;
}

int CharacterGridLayout::rowTop(int section, int row) const
{
    return m_sections[size_t(section)].rowsTop + row * kCharacterCell;
}

QRect CharacterGridLayout::headerRect(int section) const
{
    const Placed &placed = m_sections[size_t(section)];
    return {0, placed.top, m_width, placed.section.hasHeader ? kHeaderHeight : 0};
}

QRect CharacterGridLayout::rowRect(const Row &row) const
{
    return {0, rowTop(row.section, row.startIndex / m_columns), m_width, kCharacterCell};
}

QRect CharacterGridLayout::rectInRow(int column) const
{
    const int left =
        m_isMirrored ? m_width - (column + 1) * kCharacterCell : column * kCharacterCell;
    return {left, 0, kCharacterCell, kCharacterCell};
}

QRect CharacterGridLayout::cellRect(CellIndex cell) const
{
    return rectInRow(cell.index % m_columns)
        .translated(0, rowTop(cell.section, cell.index / m_columns));
}

CharacterGridLayout::Row CharacterGridLayout::rowOf(CellIndex cell) const
{
    const Placed &placed = m_sections[size_t(cell.section)];
    const int start = cell.index / m_columns * m_columns;
    const int count = std::min(m_columns, placed.section.count - start);
    return {cell.section, start, count, start + count == placed.section.count};
}

std::vector<CharacterGridLayout::Row> CharacterGridLayout::rowsIn(int top, int bottom) const
{
    std::vector<Row> rows;
    for (int section = 0; section < sectionCount(); ++section) {
        const Placed &placed = m_sections[size_t(section)];
        const int first = std::max(0, (top - placed.rowsTop) / kCharacterCell);
        const int below = std::max(0, bottom - placed.rowsTop + kCharacterCell - 1);
        const int end = std::min(placed.rows, below / kCharacterCell);
        for (int row = first; row < end; ++row)
            rows.push_back(rowOf({section, row * m_columns}));
    }
    return rows;
}

std::vector<int> CharacterGridLayout::headersIn(int top, int bottom) const
{
    std::vector<int> headers;
    for (int section = 0; section < sectionCount(); ++section) {
        const QRect header = headerRect(section);
        if (!header.isEmpty() && header.top() < bottom && header.bottom() >= top)
            headers.push_back(section);
    }
    return headers;
}

std::optional<CellIndex> CharacterGridLayout::cellAt(QPoint point) const
{
    if (point.x() < 0 || point.x() >= m_width)
        return std::nullopt;
    const int column = (m_isMirrored ? m_width - 1 - point.x() : point.x()) / kCharacterCell;
    for (const Row &row : rowsIn(point.y(), point.y() + 1)) {
        if (rowRect(row).contains(point) && column < row.count)
            return CellIndex{row.section, row.startIndex + column};
    }
    return std::nullopt;
}

bool CharacterGridLayout::contains(CellIndex cell) const
{
    return cell.section >= 0 && cell.section < sectionCount() && cell.index >= 0
        && cell.index < m_sections[size_t(cell.section)].section.count;
}

int CharacterGridLayout::flatIndex(CellIndex cell) const
{
    return m_sections[size_t(cell.section)].firstFlat + cell.index;
}

std::optional<CellIndex> CharacterGridLayout::cellOf(int flatIndex) const
{
    for (int section = 0; section < sectionCount(); ++section) {
        const CellIndex cell{section, flatIndex - m_sections[size_t(section)].firstFlat};
        if (contains(cell))
            return cell;
    }
    return std::nullopt;
}

/// Keeps the column, over the borders of sections; ends at the first and the last row.
CellIndex CharacterGridLayout::vertically(CellIndex from, int rows) const
{
    const int column = from.index % m_columns;
    int section = from.section;
    int row = from.index / m_columns + rows;
    while (row < 0 && section > 0)
        row += m_sections[size_t(--section)].rows;
    while (row >= m_sections[size_t(section)].rows && section + 1 < sectionCount())
        row -= m_sections[size_t(section++)].rows;
    const Placed &placed = m_sections[size_t(section)];
    row = std::clamp(row, 0, std::max(0, placed.rows - 1));
    return {section, std::min(row * m_columns + column, placed.section.count - 1)};
}

CellIndex CharacterGridLayout::moved(CellIndex from, CellMove move, int pageHeight) const
{
    const int pageRows = std::max(1, pageHeight / kCharacterCell - 1);
    const Row row = rowOf(from);
    switch (move) {
    case CellMove::previous:
        return cellOf(flatIndex(from) - 1).value_or(from);
    case CellMove::next:
        return cellOf(flatIndex(from) + 1).value_or(from);
    case CellMove::up:
        return vertically(from, -1);
    case CellMove::down:
        return vertically(from, 1);
    case CellMove::rowStart:
        return {from.section, row.startIndex};
    case CellMove::rowEnd:
        return {from.section, row.startIndex + row.count - 1};
    case CellMove::first:
        return cellOf(0).value_or(from);
    case CellMove::last:
        return cellOf(cellCount() - 1).value_or(from);
    case CellMove::pageUp:
        return vertically(from, -pageRows);
    case CellMove::pageDown:
        return vertically(from, pageRows);
    }
    return from;
}

} // namespace lorva
