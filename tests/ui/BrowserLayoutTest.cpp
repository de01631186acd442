// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT

#include "ui/browser/BrowserLayout.h"

#include <gtest/gtest.h>

namespace lorva {
namespace {

using Step = BrowserLayout::Step;

TEST(BrowserLayout, ColumnsFollowTheWidth)
{
    const struct
    {
        ViewMode mode;
        double width;
        int columns;
    } rows[]{
        {ViewMode::grid, 0, 2},    {ViewMode::grid, 999, 2},  {ViewMode::grid, 999.9, 2},
        {ViewMode::grid, 1000, 3}, {ViewMode::grid, 1519, 3}, {ViewMode::grid, 1520, 4},
        {ViewMode::grid, 3840, 4}, {ViewMode::list, 400, 1},  {ViewMode::list, 3840, 1},
    };
    for (const auto &row : rows)
        EXPECT_EQ(BrowserLayout::columnCount(row.mode, row.width), row.columns) << row.width;
}

TEST(BrowserLayout, CardsGrowWithLargeTypeInTheGridOnly)
{
    const struct
    {
        ViewMode mode;
        double pointSize;
        int height;
    } rows[]{
        {ViewMode::grid, 12, 220},  {ViewMode::grid, 58, 220}, {ViewMode::grid, 86.8, 220},
        {ViewMode::grid, 100, 245}, {ViewMode::list, 12, 204}, {ViewMode::list, 160, 204},
    };
    for (const auto &row : rows)
        EXPECT_EQ(BrowserLayout::cardHeight(row.mode, row.pointSize), row.height) << row.pointSize;
}

TEST(BrowserLayout, CardsTileTheWidthWithoutGapsAtAnyWidth)
{
    for (const int width : {961, 1000, 1333, 1519, 1520, 1721, 2561}) {
        const BrowserLayout layout(ViewMode::grid, width, 36, 9);
        int x = 0;
        for (int column = 0; column < layout.columns(); ++column) {
            EXPECT_EQ(layout.cardRect(column).left(), x) << width;
            x += layout.cardRect(column).width();
        }
        EXPECT_EQ(x, width);
        EXPECT_EQ(layout.cardRect(layout.columns()).top(), layout.rowHeight());
    }
}

TEST(BrowserLayout, EveryCardIsFoundUnderItsOwnCorners)
{
    const BrowserLayout layout(ViewMode::grid, 1333, 36, 10);
    for (int index = 0; index < 10; ++index) {
        EXPECT_EQ(layout.indexAt(layout.cardRect(index).topLeft()), index);
        EXPECT_EQ(layout.indexAt(layout.cardRect(index).bottomRight()), index);
    }
    EXPECT_EQ(layout.indexAt({1332, layout.contentHeight() - 1}), -1) << "beside the last card";
    EXPECT_EQ(layout.indexAt({-1, 5}), -1);
    EXPECT_EQ(layout.indexAt({5, layout.contentHeight()}), -1);
}

TEST(BrowserLayout, OnlyTouchedRowsAreVisible)
{
    const BrowserLayout layout(ViewMode::grid, 1200, 36, 100);
    const struct
    {
        int top;
        int height;
        BrowserLayout::Range range;
    } rows[]{
        {0, 220, {0, 3}},   {0, 221, {0, 6}},           {219, 2, {0, 6}},
        {220, 220, {3, 6}}, {220 * 33, 220, {99, 100}}, {220 * 40, 220, {100, 100}},
        {-50, 40, {0, 0}},
    };
    for (const auto &row : rows)
        EXPECT_EQ(layout.visibleRange(row.top, row.height), row.range) << row.top;
    EXPECT_EQ(BrowserLayout(ViewMode::grid, 1200, 36, 0).visibleRange(0, 900),
              (BrowserLayout::Range{0, 0}));
}

TEST(BrowserLayout, NearbyCardsAreThoseOfTheNextAndThePreviousScreen)
{
    // Two columns of rows 220 high; a window of 440.
    const BrowserLayout layout(ViewMode::grid, 800, 36, 15);
    const struct
    {
        int top;
        std::vector<int> items;
    } rows[]{
        {0, {4, 5, 6, 7}},
        {440, {8, 9, 10, 11, 3, 2, 1, 0}},
        // Rows that are cut by the window's edges are shown already.
        {450, {10, 11, 12, 13, 3, 2, 1, 0}},
        {220, {6, 7, 8, 9, 1, 0}},
        {220 * 6, {11, 10, 9, 8}},
    };
    for (const auto &row : rows)
        EXPECT_EQ(layout.nearbyItems(row.top, 440), row.items) << row.top;
    EXPECT_TRUE(BrowserLayout(ViewMode::grid, 800, 36, 0).nearbyItems(0, 440).empty());
}

TEST(BrowserLayout, ArrowKeysMoveAsTheEyeExpects)
{
    // Three columns, four rows, the last one short: 0 1 2 / 3 4 5 / 6 7 8 / 9.
    const BrowserLayout layout(ViewMode::grid, 1200, 36, 10);
    constexpr int kPage = 440;
    const struct
    {
        int from;
        Step step;
        int to;
    } rows[]{
        {-1, Step::right, 0}, {-1, Step::up, 0},      {-1, Step::end, 9},     {0, Step::left, 0},
        {2, Step::right, 3},  {3, Step::left, 2},     {1, Step::down, 4},     {4, Step::up, 1},
        {1, Step::up, 1},     {6, Step::down, 9},     {8, Step::down, 9},     {9, Step::down, 9},
        {9, Step::right, 9},  {1, Step::pageDown, 7}, {7, Step::pageDown, 9}, {8, Step::pageUp, 2},
        {4, Step::pageUp, 1}, {5, Step::home, 0},     {5, Step::end, 9},      {42, Step::left, 0},
    };
    for (const auto &row : rows)
        EXPECT_EQ(layout.neighbour(row.from, row.step, kPage), row.to)
            << row.from << " step " << int(row.step);
    EXPECT_EQ(BrowserLayout(ViewMode::list, 1200, 36, 0).neighbour(-1, Step::down, kPage), -1);
}

} // namespace
} // namespace lorva
