// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QPoint>
#include <QRect>

#include <optional>
#include <vector>

namespace lorva {

/// Points; cells are square.
inline constexpr int kCharacterCell = 64;

/// How many columns a grid of that width gets; nothing for one that is too narrow to tell (under
/// one cell), which keeps those it has. 64 → 1, 1000 → 15.
std::optional<int> characterColumns(int width);

/// Where a cell is: a section and a place in it.
struct CellIndex
{
    int section = 0;
    int index = 0;
    auto operator<=>(const CellIndex &) const = default;
};

/// Which way the keyboard moves. Line ends are the row's, document ends the grid's.
enum class CellMove { previous, next, up, down, rowStart, rowEnd, first, last, pageUp, pageDown };

/// Where headers, rows and cells lie: section below section, each with its header above rows of
/// cells.
///
/// A value. Units: points, from the top left of the grid. Mirrored, cells run from the right.
class CharacterGridLayout
{
public:
    struct Section
    {
        int count = 0;
        bool hasHeader = true;
    };
    /// Cells that stand side by side.
    struct Row
    {
        int section = 0;
        /// Of its first cell.
        int startIndex = 0;
        int count = 0;
        bool isLast = false;
        bool operator==(const Row &) const = default;
    };

    /// Text over a hairline.
    static constexpr int kHeaderHeight = 24;
    static constexpr int kHeaderGap = 8;
    static constexpr int kSectionGap = 32;

    CharacterGridLayout() = default;
    CharacterGridLayout(const std::vector<Section> &sections, int columns, int width,
                        bool isMirrored);

    int columns() const { return m_columns; }
    int width() const { return m_width; }
    int height() const { return m_height; }
    int sectionCount() const { return int(m_sections.size()); }
    int cellCount() const;

    QRect headerRect(int section) const;
    /// As wide as the grid.
    QRect rowRect(const Row &row) const;
    QRect cellRect(CellIndex cell) const;
    /// Of a cell in its row, from the row's left.
    QRect rectInRow(int column) const;
    /// The rows that reach into the band, from the top down.
    std::vector<Row> rowsIn(int top, int bottom) const;
    Row rowOf(CellIndex cell) const;
    /// The sections whose headers reach into the band.
    std::vector<int> headersIn(int top, int bottom) const;
    std::optional<CellIndex> cellAt(QPoint point) const;
    bool contains(CellIndex cell) const;

    /// Counted over all sections, and back.
    int flatIndex(CellIndex cell) const;
    std::optional<CellIndex> cellOf(int flatIndex) const;

    /// Where a key leads to; a page is `pageHeight` high. The same cell where there is no way.
    CellIndex moved(CellIndex from, CellMove move, int pageHeight) const;

private:
    struct Placed
    {
        Section section;
        int top = 0;
        int rowsTop = 0;
        int rows = 0;
        int firstFlat = 0;
    };

    int rowTop(int section, int row) const;
    CellIndex vertically(CellIndex from, int rows) const;

    std::vector<Placed> m_sections;
    int m_columns = 1;
    int m_width = 0;
    int m_height = 0;
    bool m_isMirrored = false;
};

} // namespace lorva
