// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#include "base/TextColumns.h"
#include "support/QtPrinters.h"

#include <gtest/gtest.h>

namespace lorva {
namespace {

TEST(TextColumns, CountWhatATerminalShows)
{
    const std::pair<QString, int> rows[]{
        {"", 0},         {"naïve …", 7}, {"e\u0301", 1}, {"日本語", 6},  {"ﾊﾝｶｸ", 4},
        {"Ａ", 2},       {"한글", 4},    {"𠀋", 2},      {"a\u200b", 1}, {"\u1112\u1161\u11ab", 2},
        {"a\u00adb", 3},
    };
    for (const auto &[text, width] : rows)
        EXPECT_EQ(displayWidth(text), width) << text.toStdString();
}

struct WrapRow
{
    QString text;
    int columns = 0;
    /// With a bar between them.
    QString lines;
};

TEST(TextColumns, WrapWhereALineMayEnd)
{
    const WrapRow rows[]{
        {"", 10, ""},
        {"one two three", 7, "one two|three"},
        {"one two three", 6, "one|two|three"},
        {"a --long-option=x/y b", 8, "a|--long-option=x/y|b"},
        {"日本語の文章です。続き", 8, "日本語の|文章で|す。続き"},
        {"日本 --json を", 9, "日本|--json を"},
        {"𠀋𠀋𠀋", 4, "𠀋𠀋|𠀋"},
        {"한국어 문장 입니다", 11, "한국어 문장|입니다"},
        {"한국어문장", 4, "한국어문장"},
    };
    for (const WrapRow &row : rows)
        EXPECT_EQ(wrapped(row.text, row.columns).join(u'|'), row.lines);
}

TEST(TextColumns, AlignWhatFollowsTabs)
{
    EXPECT_EQ(alignedAtTabs("ab\tx\nplain, and longer\nc\ty\n", 5),
              "ab   x\nplain, and longer\nc    y\n");
    EXPECT_EQ(alignedAtTabs("ab\tx\n日本語\ty", 5), "ab     x\n日本語 y");
}

} // namespace
} // namespace lorva
