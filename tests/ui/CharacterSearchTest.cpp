// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#include "ui/detail/CharacterSearch.h"
#include "support/QtPrinters.h"
#include "ui/detail/CharacterCells.h"
#include "ui/detail/CharacterNames.h"
#include "ui/PreviewFonts.h"

#include <gtest/gtest.h>

namespace lorva {
namespace {

using Row = CharacterGridLayout::Row;

QString foundBy(const QString &query, const CharacterListing &listing)
{
    QString found;
    for (const CharacterGridSection &section :
         foundCharacters(listing.sections, CharacterQuery(query)))
        found += section.characters.join(QString());
    return found;
}

TEST(CharacterSearchTest, findsCharactersCodePointsAndNames)
{
    const CharacterListing listing =
        listCharacters(test::fontWith(U" -ABab056\u00DF\u2190\u2192\u21D0\u4E00\u20AC"));
    const std::pair<QString, QString> cases[]{
        {"A", "A"},
        {QStringLiteral("ß"), QStringLiteral("ß")},
        {QStringLiteral("a ß→"), QStringLiteral("aß→")},
        {" ", " "},
        {"-", "-"},
        {"65", "56"},
        {"U+0041", "A"},
        {"u+41 0x62", "Ab"},
        {"U+110000", {}},
        {"ARROW left", QStringLiteral("←⇐")},
        {"  left   arrow ", QStringLiteral("←⇐")},
        {"double left arrow", QStringLiteral("⇐")},
        {"4e00", QStringLiteral("一")},
        {"20ac", QStringLiteral("€")},
        {"small letter", QStringLiteral("abß")},
        {"qqqq", {}},
        {QString(3, QChar(0xD800)), {}},
    };
    for (const auto &[query, found] : cases)
        EXPECT_EQ(foundBy(query, listing), found) << query.toStdString();
    std::stop_source stop;
    stop.request_stop();
    EXPECT_TRUE(
        foundCharacters(listing.sections, CharacterQuery("letter"), stop.get_token()).empty());
}

TEST(CharacterSearchTest, findsGlyphsByNumberNameAndCharacter)
{
    const Font font =
        test::fontFromFile(test::realFont("opentype/ebgaramond/EBGaramond12-Regular.otf"));
    const CharacterListing listing = listCharacters(font);
    const auto found = [&](const char *query) {
        QStringList names;
        for (const quint32 glyph : foundGlyphs(listing.characterOfGlyph, *listing.glyphNames,
                                               CharacterQuery(QString::fromUtf8(query))))
            names.append(listing.glyphNames->name(glyph));
        return names;
    };
    EXPECT_EQ(int(found("").size()), font.face()->glyphCount());
    EXPECT_TRUE(found("Aogonek").contains(u"Aogonek"));
    EXPECT_TRUE(found("Ą").contains(u"Aogonek"));
    EXPECT_TRUE(found("capital ogonek").contains(u"Aogonek"));
    const quint32 glyph = *listing.glyphNames->glyph("Aogonek");
    EXPECT_TRUE(found(QByteArray::number(glyph).constData()).contains(u"Aogonek"));
    EXPECT_FALSE(found("99999999999").contains(listing.glyphNames->name(0)));
}

TEST(CharacterSearchTest, columnsFollowTheWidth)
{
    EXPECT_EQ(characterColumns(63), std::nullopt);
    EXPECT_EQ(characterColumns(64), 1);
    EXPECT_EQ(characterColumns(1000), 15);
}

TEST(CharacterSearchTest, rowsAndCellsLieWhereTheyAreSaidTo)
{
    const CharacterGridLayout layout({{7, true}, {2, true}, {5, false}}, 3, 200, false);
    constexpr int rowsTop = CharacterGridLayout::kHeaderHeight + CharacterGridLayout::kHeaderGap;
    constexpr int second = rowsTop + 3 * 64 + CharacterGridLayout::kSectionGap;
    EXPECT_EQ(layout.cellCount(), 14);
    EXPECT_EQ(layout.height(), second + rowsTop + 64 + CharacterGridLayout::kSectionGap + 2 * 64);
    EXPECT_EQ(layout.cellRect({0, 4}), QRect(64, rowsTop + 64, 64, 64));
    EXPECT_EQ(layout.headerRect(1), QRect(0, second, 200, 24));
    EXPECT_EQ(layout.rowsIn(rowsTop + 64, rowsTop + 64), std::vector<Row>{});
    EXPECT_EQ(layout.rowsIn(rowsTop + 127, rowsTop + 129),
              (std::vector<Row>{{0, 3, 3, false}, {0, 6, 1, true}}));
    EXPECT_EQ(layout.headersIn(0, second + 1), (std::vector<int>{0, 1}));
    EXPECT_EQ(layout.cellAt({65, rowsTop + 130}), std::nullopt) << "beyond the last one";
    EXPECT_EQ(layout.cellAt({195, rowsTop + 1}), std::nullopt) << "beside the last column";
    EXPECT_EQ(layout.cellAt({5, rowsTop - 1}), std::nullopt) << "under a header";
    const CharacterGridLayout mirrored({{7, true}}, 3, 200, true);
    EXPECT_EQ(mirrored.cellRect({0, 0}).right(), 199);
    for (int flat = 0; flat < layout.cellCount(); ++flat) {
        const CellIndex cell = *layout.cellOf(flat);
        EXPECT_EQ(layout.flatIndex(cell), flat);
        EXPECT_EQ(layout.cellAt(layout.cellRect(cell).bottomRight()), cell);
    }
    EXPECT_EQ(CharacterGridLayout({}, 3, 200, false).height(), 0);
}

TEST(CharacterSearchTest, keysMoveOverSections)
{
    const CharacterGridLayout layout({{7, true}, {2, true}}, 3, 200, false);
    struct Case
    {
        CellIndex from;
        CellMove move;
        CellIndex to;
    };
    const Case cases[]{
        {{0, 0}, CellMove::previous, {0, 0}}, {{0, 6}, CellMove::next, {1, 0}},
        {{1, 1}, CellMove::next, {1, 1}},     {{1, 0}, CellMove::previous, {0, 6}},
        {{0, 5}, CellMove::down, {0, 6}},     {{0, 6}, CellMove::down, {1, 0}},
        {{1, 1}, CellMove::up, {0, 6}},       {{0, 1}, CellMove::up, {0, 1}},
        {{0, 4}, CellMove::rowStart, {0, 3}}, {{0, 3}, CellMove::rowEnd, {0, 5}},
        {{1, 1}, CellMove::first, {0, 0}},    {{0, 0}, CellMove::last, {1, 1}},
        {{0, 1}, CellMove::pageDown, {0, 6}}, {{1, 1}, CellMove::pageUp, {0, 4}},
    };
    for (const Case &each : cases)
        EXPECT_EQ(layout.moved(each.from, each.move, 3 * 64), each.to)
            << each.from.section << ' ' << each.from.index << ' ' << int(each.move);
}

} // namespace
} // namespace lorva
