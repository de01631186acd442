// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#pragma once

#include "catalog/CatalogCache.h"
#include "install/ActivationProvider.h"
#include "model/records/GroupingRecords.h"

#include <QHash>

#include <memory>
#include <optional>
#include <vector>

namespace lorva {

/// What the model asks of a catalog again and again, worked out once, on a worker. Immutable.
struct LibraryIndex
{
    /// Where each family stands in the catalog.
    QHash<QString, quint32> placeByFamily;
    /// What each family is found by (searchTextOf()), in catalog order.
    std::vector<QString> searchBlobByFamily;
    /// As the fonts say, before the user's corrections.
    std::vector<FoundryCollectionRecord> derivedFoundries;

    std::optional<quint32> place(const QString &familyName) const;
};

/// Thread: any; it takes its time.
std::shared_ptr<const LibraryIndex> makeLibraryIndex(const CatalogSnapshot &catalog);

/// The activation of each family, in the list's order.
using FamilyActivations = std::vector<std::optional<FontFamilyActivation>>;

/// Thread: any; it takes its time.
std::shared_ptr<const FamilyActivations> activationsOf(const FontFamilyList &families,
                                                       const ActivationState &state);

} // namespace lorva
