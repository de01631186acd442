// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#include "organize/StyleClassifier.h"

#include "model/records/StyleCategories.h"
#include "organize/StyleWords.h"

#include <QLocale>

#include <gtest/gtest.h>

#include <algorithm>

namespace lorva {

namespace {

using namespace Qt::StringLiterals;

using Categories = std::vector<FontStyleCategoryRecord>;

std::vector<FontFamilyRecord> familiesNamed(const QStringList &names)
{
    std::vector<FontFamilyRecord> families;
    for (const QString &name : names) {
        FontFamilyRecord family;
        family.familyName = name;
        families.push_back(std::move(family));
    }
    return families;
}

QString categoryOf(const QString &name, ClassifierPass pass)
{
    for (const FontStyleCategoryRecord &each :
         classify(familiesNamed({name}), defaultStyleCategories(), pass)) {
        if (!each.familyNames.isEmpty())
            return each.id;
    }
    return {};
}

TEST(StyleClassifier, PlacesByName)
{
    const QString none;
    const QString sans = u"sans"_s;
    const QString serif = u"serif"_s;
    const QString mono = u"mono"_s;
    const QString script = u"script"_s;
    struct
    {
        QString name;
        QString full;
        QString cjkOnly;
    } const cases[]{
        {u"Helvetica Neue"_s, sans, none},
        {u"Helvetica Neue LT Std"_s, sans, none},
        {u"HELVETICA"_s, sans, none},
        {u"Helvetic"_s, none, none},
        {u"SÖHNE Mono"_s, sans, none},
        {u"INTERNATIONAL Code"_s, sans, none},
        {u"Times New Roman"_s, none, none},
        {u"Menlo"_s, none, none},
        {u"Noto Serif JP"_s, serif, none},
        {u"Noto Sans Mono"_s, sans, none},
        {u"PT Sans Serif"_s, sans, none},
        {u"Zilla Grotesque Serif"_s, sans, none},
        {u"Handel Gothic"_s, script, none},
        {u"Handwriting Mono"_s, mono, none},
        {u"Fira Mono"_s, mono, none},
        {u"Brush Script"_s, script, none},
        {u"Hiragino Kaku Gothic ProN"_s, sans, sans},
        {u"ヒラギノ角ゴ ProN"_s, sans, sans},
        {u"나눔고딕"_s, sans, sans},
        {u"나눔명조"_s, serif, serif},
        {u"NanumGothic"_s, none, none},
        {u"Yu Mincho"_s, serif, serif},
        {u"AppleMyungjo"_s, serif, serif},
        {u"Batang"_s, serif, serif},
        {u"BatangChe"_s, serif, serif},
        {u"Nanum-batang 2"_s, serif, serif},
        {u"Sabatang"_s, none, none},
        {u"HY_Batang"_s, none, none},
        {u"한컴batang"_s, none, none},
        {u"바탕체"_s, serif, serif},
        {u"LXGW Kaiti Mono"_s, mono, script},
        {u"궁서체"_s, script, script},
        {u"方正楷体"_s, script, script},
        {u"Songti Heiti"_s, sans, sans},
        {u"Dotum Serif"_s, sans, sans},
        {QString(), none, none},
    };
    for (const auto &each : cases) {
        EXPECT_EQ(categoryOf(each.name, ClassifierPass::full), each.full)
            << each.name.toStdString();
        EXPECT_EQ(categoryOf(each.name, ClassifierPass::cjkOnly), each.cjkOnly)
            << each.name.toStdString();
    }
}

TEST(StyleClassifier, FindsEveryKnownFamilyThatANameBeginsWith)
{
    const auto isKnownByLooking = [](const QString &lower) {
        return std::ranges::any_of(knownSansFamilies(), [&lower](QStringView each) {
            return lower.startsWith(each.toString().toLower());
        });
    };
    int unknown = 0;
    for (const QStringView family : knownSansFamilies()) {
        const QString lower = family.toString().toLower();
        const QString last = QString(lower).replace(lower.size() - 1, 1, u'~');
        for (const QString &name : {lower, QString(lower + u" pro"), lower.chopped(1), last,
                                    QString(u' ' + lower), QString(lower + u'\uFFFF')}) {
            EXPECT_EQ(isKnownSansFamily(name), isKnownByLooking(name)) << name.toStdString();
            unknown += isKnownByLooking(name) ? 0 : 1;
        }
        EXPECT_TRUE(isSansName(family.toString().toUpper())) << lower.toStdString();
    }
    EXPECT_GT(unknown, 200);
}

TEST(StyleClassifier, LowersCaseAlikeForEveryLanguage)
{
    const QLocale before;
    QLocale::setDefault(QLocale(QLocale::Turkish));
    EXPECT_EQ(categoryOf(u"MINCHO"_s, ClassifierPass::full), u"serif"_s);
    EXPECT_EQ(categoryOf(u"SCRIPT"_s, ClassifierPass::full), u"script"_s);
    QLocale::setDefault(before);
}

TEST(StyleClassifier, LeavesWhatIsPlacedAndSortsTheRest)
{
    const Categories before{
        {u"serif"_s, u"Serif"_s, {u"z"_s, u"Fira Sans"_s}},
        {u"sans"_s, u"Sans-Serif"_s, {u"gone"_s}},
        {u"sans"_s, u"Twice"_s, {}},
        {u"mine"_s, u"Mine"_s, {u"b"_s, u"É"_s, u"A"_s}},
    };
    const Categories after{
        {u"serif"_s, u"Serif"_s, {u"Fira Sans"_s, u"z"_s}},
        {u"sans"_s, u"Sans-Serif"_s, {u"a Sans"_s, u"gone"_s, u"Z Sans"_s}},
        {u"sans"_s, u"Twice"_s, {}},
        {u"mine"_s, u"Mine"_s, {u"A"_s, u"b"_s, u"É"_s}},
    };
    const auto families =
        familiesNamed({u"Z Sans"_s, u"É"_s, u"a Sans"_s, u"Fira Sans"_s, u"No Category Mono"_s});
    EXPECT_EQ(classify(families, before, ClassifierPass::full), after);
    EXPECT_EQ(classify(families, after, ClassifierPass::full), after);
    EXPECT_EQ(classify(families, after, ClassifierPass::cjkOnly), after);
}

} // namespace

} // namespace lorva
