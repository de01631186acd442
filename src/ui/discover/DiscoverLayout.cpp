// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT

#include "ui/discover/DiscoverLayout.h"

#include "ui/style/Style.h"

#include <algorithm>

namespace lorva {

namespace {

constexpr int kSide = spacing::k32;
constexpr int kTop = spacing::k32;
constexpr int kBottom = spacing::k40;
constexpr int kColumnGap = spacing::k24;
constexpr int kRowGap = spacing::k40;
constexpr int kNarrowest = 320;
constexpr int kTwoColumns = 820;
/// For the texts and the link.
constexpr int kTextHeight = 112;

} // namespace

DiscoverLayout DiscoverLayout::forWidth(int width)
{
    const int available = std::max(width - 2 * kSide, kNarrowest);
    const int columns = available >= kTwoColumns ? 2 : 1;
    const int itemWidth = (available - (columns - 1) * kColumnGap) / columns;
    return {columns, itemWidth, itemWidth * 9 / 16 + kTextHeight};
}

QRect DiscoverLayout::itemRect(int index) const
{
    const int column = index % columns;
    const int row = index / columns;
    return {kSide + column * (itemWidth + kColumnGap), kTop + row * (itemHeight + kRowGap),
            itemWidth, itemHeight};
}

int DiscoverLayout::contentHeight(int count) const
{
    const int rows = (count + columns - 1) / columns;
    return kTop + rows * itemHeight + std::max(rows - 1, 0) * kRowGap + kBottom;
}

int DiscoverLayout::artworkHeight() const
{
    return itemHeight - kTextHeight;
}

} // namespace lorva
