// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QRect>

namespace lorva {

/// Where the cards of the Discover page lie: as many columns as fit, one or two, each card a
/// picture of 16:9 with room for its texts below. A value. Thread: any. Units: points.
struct DiscoverLayout
{
    int columns = 1;
    int itemWidth = 0;
    int itemHeight = 0;

    /// For a grid of that width. A narrower one than 384 is laid out as if it were that wide.
    static DiscoverLayout forWidth(int width);

    /// From the top left of the grid, as left-to-right interfaces have it.
    QRect itemRect(int index) const;
    /// With the insets above and below.
    int contentHeight(int count) const;
    /// Of the picture at the top of a card.
    int artworkHeight() const;

    bool operator==(const DiscoverLayout &) const = default;
};

} // namespace lorva
