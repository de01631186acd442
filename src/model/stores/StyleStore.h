// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#pragma once

#include "model/records/GroupingRecords.h"
#include "model/stores/StoredState.h"

#include <optional>
#include <vector>

namespace lorva {

class PreferenceStore;

/// Keeps the style categories, as one JSON array, and whether families were once sorted into them
/// by their names.
///
/// Holds a reference to the preference store, which outlives it, and no cache. Thread: main.
class StyleStore
{
public:
    explicit StyleStore(
        PreferenceStore &defaults, QString stylesKey = QStringLiteral("vantrel.merid.styles"),
        QString classifiedKey = QStringLiteral("vantrel.merid.stylesClassified.v3"),
        QString legacyClassifiedV2Key = QStringLiteral("vantrel.merid.stylesClassified.v2"));

    /// The default categories in their order, with what is stored of them, then the user's own in
    /// the stored order, and all with a name that shows. What earlier versions stored is brought up
    /// to date, and written. The defaults, and nothing is written, when nothing is stored or that
    /// does not decode.
    std::vector<FontStyleCategoryRecord> load();
    /// As load(), but nothing when nothing is stored or that does not decode.
    std::optional<std::vector<FontStyleCategoryRecord>> stored();
    /// Replaces all. What does not decode is kept first (PreferenceStore::keepUnreadable()).
    void save(const std::vector<FontStyleCategoryRecord> &categories,
              StoredState present = StoredState::unknown);

    /// Families have been sorted by their names; it is done once.
    bool isClassified() const;
    void setClassified();
    /// An earlier version has sorted them, knowing Latin names only.
    bool wasClassifiedByV2() const;

private:
    PreferenceStore &m_defaults;
    const QString m_stylesKey;
    const QString m_classifiedKey;
    const QString m_legacyClassifiedV2Key;
};

} // namespace lorva
