// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#include "model/stores/CollectionStore.h"

#include "base/Folding.h"
#include "model/stores/StoredGroupings.h"

#include <algorithm>
#include <tuple>

namespace lorva {

CollectionStore::CollectionStore(PreferenceStore &defaults, QString collectionsKey)
    : m_defaults(defaults)
    , m_collectionsKey(std::move(collectionsKey))
{
}

std::vector<FontCollectionRecord> CollectionStore::load() const
{
    return stored().value_or(std::vector<FontCollectionRecord>());
}

std::optional<std::vector<FontCollectionRecord>> CollectionStore::stored() const
{
    auto collections = storedGroupings<FontCollectionRecord>(m_defaults, m_collectionsKey);
    if (collections) {
        makeNamesUsable(*collections);
        sortByName(*collections);
    }
    return collections;
}

void CollectionStore::save(const std::vector<FontCollectionRecord> &collections,
                           StoredState present)
{
    m_defaults.inTransaction([&defaults = m_defaults, key = m_collectionsKey, collections,
                              present] { storeJson(defaults, key, collections, present); });
}

void sortByName(std::vector<FontCollectionRecord> &collections)
{
    const NameCollator collator;
    std::vector<std::pair<QByteArray, FontCollectionRecord>> keyed;
    keyed.reserve(collections.size());
    for (FontCollectionRecord &each : collections) {
        QByteArray key = collator.sortKey(each.name);
        keyed.emplace_back(std::move(key), std::move(each));
    }
    std::sort(keyed.begin(), keyed.end(), [](const auto &left, const auto &right) {
        return std::tie(left.first, left.second.name, left.second.id)
            < std::tie(right.first, right.second.name, right.second.id);
    });
    std::transform(keyed.begin(), keyed.end(), collections.begin(),
                   [](auto &entry) { return std::move(entry.second); });
}

} // namespace lorva
