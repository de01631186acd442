// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#include "base/Folding.h"

#include <QStringList>

#include <gtest/gtest.h>

#include <algorithm>

namespace lorva {

namespace {

struct TextCase
{
    QString text;
    QString expected;
};

TEST(Folding, OverlooksCaseDiacriticsAndWidth)
{
    const TextCase cases[]{
        {QStringLiteral(""), QStringLiteral("")},
        {QStringLiteral("Helvetica NEUE-75"), QStringLiteral("helvetica neue-75")},
        {QStringLiteral("École ÅÖÜ ñ"), QStringLiteral("ecole aou n")},
        {QStringLiteral("e\u0301"), QStringLiteral("e")},
        {QStringLiteral("Straße"), QStringLiteral("strasse")},
        {QStringLiteral("ＡＢＣ　１２"), QStringLiteral("abc 12")},
        {QStringLiteral("ｶﾞ"), QStringLiteral("カ")},
        {QStringLiteral("ﾊﾟ"), QStringLiteral("ハ")},
        {QStringLiteral("ガ"), QStringLiteral("カ")},
        // Turkish letters as everybody else writes them: the dot is a mark, the dotless i its own
        // letter.
        {QStringLiteral("İstanbul"), QStringLiteral("istanbul")},
        {QStringLiteral("ISI"), QStringLiteral("isi")},
        {QStringLiteral("ısı"), QStringLiteral("ısı")},
        {QStringLiteral("ΣΊΣΥΦΟΣ"), QStringLiteral("σισυφοσ")},
        {QStringLiteral("Ệ"), QStringLiteral("e")},
        {QStringLiteral("明朝"), QStringLiteral("明朝")},
        // A ligature is no width form, but full case folding takes it apart.
        {QStringLiteral("ﬁ"), QStringLiteral("fi")},
        {QStringLiteral("½"), QStringLiteral("½")},
        {QStringLiteral("\U00010400"), QStringLiteral("\U00010428")},
    };
    for (const TextCase &each : cases)
        EXPECT_EQ(foldedForSearch(each.text).toStdString(), each.expected.toStdString());
}

TEST(Folding, SurvivesLoneSurrogates)
{
    const QString lone = QString(QChar(0xD800)) + QStringLiteral("É");
    EXPECT_EQ(foldedForSearch(lone), QString(QString(QChar(0xD800)) + u'e'));
}

TEST(Folding, GrowsItsBufferForTextsThatGrow)
{
    EXPECT_EQ(foldedForSearch(QString(2000, QChar(0x0390))), QString(2000, QChar(0x03B9)));
    EXPECT_EQ(foldedForSearch(QString(500, u'ß')), QString(1000, u's'));
}

TEST(Folding, FindsASyllableThatIsStillBeingTyped)
{
    EXPECT_TRUE(foldedForSearch(QStringLiteral("나눔고딕"))
                    .startsWith(foldedForSearch(QStringLiteral("나누"))));
}

TEST(Folding, TurnsHiraganaIntoKatakana)
{
    const TextCase cases[]{
        {QStringLiteral("ひらぎの"), QStringLiteral("ヒラギノ")},
        {QStringLiteral("きゃっぷ"), QStringLiteral("キャップ")},
        {QStringLiteral("ゔ"), QStringLiteral("ヴ")},
        {QStringLiteral("源ノ明朝 Bold"), QStringLiteral("源ノ明朝 Bold")},
        {QStringLiteral("Latin だけ"), QStringLiteral("Latin ダケ")},
        {QStringLiteral(""), QStringLiteral("")},
    };
    for (const TextCase &each : cases)
        EXPECT_EQ(withKatakana(each.text).toStdString(), each.expected.toStdString());
}

TEST(NameCollator, IgnoresCaseButNotAccents)
{
    const NameCollator collator{QLocale(QLocale::English)};
    EXPECT_EQ(collator.compare(u"futura", u"FUTURA"), 0);
    EXPECT_LT(collator.compare(u"Resume", u"Résumé"), 0);
    EXPECT_LT(collator.compare(u"Résumé", u"Resumes"), 0);
    EXPECT_GT(collator.compare(u"Zapf", u"ångström"), 0);
}

TEST(NameCollator, FollowsTheLocale)
{
    EXPECT_LT(NameCollator(QLocale(QLocale::German)).compare(u"Ärmel", u"Zoll"), 0);
    EXPECT_GT(NameCollator(QLocale(QLocale::Swedish)).compare(u"Ärmel", u"Zoll"), 0);
}

TEST(NameCollator, KeysOrderAsItsComparisons)
{
    const NameCollator collator{QLocale(QLocale::English)};
    const QStringList names{QStringLiteral("Zapfino"),
                            QStringLiteral("éclair"),
                            QStringLiteral("Eclair"),
                            QStringLiteral("eclair"),
                            QString(),
                            QStringLiteral("明朝"),
                            QStringLiteral("A-b"),
                            QStringLiteral("ab"),
                            QString(300, u'x')};
    for (const QString &left : names) {
        for (const QString &right : names) {
            const int byKey = collator.sortKey(left).compare(collator.sortKey(right));
            const int byName = collator.compare(left, right);
            EXPECT_EQ((byKey > 0) - (byKey < 0), (byName > 0) - (byName < 0))
                << left.toStdString() << " " << right.toStdString();
        }
    }
}

} // namespace

} // namespace lorva
