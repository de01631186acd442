// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT

#include "ui/quiz/FontQuizDeck.h"
#include "ui/style/Palette.h"

#include <gmock/gmock.h>

#include <map>

namespace lorva {
namespace {

using testing::ElementsAre;
using testing::UnorderedElementsAreArray;

std::vector<FontFamilyRecord> families(int count)
{
    std::vector<FontFamilyRecord> out;
    out.resize(size_t(count));
    for (int i = 0; i < count; ++i)
        out[size_t(i)].familyName = QString(QChar(u'A' + i));
    return out;
}

/// Leaves the order as it is.
quint32 lastPlace(quint32 bound)
{
    return bound - 1;
}

FontQuizDeck deckOf(int count)
{
    return FontQuizDeck(families(count), {}, lastPlace);
}

QStringList names(const char *letters)
{
    return QString::fromLatin1(letters).split(QString(), Qt::SkipEmptyParts);
}

TEST(FontQuizDeck, HoldsTheFamiliesWithoutACategoryInThemesThatTakeTurns)
{
    const QHash<QString, QString> sorted{{QStringLiteral("B"), QStringLiteral("serif")}};
    const FontQuizDeck deck(families(15), sorted, lastPlace);
    EXPECT_EQ(deck.families(), names("ACDEFGHIJKLMNO"));
    const auto themes = fontQuizCardThemes();
    ASSERT_EQ(deck.themeSequence().size(), 14U);
    for (size_t i = 0; i < deck.themeSequence().size(); ++i)
        EXPECT_EQ(deck.themeSequence()[i], themes[i % themes.size()]) << i;
}

TEST(FontQuizDeck, ShufflesEveryOrderAsOftenAsTheOthers)
{
    // All that the random source can answer for three cards: a number below 3, then one below 2.
    std::map<QString, int> orders;
    for (quint32 first = 0; first < 3; ++first) {
        for (quint32 second = 0; second < 2; ++second) {
            const FontQuizDeck deck(families(3), {},
                                    [=](quint32 bound) { return bound == 3 ? first : second; });
            ++orders[deck.families().join(QString())];
        }
    }
    EXPECT_EQ(orders.size(), 6U);
    const FontQuizDeck shuffled(families(26), {});
    EXPECT_THAT(shuffled.families(), UnorderedElementsAreArray(deckOf(26).families()));
}

TEST(FontQuizDeck, SkippedCardsComeLastAndKeepTheirTheme)
{
    FontQuizDeck deck = deckOf(3);
    const auto themes = deck.themeSequence();
    deck.choose(1);
    EXPECT_TRUE(deck.skip());
    EXPECT_EQ(deck.families(), names("ACB"));
    EXPECT_THAT(deck.themeSequence(), ElementsAre(themes[0], themes[2], themes[1]));
    deck.choose(6);
    EXPECT_FALSE(deck.skip()) << "there is no other one";
    deck.choose(6);
    EXPECT_TRUE(deck.isExhausted());
    EXPECT_FALSE(deck.skip());
    EXPECT_THAT(deck.counts(), ElementsAre(1, 0, 0, 0, 0, 2));
}

TEST(FontQuizDeck, FollowsWhatHappensToItsFamilies)
{
    const struct
    {
        const char *what;
        /// With a category after A and B were sorted.
        const char *styled;
        const char *present;
        const char *expected;
        int index;
        const char *takenBack;
        bool hasLostCurrent;
    } rows[]{
        {"nothing", "AB", "ABCDE", "ABCDE", 2, "", false},
        {"the current one is sorted elsewhere", "ABC", "ABCDE", "ABDE", 2, "", true},
        {"one that waits vanishes", "AB", "ABCD", "ABCD", 2, "", false},
        {"all that wait have gone", "AB", "AB", "AB", 2, "", true},
        {"the last choice is undone", "A", "ABCDE", "ABCDE", 1, "B", false},
        {"an older choice is undone", "B", "ABCDE", "BACDE", 1, "A", false},
        {"both are undone", "", "ABCDE", "BACDE", 0, "AB", false},
        {"undone, but it has vanished", "A", "ACDE", "ACDE", 1, "B", false},
        {"a sorted one vanishes", "AB", "ACDE", "ABCDE", 2, "", false},
    };
    for (const auto &row : rows) {
        FontQuizDeck deck = deckOf(5);
        std::map<QString, FontQuizCardTheme> themes;
        for (int i = 0; i < deck.size(); ++i)
            themes[deck.families()[i]] = deck.themeSequence()[size_t(i)];
        deck.choose(2);
        deck.choose(5);
        QHash<QString, QString> styles;
        for (const QString &name : names(row.styled))
            styles.insert(name, QStringLiteral("mono"));
        const QStringList there = names(row.present);
        const QSet<QString> present(there.begin(), there.end());
        const FontQuizDeck::Difference difference = deck.reconcile(styles, &present);
        EXPECT_EQ(deck.families(), names(row.expected)) << row.what;
        EXPECT_EQ(deck.currentIndex(), row.index) << row.what;
        EXPECT_EQ(difference.hasLostCurrent, row.hasLostCurrent) << row.what;
        QString back;
        for (const auto &choice : difference.takenBack)
            back += choice.familyName;
        EXPECT_EQ(back, QString::fromLatin1(row.takenBack)) << row.what;
        for (int i = 0; i < deck.size(); ++i)
            EXPECT_EQ(deck.themeSequence()[size_t(i)], themes[deck.families()[i]]) << row.what;
        int sorted = 0;
        for (const int count : deck.counts())
            sorted += count;
        EXPECT_EQ(sorted, row.index) << row.what;
    }
}

TEST(FontQuizDeck, WhatHasLeftComesBackWhenItsReasonIsGone)
{
    struct Step
    {
        /// Letters: families in "serif", and all that there are (null: as before).
        const char *styled;
        const char *present;
        const char *expected;
        int index;
    };
    const struct
    {
        const char *what;
        std::vector<Step> steps;
    } rows[]{
        {"sorted elsewhere and undone", {{"AC", nullptr, "ABD", 1}, {"A", nullptr, "ABDC", 1}}},
        {"vanished for a while", {{"A", "ABD", "ABD", 1}, {"A", "ABCD", "ABDC", 1}}},
        {"still away when another is undone",
         {{"A", "ABD", "ABD", 1}, {"AB", nullptr, "AD", 1}, {"A", nullptr, "ADB", 1}}},
        {"undone and redone", {{"", nullptr, "ABCD", 0}, {"A", nullptr, "ABCD", 1}}},
        {"undone and redone while away",
         {{"", "BCD", "BCD", 0}, {"A", "BCD", "BCD", 0}, {"A", "ABCD", "ABCD", 1}}},
    };
    for (const auto &row : rows) {
        FontQuizDeck deck = deckOf(4);
        std::map<QString, FontQuizCardTheme> themes;
        for (int i = 0; i < deck.size(); ++i)
            themes[deck.families()[i]] = deck.themeSequence()[size_t(i)];
        deck.choose(1);
        for (const Step &step : row.steps) {
            QHash<QString, QString> styles;
            for (const QString &name : names(step.styled))
                styles.insert(name, QStringLiteral("serif"));
            const QStringList there = names(step.present ? step.present : "");
            const QSet<QString> present(there.begin(), there.end());
            (void)deck.reconcile(styles, step.present ? &present : nullptr);
            EXPECT_EQ(deck.families(), names(step.expected)) << row.what;
            EXPECT_EQ(deck.currentIndex(), step.index) << row.what;
            EXPECT_EQ(deck.counts()[0], step.index) << row.what;
        }
        EXPECT_EQ(deck.themeSequence().size(), size_t(deck.size()));
        for (qsizetype place = 0; place < deck.families().size(); ++place)
            EXPECT_EQ(deck.themeSequence()[size_t(place)], themes[deck.families()[place]])
                << row.what;
    }
}

TEST(FontQuizDeck, CardColoursCanBeRead)
{
    for (const FontQuizCardTheme &theme : fontQuizCardThemes())
        EXPECT_GE(contrastRatio(theme.foreground, theme.background), 5.5)
            << theme.background.name().toStdString();
}

} // namespace
} // namespace lorva
