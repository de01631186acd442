// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#include "organize/NameOrder.h"

namespace lorva {

bool NameOrder::operator()(QStringView left, QStringView right) const
{
    const int order = m_collator.compare(left, right);
    return order != 0 ? order < 0 : left < right;
}

void NameOrder::sort(QStringList &names) const
{
    std::vector<std::pair<QByteArray, QString>> keyed;
    keyed.reserve(size_t(names.size()));
    for (const QString &name : std::as_const(names))
        keyed.emplace_back(m_collator.sortKey(name), name);
    std::sort(keyed.begin(), keyed.end());
    std::transform(keyed.begin(), keyed.end(), names.begin(),
                   [](auto &each) { return std::move(each.second); });
}

void NameOrder::insert(QStringList &names, QStringList added) const
{
    sort(added);
    QStringList all;
    all.reserve(names.size() + added.size());
    auto from = names.cbegin();
    for (const QString &name : std::as_const(added)) {
        const auto to = std::upper_bound(from, names.cend(), name, *this);
        std::copy(from, to, std::back_inserter(all));
        all.append(name);
        from = to;
    }
    std::copy(from, names.cend(), std::back_inserter(all));
    names = std::move(all);
}

} // namespace lorva
