// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#pragma once

#include "text/TextLayout.h"

#include <vector>

namespace lorva {

/// What one grapheme cluster, or the ellipsis for all that it stands for, takes of a line.
struct CaretCell
{
    /// UTF-16 units of the text.
    int start = 0;
    int end = 0;
    /// Points in the layout's coordinates.
    double left = 0;
    double right = 0;
    bool isRightToLeft = false;
    bool isEllipsis = false;
    /// A part of the cluster that the cell before it in the text begins.
    bool joinsPrevious = false;
};

/// A line as carets see it. An edge is a place between two cells as seen: 0 left of all,
/// cells.size() right of all.
struct CaretLine
{
    /// From left to right.
    std::vector<CaretCell> cells;
    /// Places in `cells` in the order of the text.
    std::vector<int> logical;
    double left = 0;
    double right = 0;
    double top = 0;
    double bottom = 0;
    int textStart = 0;
    int textEnd = 0;
    /// What is not shown of the text up to here stands at the line's end.
    int hiddenEnd = 0;
    bool isRightToLeft = false;
    /// The text goes on in the next line without a separator.
    bool isWrapped = false;
    /// No cell reaches back over another one, as advances below zero make them.
    bool isOrdered = true;

    int edgeCount() const { return int(cells.size()); }
    /// Where the line begins and ends in its direction.
    int startEdge() const { return isRightToLeft ? edgeCount() : 0; }
    int endEdge() const { return isRightToLeft ? 0 : edgeCount(); }
    double edgeX(int edge) const;
    /// The cell that holds the index, by its place in `cells`; −1 for none.
    int cellAt(int index) const;
    /// The cell nearest to x, by its place in `cells`, which must not be empty.
    int cellNear(double x) const;
    /// The cell that ends at the index; −1 for none.
    int cellBefore(int index) const;
};

/// The cells of every line of a layout. Clusters without an end of their own in the text are not
/// expected of anyone: indices are clamped to the text.
std::vector<CaretLine> caretLines(QStringView text, const TextLayout &layout);

} // namespace lorva
