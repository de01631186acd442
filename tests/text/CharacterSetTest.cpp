// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#include "text/CharacterSet.h"

#include "text/ReadingSupport.h"

#include <QtEndian>

#include <gmock/gmock.h>

namespace lorva::test {

namespace {

using ::testing::ElementsAre;
using Ranges = std::vector<CharacterRange>;

Ranges rangesOf(const CharacterSet &set)
{
    return {set.ranges().begin(), set.ranges().end()};
}

template <class... Numbers>
QByteArray u16(Numbers... numbers)
{
    QByteArray bytes;
    for (const int number : {int(numbers)...})
        bytes.append(char(number >> 8)).append(char(number));
    return bytes;
}

QByteArray u32(std::initializer_list<quint32> numbers)
{
    QByteArray bytes;
    for (const quint32 number : numbers)
        bytes += u16(number >> 16, number & 0xFFFF);
    return bytes;
}

/// A character map of one subtable, for Windows.
QByteArray cmap(const QByteArray &subtable, int encoding = 10)
{
    return u16(0, 1, 3, encoding, 0, 12) + subtable;
}

QByteArray groups(int format, std::initializer_list<std::array<quint32, 3>> list)
{
    QByteArray bytes =
        u16(format, 0) + u32({quint32(16 + 12 * list.size()), 0, quint32(list.size())});
    for (const auto &[first, last, glyph] : list)
        bytes += u32({first, last, glyph});
    return bytes;
}

/// Format 4; each segment with its delta.
QByteArray segments(const std::vector<std::array<int, 3>> &list)
{
    QByteArray ends;
    QByteArray starts;
    QByteArray deltas;
    for (const auto &[first, last, delta] : list) {
        ends += u16(last);
        starts += u16(first);
        deltas += u16(delta);
    }
    const int doubled = int(2 * list.size());
    return u16(4, 16 + 4 * doubled, 0, doubled, 0, 0, 0) + ends + u16(0) + starts + deltas
        + QByteArray(doubled, '\0');
}

std::shared_ptr<const FontFace> faceWith(const QByteArray &map)
{
    return builtFace(FontBuilder().codePoints(U"ABCDEFGH").table("cmap", map));
}

} // namespace

TEST(CharacterSet, PutsRangesInOrder)
{
    struct Case
    {
        const char *what;
        Ranges given;
        Ranges kept;
        int count;
    };
    const Case cases[] = {
        {"none", {}, {}, 0},
        {"touching", {{0x41, 0x42}, {0x43, 0x43}}, {{0x41, 0x43}}, 3},
        {"out of order", {{0x61, 0x62}, {0x41, 0x41}}, {{0x41, 0x41}, {0x61, 0x62}}, 3},
        {"within another", {{0x41, 0x5A}, {0x42, 0x43}}, {{0x41, 0x5A}}, 26},
        {"upside down", {{0x42, 0x41}, {0x50, 0x50}}, {{0x50, 0x50}}, 1},
        {"beyond Unicode",
         {{0x10FFFE, 0xFFFFFFFF}, {0x110000, 0x110001}},
         {{0x10FFFE, 0x10FFFF}},
         2},
        {"all", {{0, 0xFFFFFFFF}, {0, 0x10FFFF}}, {{0, 0x10FFFF}}, 0x110000},
    };
    for (const Case &c : cases) {
        SCOPED_TRACE(c.what);
        const CharacterSet set(c.given);
        EXPECT_EQ(rangesOf(set), c.kept);
        EXPECT_EQ(set.count(), c.count);
        EXPECT_EQ(set.isEmpty(), c.count == 0);
    }
}

TEST(CharacterSet, KnowsWhatItHolds)
{
    const CharacterSet set(Ranges{{0x41, 0x5A}, {0x61, 0x7A}, {0x10FFFF, 0x10FFFF}});
    for (const char32_t in : {0x41U, 0x5AU, 0x61U, 0x6DU, 0x10FFFFU})
        EXPECT_TRUE(set.contains(in)) << uint(in);
    for (const char32_t out : {0U, 0x40U, 0x5BU, 0x7BU, 0x10FFFEU, 0x110000U, 0xFFFFFFFFU})
        EXPECT_FALSE(set.contains(out)) << uint(out);
    EXPECT_TRUE(set.intersects({0x5B, 0x61}));
    EXPECT_TRUE(set.intersects({0, 0xFFFFFFFF}));
    EXPECT_FALSE(set.intersects({0x5B, 0x60}));
    EXPECT_FALSE(set.intersects({0x62, 0x61}));
}

/// Counted with fonttools 4.38.
TEST(CharacterSet, HoldsWhatRealFontsMap)
{
    struct Case
    {
        const char *font;
        int count;
        size_t ranges;
        CharacterRange ends;
    };
    const Case cases[] = {
        {"opentype/noto/NotoSansCJK-Regular.ttc", 44810, 2032, {0x20, 0x3106C}},
        {"opentype/fonts-hosny-amiri/Amiri-Regular.ttf", 1690, 95, {0x20, 0x1EEF1}},
        {"truetype/inter-vf/Inter-roman.var.ttf", 2505, 151, {0x20, 0x1F852}},
        {"truetype/nanum/NanumGothic.ttf", 17666, 3472, {0, 0xFFE6}},
    };
    for (const Case &c : cases) {
        SCOPED_TRACE(c.font);
        const auto face = openFace(realFont(c.font));
        const CharacterSet set = readCharacters(*face);
        ASSERT_FALSE(set.isEmpty());
        EXPECT_EQ(set.count(), c.count);
        EXPECT_EQ(set.ranges().size(), c.ranges);
        EXPECT_EQ(set.ranges().front().first, c.ends.first);
        EXPECT_EQ(set.ranges().back().last, c.ends.last);
        const std::vector<char32_t> byGlyph = charactersByGlyph(*face);
        ASSERT_EQ(byGlyph.size(), size_t(face->glyphCount()));
        for (const char32_t scalar : {U'A', U'é', U'ﷲ', U'永', U'글'}) {
            const auto glyph = face->glyphFor(scalar);
            ASSERT_EQ(set.contains(scalar), glyph.has_value());
            EXPECT_EQ(glyph ? byGlyph[*glyph] : scalar, scalar);
        }
    }
}

TEST(CharacterSet, AgreesWithEverySingleLookUp)
{
    const auto face = openFace(realFont("opentype/fonts-hosny-amiri/Amiri-Regular.ttf"));
    const CharacterSet set = readCharacters(*face);
    std::vector<char32_t> expected(size_t(face->glyphCount()), 0);
    int different = 0;
    for (char32_t scalar = 0; scalar <= 0x10FFFF; ++scalar) {
        const auto glyph = face->glyphFor(scalar);
        different += glyph.has_value() == set.contains(scalar) ? 0 : 1;
        if (glyph && expected[*glyph] == 0)
            expected[*glyph] = scalar;
    }
    EXPECT_EQ(different, 0);
    EXPECT_EQ(charactersByGlyph(*face), expected);
}

TEST(CharacterSet, ReadsEveryKindOfMapWithoutTheMissingGlyph)
{
    QByteArray bytesOnly(256, '\0');
    bytesOnly['B'] = 2;
    bytesOnly['D'] = 4;
    struct Case
    {
        const char *what;
        QByteArray map;
        Ranges ranges;
    };
    const Case cases[] = {
        {"format 0", cmap(u16(0, 262, 0) + bytesOnly, 1), {{'B', 'B'}, {'D', 'D'}}},
        {"format 4", cmap(segments({{'A', 'C', -'A'}, {0xFFFF, 0xFFFF, 1}}), 1), {{'B', 'C'}}},
        {"format 6", cmap(u16(6, 18, 0, 'A', 4, 1, 0, 0, 3), 1), {{'A', 'A'}, {'D', 'D'}}},
        {"format 10",
         cmap(u16(10, 0) + u32({26, 0, 0x1F600, 3}) + u16(3, 0, 1)),
         {{0x1F600, 0x1F600}, {0x1F602, 0x1F602}}},
        {"format 12",
         cmap(groups(12, {{0x41, 0x43, 0}, {0x1F600, 0x1F600, 3}})),
         {{0x42, 0x43}, {0x1F600, 0x1F600}}},
        {"format 13", cmap(groups(13, {{0x41, 0x45, 7}, {0x50, 0x55, 0}})), {{0x41, 0x45}}},
        {"symbols",
         cmap(segments({{0xF041, 0xF042, 1 - 0xF041}, {0xFFFF, 0xFFFF, 1}}), 0),
         {{0x41, 0x42}, {0xF041, 0xF042}}},
        {"unknown format", cmap(u16(99, 0, 0, 0)), {}},
    };
    for (const Case &c : cases) {
        SCOPED_TRACE(c.what);
        const auto face = faceWith(c.map);
        const CharacterSet set = readCharacters(*face);
        EXPECT_EQ(rangesOf(set), c.ranges);
        for (char32_t scalar = 0; scalar < 0x20000; ++scalar)
            ASSERT_EQ(set.contains(scalar), face->glyphFor(scalar).has_value()) << uint(scalar);
    }
    EXPECT_THAT(charactersByGlyph(*faceWith(cmap(groups(12, {{0x30, 0x31, 2}, {0x41, 0x42, 1}})))),
                ElementsAre(0, 0x41, 0x30, 0x31, 0, 0, 0, 0, 0));
}

TEST(CharacterSet, RefusesMapsThatClaimAllOfUnicodeOverAndOver)
{
    QByteArray endless = u16(13, 0) + u32({16 + 12 * 100000, 0, 100000});
    for (int i = 0; i < 100000; ++i)
        endless += u32({0, 0x10FFFF, 1});
    const std::vector<std::array<int, 3>> overlapping(8000, {0, 0xFFFF, 1});
    QByteArray many = u16(0, 60000);
    many += QByteArray(60000 * 8, '\1');
    for (const QByteArray &map : {cmap(endless), cmap(segments(overlapping), 1), many}) {
        const auto face = faceWith(map);
        EXPECT_TRUE(readCharacters(*face).isEmpty());
        EXPECT_EQ(charactersByGlyph(*face), std::vector<char32_t>(9, 0));
    }
    const FontBuilder nameless = FontBuilder().withoutNames().table("cmap", cmap(endless));
    EXPECT_FALSE(openFont(writeFont(nameless.build()))->descriptors());
}

TEST(CharacterSet, BearsMapsCutAnywhere)
{
    const QByteArray map = cmap(groups(12, {{0x41, 0x43, 1}, {0x1F600, 0x1F601, 3}}));
    for (qsizetype length = 0; length < map.size(); ++length)
        EXPECT_LE(readCharacters(*faceWith(map.first(length))).count(), 5) << length;
}

} // namespace lorva::test
