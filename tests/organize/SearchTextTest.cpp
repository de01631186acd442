// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#include "organize/SearchText.h"

#include <gtest/gtest.h>

namespace lorva {

namespace {

using namespace Qt::StringLiterals;

FontFamilyRecord familyNamed(const QString &name, const QStringList &alternates = {})
{
    FontFamilyRecord family;
    family.familyName = name;
    if (!alternates.isEmpty())
        family.alternateNames = alternates;
    return family;
}

bool finds(const QString &typed, const QString &name)
{
    return SearchQuery(typed).matches(searchTextOf(familyNamed(name), QString()));
}

TEST(SearchText, OverlooksHowNamesAreWritten)
{
    struct
    {
        QString typed;
        QString name;
        bool isFound;
    } const cases[]{
        {u" \n\t\u3000"_s, u"Any"_s, true},
        {u"  ELV\n"_s, u"Helvetica"_s, true},
        {u"ＥＬ"_s, u"Helvetica"_s, true},
        {u"el"_s, u"ＨＥＬＶＥＴＩＣＡ"_s, true},
        {u"sohne"_s, u"Söhne"_s, true},
        {u"SÖHNE"_s, u"Sohne"_s, true},
        {u"e\u0301cole"_s, u"ÉCOLE"_s, true},
        {u"STRASSE"_s, u"Straße"_s, true},
        {u"helvetica neue"_s, u"Helvetica  Neue"_s, false},
        {u"Neue\nHaas"_s, u"Neue Haas"_s, true},
        {u"x"_s, u"Helvetica"_s, false},
        {u"x"_s, QString(), false},
        // Kana, in both directions, wide and narrow, plain and voiced.
        {u"ひらぎの"_s, u"ヒラギノ角ゴ"_s, true},
        {u"ヒラギノ"_s, u"ひらぎの角ゴ"_s, true},
        {u"ﾋﾗｷﾞﾉ"_s, u"ひらぎの角ゴ"_s, true},
        {u"ひらぎの"_s, u"ﾋﾗｷﾞﾉ"_s, true},
        {u"ひらきの"_s, u"ヒラギノ"_s, true},
        {u"ひら"_s, u"ひらぎの"_s, true},
        {u"ゔぁ"_s, u"ヴァ"_s, true},
        {u"らー"_s, u"カラー"_s, true},
        {u"ヒラ"_s, u"ラヒ"_s, false},
        {u"나누"_s, u"나눔고딕"_s, true},
        {u"ひ나누"_s, u"ヒ나눔"_s, true},
    };
    for (const auto &each : cases) {
        EXPECT_EQ(finds(each.typed, each.name), each.isFound)
            << each.typed.toStdString() << " in " << each.name.toStdString();
    }
}

TEST(SearchText, HoldsEveryNameOnALineOfItsOwn)
{
    const FontFamilyRecord family =
        familyNamed(u"Hiragino\nSans"_s, {u"ヒラギノ角ゴ"_s, QString(), u"冬青黑体"_s});
    const QString text = searchTextOf(family, u"SCREEN\r\nLtd"_s);
    EXPECT_EQ(text.count(u'\n'), 3);
    struct
    {
        QString typed;
        bool isFound;
    } const cases[]{
        {u"hiragino sans"_s, true}, {u"ひらぎの"_s, true},        {u"冬青"_s, true},
        {u"screen"_s, true},        {u"sans ヒラキノ"_s, false},  {u"sans\nヒラギノ"_s, false},
        {u"ゴ\n冬青"_s, false},     {u"sans\u2028ヒラ"_s, false}, {u"体\r\nscreen"_s, false},
    };
    for (const auto &each : cases)
        EXPECT_EQ(SearchQuery(each.typed).matches(text), each.isFound) << each.typed.toStdString();
    EXPECT_EQ(searchTextOf(familyNamed(u"Only"_s), QString()), u"only"_s);
}

TEST(SearchText, IsEmptyForWhatSaysNothing)
{
    for (const QString &typed : {QString(), u"  "_s, u"\n\u3000\u2028"_s})
        EXPECT_TRUE(SearchQuery(typed).isEmpty());
    EXPECT_FALSE(SearchQuery(u" a "_s).isEmpty());
}

} // namespace

} // namespace lorva
