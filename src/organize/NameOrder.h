// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#pragma once

#include "base/Folding.h"

#include <QStringList>

#include <algorithm>
#include <tuple>
#include <utility>
#include <vector>

namespace lorva {

/// The order of names in a list that people read: as the user's language sorts, ignoring case;
/// names that are equal so far by their characters. Thread: any.
class NameOrder
{
public:
    bool operator()(QStringView left, QStringView right) const;
    void sort(QStringList &names) const;
    /// By each value's `name`; values of one name keep their order.
    template <class Record>
    void sortByName(std::vector<Record> &records) const;
    /// Puts `added` where they belong among `names`, which are sorted.
    void insert(QStringList &names, QStringList added) const;

private:
    NameCollator m_collator;
};

template <class Record>
void NameOrder::sortByName(std::vector<Record> &records) const
{
    std::vector<std::pair<QByteArray, Record>> keyed;
    keyed.reserve(records.size());
    for (Record &record : records) {
        const QByteArray key = m_collator.sortKey(record.name);
        keyed.emplace_back(key, std::move(record));
    }
    std::stable_sort(keyed.begin(), keyed.end(), [](const auto &left, const auto &right) {
        return std::tie(left.first, left.second.name) < std::tie(right.first, right.second.name);
    });
    std::transform(keyed.begin(), keyed.end(), records.begin(),
                   [](auto &each) { return std::move(each.second); });
}

} // namespace lorva
