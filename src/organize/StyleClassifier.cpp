// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#include "organize/StyleClassifier.h"

#include "organize/NameOrder.h"
#include "organize/StyleWords.h"

#include <QRegularExpression>
#include <QSet>

#include <algorithm>

namespace lorva {

namespace {

bool containsAny(const QString &text, std::span<const QStringView> words)
{
    return std::any_of(words.begin(), words.end(),
                       [&text](QStringView word) { return text.contains(word); });
}

bool isSansLowerCased(const QString &lower)
{
    return containsAny(lower, sansWords()) || containsAny(lower, gothicWords())
        || isKnownSansFamily(lower);
}

bool isScriptName(const QString &lower)
{
    static constexpr QStringView kWords[]{u"script", u"handwriting", u"hand"};
    return containsAny(lower, kWords) || containsAny(lower, brushWords());
}

/// The id of a category; empty for none.
QString categoryByAnyWord(const QString &lower)
{
    if (isSansLowerCased(lower))
        return QStringLiteral("sans");
    if (lower.contains(QLatin1String("serif")) || isMingName(lower))
        return QStringLiteral("serif");
    if (lower.contains(QLatin1String("mono")))
        return QStringLiteral("mono");
    if (isScriptName(lower))
        return QStringLiteral("script");
    return {};
}

QString categoryByEastAsianWord(const QString &lower)
{
    if (containsAny(lower, gothicWords()))
        return QStringLiteral("sans");
    if (isMingName(lower))
        return QStringLiteral("serif");
    if (containsAny(lower, brushWords()))
        return QStringLiteral("script");
    return {};
}

QString categoryOf(const QString &familyName, ClassifierPass pass)
{
    // Unlike QLocale's, this lower case is the same for users of every language.
    const QString lower = familyName.toLower();
    return pass == ClassifierPass::full ? categoryByAnyWord(lower) : categoryByEastAsianWord(lower);
}

QSet<QString> membersOfAny(const std::vector<FontStyleCategoryRecord> &categories)
{
    QSet<QString> names;
    for (const FontStyleCategoryRecord &category : categories)
        names.unite(QSet<QString>(category.familyNames.begin(), category.familyNames.end()));
    return names;
}

} // namespace

bool isSansName(const QString &familyName)
{
    return isSansLowerCased(familyName.toLower());
}

bool isMingName(const QString &lowerCasedName)
{
    // A Hangul or Han letter beside it belongs to the same word.
    static const QRegularExpression batang(QStringLiteral("\\bbatang\\b"),
                                           QRegularExpression::UseUnicodePropertiesOption);
    return containsAny(lowerCasedName, mingWords()) || lowerCasedName.contains(batang);
}

std::vector<FontStyleCategoryRecord> classify(std::span<const FontFamilyRecord> families,
                                              std::vector<FontStyleCategoryRecord> categories,
                                              ClassifierPass pass)
{
    const QSet<QString> placed = membersOfAny(categories);
    for (const FontFamilyRecord &family : families) {
        if (placed.contains(family.familyName))
            continue;
        const QString target = categoryOf(family.familyName, pass);
        const auto category = std::ranges::find(categories, target, &FontStyleCategoryRecord::id);
        if (!target.isEmpty() && category != categories.end())
            category->familyNames.append(family.familyName);
    }
    const NameOrder order;
    for (FontStyleCategoryRecord &category : categories)
        order.sort(category.familyNames);
    return categories;
}

} // namespace lorva
