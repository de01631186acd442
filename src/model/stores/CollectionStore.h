// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#pragma once

#include "model/records/GroupingRecords.h"
#include "model/stores/StoredState.h"

#include <optional>
#include <vector>

namespace lorva {

class PreferenceStore;

/// Keeps the user's collections, as one JSON array.
///
/// Holds a reference to the preference store, which outlives it, and no cache. Thread: main.
class CollectionStore
{
public:
    explicit CollectionStore(PreferenceStore &defaults,
                             QString collectionsKey = QStringLiteral("vantrel.merid.collections"));

    /// Sorted by name as the user's language sorts, ignoring case, and all with a name that shows;
    /// none when what is stored does not decode.
    std::vector<FontCollectionRecord> load() const;
    /// As load(), but nothing when nothing is stored or that does not decode.
    std::optional<std::vector<FontCollectionRecord>> stored() const;
    /// Replaces all. What does not decode is kept first (PreferenceStore::keepUnreadable()).
    void save(const std::vector<FontCollectionRecord> &collections,
              StoredState present = StoredState::unknown);

private:
    PreferenceStore &m_defaults;
    const QString m_collectionsKey;
};

/// The order in which collections are loaded and shown. Thread: any.
void sortByName(std::vector<FontCollectionRecord> &collections);

} // namespace lorva
