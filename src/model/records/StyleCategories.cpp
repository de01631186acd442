// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#include "model/records/StyleCategories.h"

#include "base/Folding.h"

#include <algorithm>

namespace lorva {

namespace {

/// Beyond this many new names, sorting all of them by their keys is quicker than looking up each
/// one's place.
constexpr qsizetype kFewNames = 64;

class NameOrder
{
public:
    bool operator()(const QString &left, const QString &right) const
    {
        const int order = m_collator.compare(left, right);
        return order != 0 ? order < 0 : left < right;
    }
    QByteArray key(const QString &name) const { return m_collator.sortKey(name); }

private:
    const NameCollator m_collator;
};

void sortByKeys(QStringList &names, const NameOrder &order)
{
    std::vector<std::pair<QByteArray, QString>> keyed;
    keyed.reserve(size_t(names.size()));
    for (const QString &name : std::as_const(names))
        keyed.emplace_back(order.key(name), name);
    std::sort(keyed.begin(), keyed.end());
    std::transform(keyed.begin(), keyed.end(), names.begin(),
                   [](auto &entry) { return std::move(entry.second); });
}

} // namespace

std::vector<FontStyleCategoryRecord> defaultStyleCategories()
{
    return {{QStringLiteral("serif"), QStringLiteral("Serif"), {}},
            {QStringLiteral("sans"), QStringLiteral("Sans-Serif"), {}},
            {QStringLiteral("display"), QStringLiteral("Display"), {}},
            {QStringLiteral("mono"), QStringLiteral("Mono"), {}},
            {QStringLiteral("script"), QStringLiteral("Script"), {}},
            {QStringLiteral("decorative"), QStringLiteral("Decorative"), {}}};
}

bool isDefaultStyleCategory(const QString &id)
{
    static const std::vector<FontStyleCategoryRecord> defaults = defaultStyleCategories();
    return std::any_of(defaults.begin(), defaults.end(),
                       [&](const FontStyleCategoryRecord &each) { return each.id == id; });
}

bool areFamilyNamesSorted(const QStringList &names)
{
    return std::is_sorted(names.cbegin(), names.cend(), NameOrder());
}

void sortFamilyNames(QStringList &names)
{
    if (!areFamilyNamesSorted(names))
        sortByKeys(names, NameOrder());
}

void insertFamilyNames(QStringList &sorted, const QStringList &names)
{
    if (names.isEmpty())
        return;
    const NameOrder order;
    if (names.size() > kFewNames || !std::is_sorted(sorted.cbegin(), sorted.cend(), order)) {
        sorted.append(names);
        sortByKeys(sorted, order);
        return;
    }
    for (const QString &name : names)
        sorted.insert(std::upper_bound(sorted.cbegin(), sorted.cend(), name, order), name);
}

} // namespace lorva
