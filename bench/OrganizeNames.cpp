// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#include "bench/OrganizeNames.h"

#include <random>
#include <span>

namespace lorva::bench {

namespace {

constexpr int kMakers = 1500;

constexpr QStringView kSyllables[]{u"ba",  u"cor", u"den", u"fa",  u"gre", u"hel", u"kor", u"lu",
                                   u"mon", u"ni",  u"ra",  u"sta", u"tur", u"vel", u"wen", u"zi"};
constexpr QStringView kAccented[]{u"é", u"ö", u"ñ", u"ź", u"å", u"ő", u"ç"};
constexpr QStringView kDesigns[]{u"",      u" Sans",    u" Serif",   u" Grotesk", u" Mono",
                                 u" Slab", u" Display", u" Text",    u" Script",  u" Rounded",
                                 u" Neue", u" Pro",     u" Antiqua", u" Gothic",  u" Handwriting"};
constexpr QStringView kEastAsian[]{u"見出し", u"ゴシック", u"明朝体", u"ひらがな", u"나눔",
                                   u"고딕",   u"명조",     u"思源",   u"黑体",     u"宋體"};
constexpr QStringView kForms[]{u"",      u" Type",           u" Type Foundry", u" Fonts Ltd.",
                               u" Inc.", u" Typefaces GmbH", u"™ Foundry, LLC"};

class Names
{
public:
    QStringView anyOf(std::span<const QStringView> words)
    {
        return words[number(unsigned(words.size()))];
    }
    unsigned number(unsigned below) { return unsigned(m_random()) % below; }
    QString word(unsigned syllables)
    {
        QString text;
        for (unsigned i = 0; i < syllables; ++i)
            text += anyOf(kSyllables);
        text[0] = text[0].toUpper();
        return text;
    }
    QString family()
    {
        QString name = word(2 + number(3));
        if (number(10) == 0)
            name += anyOf(kAccented) + word(1).toLower();
        return name + anyOf(kDesigns);
    }
    QString eastAsian() { return anyOf(kEastAsian) + anyOf(kEastAsian).toString(); }
    QString maker()
    {
        if (number(10) == 0)
            return u"株式会社" + eastAsian();
        return word(3) + (number(8) == 0 ? anyOf(kAccented) : QStringView());
    }

private:
    // NOLINTNEXTLINE(cert-msc32-c,cert-msc51-cpp): the same names each time
    std::mt19937 m_random{42};
};

} // namespace

NamedLibrary makeNamedLibrary(int families)
{
    Names names;
    QStringList makers;
    for (int i = 0; i < kMakers; ++i)
        makers.append(names.maker());
    NamedLibrary library;
    for (int i = 0; i < families; ++i) {
        FontFamilyRecord family;
        const bool isEastAsian = names.number(20) == 0;
        const QString name = isEastAsian ? names.eastAsian() : names.family();
        // Two families never bear one name.
        family.familyName = name + u' ' + QString::number(i);
        if (isEastAsian)
            family.alternateNames = QStringList{names.family()};
        library.manufacturers.insert(family.familyName,
                                     makers[names.number(kMakers)] + names.anyOf(kForms));
        library.families.push_back(std::move(family));
    }
    return library;
}

} // namespace lorva::bench
