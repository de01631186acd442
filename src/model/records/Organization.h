// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#pragma once

#include "model/records/GroupingRecords.h"

#include <QHash>
#include <QSet>

#include <vector>

namespace lorva {

/// What the user says about foundries against what the fonts say. Entries that name an unknown
/// foundry have no effect, and stay.
struct FoundryCorrections
{
    /// Foundry id by family name; an empty id: of no foundry.
    QHash<QString, QString> overrides;
    /// Name to show, by foundry id.
    QHash<QString, QString> names;
    /// Ids of foundries that the user hid.
    QSet<QString> dismissed;

    bool operator==(const FoundryCorrections &) const = default;
};

/// How the user sorts the library. Members may be families that this machine lacks.
struct Organization
{
    /// Sorted by name as the user's language sorts, ignoring case.
    std::vector<FontCollectionRecord> collections;
    /// The default ones first, in their order.
    std::vector<FontStyleCategoryRecord> styleCategories;
    FoundryCorrections foundries;

    bool operator==(const Organization &) const = default;
};

} // namespace lorva
