// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#include "organize/Foundries.h"
#include "organize/FoundryNames.h"

#include <QSet>

#include <gtest/gtest.h>

#include <algorithm>
#include <random>

namespace lorva {

namespace {

using namespace Qt::StringLiterals;

using Manufacturers = QHash<QString, QString>;

struct TextCase
{
    QString text;
    QString expected;
};

TEST(FoundryNames, CleansWhatManufacturersWrite)
{
    const TextCase cases[]{
        {u"Klim Type Foundry"_s, u"Klim"_s},
        {u"Acme Fonts Ltd."_s, u"Acme"_s},
        {u"Foundry"_s, u"Foundry"_s},
        {u"Foo™ Inc."_s, u"Foo"_s},
        {u"Foo Type Foundry, Inc."_s, u"Foo"_s},
        {u" \n©®™ \t"_s, QString()},
        {u"Foo ™  ®   Bar"_s, u"Foo Bar"_s},
        {u"Foo\tBar\nInc"_s, u"Foo\tBar\nInc"_s},
        // A full stop or comma goes only with the suffix that it stood before, and one at a time.
        {u"Foo."_s, u"Foo."_s},
        {u"Foo, Ltd"_s, u"Foo"_s},
        {u"Foo,, Ltd"_s, u"Foo,"_s},
        {u"Foo., Ltd."_s, u"Foo."_s},
        {u"Foo Co., Ltd."_s, u"Foo"_s},
        {u"Foo Sdn. Bhd. Malaysia"_s, u"Foo"_s},
        {u"Foo inc."_s, u"Foo inc."_s},
        {u"FooFonts"_s, u"FooFonts"_s},
        {u"株式会社モリサワ"_s, u"モリサワ"_s},
        {u"フォントワークス株式会社"_s, u"フォントワークス"_s},
        {u"(주)산돌커뮤니케이션"_s, u"산돌커뮤니케이션"_s},
        {u"㈱ 写研 ㈱"_s, u"写研"_s},
        {u"方正字库有限公司"_s, u"方正"_s},
        {u"株式会社"_s, u"株式会社"_s},
        {u"株式会社 有限会社"_s, u"有限会社"_s},
        // The longer form goes whole.
        {u"汉仪股份有限公司"_s, u"汉仪"_s},
        // Latin endings go first, so one before an East Asian form stays.
        {u"Foo Inc. 株式会社"_s, u"Foo Inc."_s},
        // What installed fonts say.
        {u"Ascender Corporation"_s, u"Ascender"_s},
        {u"Carrois Corporate, Edenspiekermann AG, Nikita Prokopov"_s,
         u"Carrois Corporate, Edenspiekermann AG, Nikita Prokopov"_s},
        {u"DejaVu fonts team"_s, u"DejaVu fonts team"_s},
        {u"Google LLC"_s, u"Google"_s},
        {u"Monotype Imaging Inc."_s, u"Monotype Imaging"_s},
        {u"NAVER Coporation"_s, u"NAVER Coporation"_s},
        {u"NAVER Corporation"_s, u"NAVER"_s},
        {u"The Fontpad Ltd"_s, u"The Fontpad"_s},
    };
    for (const TextCase &each : cases)
        EXPECT_EQ(cleanFoundryName(each.text), each.expected) << each.text.toStdString();
}

TEST(FoundryNames, CleansTextsMadeToTakeForever)
{
    constexpr int kMany = 1 << 16;
    const TextCase cases[]{
        {QString(kMany, u' '), QString()},
        {u'a' + QString(kMany, u' ') + u'b', u"a b"_s},
        {QString(u"Inc, "_s.repeated(kMany) + u"Inc"), u"Inc"_s},
        {u"株式会社 "_s.repeated(kMany), u"株式会社"_s},
        {QString(kMany, u'®') + u'a', u"a"_s},
        {QString(kMany, u','), QString(kMany, u',')},
    };
    for (const TextCase &each : cases)
        EXPECT_TRUE(cleanFoundryName(each.text) == each.expected)
            << each.text.left(8).toStdString();
}

TEST(FoundryNames, KnowsMakersByPrefixAndAlias)
{
    struct
    {
        QString family;
        QString manufacturer;
        QString expected;
    } const cases[]{
        {u"PP Neue Machina"_s, u"Somebody"_s, u"Pangram Pangram"_s},
        {u"FK Grotesk"_s, QString(), u"Florian Karsten"_s},
        {u"pp Neue"_s, u"Somebody"_s, u"Somebody"_s},
        {u"PPFraktion"_s, QString(), QString()},
        {u"A"_s, u"株式会社モリサワ"_s, u"Morisawa"_s},
        {u"A"_s, u"(주)산돌커뮤니케이션"_s, u"Sandoll"_s},
        {u"A"_s, u"Sandoll Communications Inc."_s, u"Sandoll"_s},
        {u"A"_s, u"北京方正电子有限公司"_s, u"FounderType"_s},
        {u"A"_s, u"Off®"_s, u"Off Type"_s},
        {u"A"_s, u"off"_s, u"off"_s},
    };
    for (const auto &each : cases)
        EXPECT_EQ(foundryNameOf(each.family, each.manufacturer), each.expected);
}

TEST(FoundryNames, FormsIDs)
{
    const TextCase cases[]{
        {u"Off Type"_s, u"off-type"_s},
        {u"--A.-&.B 12!"_s, u"a-b-12"_s},
        {u"ΣΊΣΥΦΟΣ"_s, u"σίσυφοσ"_s},
        {u"Émigré"_s, u"émigré"_s},
        {u"E\u0301migre\u0301"_s, u"émigré"_s},
        {u"フォントワークス"_s, u"フォントワークス"_s},
        {u"कीर्ति"_s, u"कीर्ति"_s},
        {u"\U00020BB7野"_s, u"\U00020BB7野"_s},
        // The hashes are stored: they must never change.
        {u"&"_s, u"7c4d33785daa5c23"_s},
        {u"…"_s, u"df316e17de9c3685"_s},
    };
    for (const TextCase &each : cases)
        EXPECT_EQ(foundryID(each.text), each.expected) << each.text.toStdString();
}

/// "Name [id]: family, family" by foundry.
QStringList written(const std::vector<FoundryCollectionRecord> &foundries)
{
    QStringList lines;
    for (const FoundryCollectionRecord &each : foundries) {
        lines.append(
            QString(each.name + u" ["_s + each.id + u"]: "_s + each.familyNames.join(u", "_s)));
    }
    return lines;
}

/// Families "A1", "A2", … by each maker, in that order.
Manufacturers byMakers(const QStringList &makers)
{
    Manufacturers made;
    for (const QString &maker : makers)
        made.insert(u"A%1"_s.arg(made.size() + 1), maker);
    return made;
}

TEST(Foundries, MergesNamesOfOneStem)
{
    struct
    {
        const char *shows;
        QStringList makers;
        QStringList expected;
    } const cases[]{
        {"a prefix of characters, not of words",
         {u"Sandoll Type"_s, u"Sandollar"_s, u"산돌"_s},
         {u"Sandoll [sandoll]: A1, A2, A3"_s}},
        {"whatever the case",
         {u"LUCAS"_s, u"Lucas Fonts"_s, u"LucasFonts"_s},
         {u"LUCAS [lucas]: A1, A2, A3"_s}},
        {"of equally long ones that of more families",
         {u"ACME"_s, u"Acme"_s, u"Acme"_s},
         {u"Acme [acme]: A1, A2, A3"_s}},
        {"families of longer names do not count for that",
         {u"Acme"_s, u"ACME"_s, u"Acme X"_s, u"Acme X"_s},
         {u"ACME [acme]: A1, A2, A3, A4"_s}},
        {"two that only a third one joins",
         {u"Ab Cd"_s, u"Ab Ef"_s, u"Ab"_s},
         {u"Ab [ab]: A1, A2, A3"_s}},
        {"and without the third one not",
         {u"Ab Cd"_s, u"Ab Cd"_s, u"Ab Ef"_s, u"Ab Ef"_s},
         {u"Ab Cd [ab-cd]: A1, A2"_s, u"Ab Ef [ab-ef]: A3, A4"_s}},
        {"composed and decomposed letters",
         {u"E\u0301migre"_s, u"Émigre"_s},
         {u"Émigre [émigre]: A1, A2"_s}},
        {"another first character that only begins with the same one",
         {u"I"_s, u"I"_s, u"İstanbul"_s, u"İstanbul"_s},
         {u"I [i]: A1, A2"_s, u"İstanbul [İstanbul]: A3, A4"_s}},
        {"nothing but punctuation between them",
         {u"Foo-Bar"_s, u"Foo Bar"_s, u"Foo Bar Baz"_s},
         {u"Foo Bar [foo-bar]: A1, A2, A3"_s}},
        {"few families, and none",
         {u"One"_s, u"™"_s, QString(), u"Two"_s, u"Two"_s},
         {u"Two [two]: A4, A5"_s}},
        {"sorted as people sort",
         {u"zeta"_s, u"Éclair"_s, u"eclair"_s, u"zeta"_s, u"Éclair"_s, u"eclair"_s},
         {u"eclair [eclair]: A3, A6"_s, u"Éclair [éclair]: A2, A5"_s, u"zeta [zeta]: A1, A4"_s}},
    };
    for (const auto &each : cases) {
        EXPECT_EQ(written(deriveFoundries(byMakers(each.makers), kFewestFamiliesOfFoundry)),
                  each.expected)
            << each.shows;
    }
}

/// The rule as it reads: any two names of which one begins with the other, until nothing changes.
std::vector<QStringList> mergedPairwise(const Manufacturers &makers)
{
    std::vector<std::pair<QStringList, QStringList>> groups;
    for (auto each = makers.cbegin(); each != makers.cend(); ++each)
        groups.push_back({{each.value().toLower()}, {each.key()}});
    const auto isOne = [](const QStringList &left, const QStringList &right) {
        return std::any_of(left.begin(), left.end(), [&right](const QString &l) {
            return std::any_of(right.begin(), right.end(), [&l](const QString &r) {
                return l.startsWith(r) || r.startsWith(l);
            });
        });
    };
    for (size_t i = 0; i < groups.size(); ++i) {
        for (size_t j = i + 1; j < groups.size(); ++j) {
            if (!isOne(groups[i].first, groups[j].first))
                continue;
            groups[i].first += groups[j].first;
            groups[i].second += groups[j].second;
            groups.erase(groups.begin() + qptrdiff(j));
            j = i;
        }
    }
    std::vector<QStringList> families;
    for (auto &group : groups) {
        group.second.sort();
        families.push_back(group.second);
    }
    std::sort(families.begin(), families.end());
    return families;
}

std::vector<QStringList> familiesOf(const std::vector<FoundryCollectionRecord> &foundries)
{
    std::vector<QStringList> families;
    for (FoundryCollectionRecord each : foundries) {
        each.familyNames.sort();
        families.push_back(each.familyNames);
    }
    std::sort(families.begin(), families.end());
    return families;
}

QString randomMaker(std::mt19937 &random)
{
    static const QString letters = u"aAbBé모"_s;
    QString name;
    const auto length = 1 + random() % 4;
    for (unsigned i = 0; i < length; ++i)
        name += letters[int(random() % unsigned(letters.size()))];
    return name;
}

TEST(Foundries, GivesThePairwiseRuleInAnyOrderOfTheHash)
{
    std::mt19937 random(20260); // NOLINT(cert-msc32-c,cert-msc51-cpp): the same every time
    for (int round = 0; round < 50; ++round) {
        QStringList makers;
        for (int i = 0; i < 20; ++i)
            makers.append(randomMaker(random));
        const Manufacturers first = byMakers(makers);
        const std::vector<FoundryCollectionRecord> foundries = deriveFoundries(first, 1);
        ASSERT_EQ(familiesOf(foundries), mergedPairwise(first)) << makers.join(u' ').toStdString();

        QHashSeed::setDeterministicGlobalSeed();
        Manufacturers second = byMakers(makers);
        second.reserve(1000);
        EXPECT_EQ(deriveFoundries(second, 1), foundries);
        QHashSeed::resetRandomGlobalSeed();
    }
}

std::vector<FoundryCollectionRecord> threeFoundries()
{
    return {
        {u"adobe"_s, u"Adobe"_s, {u"B"_s, u"D"_s}},
        {u"klim"_s, u"Klim"_s, {u"C"_s, u"E"_s}},
        {u"zeta"_s, u"Zeta"_s, {u"F"_s, u"G"_s}},
    };
}

TEST(Foundries, AppliesCorrections)
{
    const QString adobe = u"Adobe [adobe]: B, D"_s;
    const QString klim = u"Klim [klim]: C, E"_s;
    const QString zeta = u"Zeta [zeta]: F, G"_s;
    const QString klimID = u"klim"_s;
    struct
    {
        const char *shows;
        FoundryCorrections corrections;
        QStringList shown;
        QStringList dismissed;
    } const cases[]{
        {"no corrections", {}, {adobe, klim, zeta}, {}},
        {"a family moves, and one that had no foundry; both to their places",
         {{{u"D"_s, klimID}, {u"a"_s, klimID}}, {}, {}},
         {u"Adobe [adobe]: B"_s, u"Klim [klim]: a, C, D, E"_s, zeta},
         {}},
        {"to where it is already", {{{u"E"_s, klimID}}, {}, {}}, {adobe, klim, zeta}, {}},
        {"to no foundry",
         {{{u"E"_s, QString()}, {u"X"_s, QString()}}, {}, {}},
         {adobe, u"Klim [klim]: C"_s, zeta},
         {}},
        {"unknown foundries have no effect",
         {{{u"D"_s, u"gone"_s}}, {{u"gone"_s, u"X"_s}}, {u"gone"_s}},
         {adobe, klim, zeta},
         {}},
        {"the last families leave; one comes to the foundry that all others left",
         {{{u"B"_s, klimID},
           {u"D"_s, klimID},
           {u"F"_s, QString()},
           {u"G"_s, QString()},
           {u"C"_s, u"zeta"_s}},
          {},
          {}},
         {u"Klim [klim]: B, D, E"_s, u"Zeta [zeta]: C"_s},
         {}},
        {"names move foundries, may be equal, and are not blank",
         {{}, {{u"adobe"_s, u"zeta"_s}, {klimID, u" "_s}, {u"zeta"_s, u"zeta"_s}}, {}},
         {klim, u"zeta [adobe]: B, D"_s, u"zeta [zeta]: F, G"_s},
         {}},
        {"hidden ones apart, sorted by their new names, with what moved there",
         {{{u"C"_s, u"adobe"_s}}, {{u"adobe"_s, u"zz"_s}}, {u"adobe"_s, u"zeta"_s}},
         {u"Klim [klim]: E"_s},
         {zeta, u"zz [adobe]: B, C, D"_s}},
    };
    for (const auto &each : cases) {
        const CorrectedFoundries corrected = correctedFoundries(threeFoundries(), each.corrections);
        EXPECT_EQ(written(corrected.shown), each.shown) << each.shows;
        EXPECT_EQ(written(corrected.dismissed), each.dismissed) << each.shows;
    }
}

} // namespace

} // namespace lorva
