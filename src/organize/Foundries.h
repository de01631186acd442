// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#pragma once

#include "model/records/Organization.h"

#include <QHash>

#include <vector>

namespace lorva {

inline constexpr int kFewestFamiliesOfFoundry = 2;

/// The foundries with at least `minimumFamilies` families, sorted by name as the user's language
/// sorts, ignoring case; a foundry's families are sorted likewise. The same input gives the same
/// answer in every process. Thread: any.
std::vector<FoundryCollectionRecord> deriveFoundries(
    const QHash<QString, QString> &manufacturersByFamily, int minimumFamilies);

/// Foundries as the user wants them.
struct CorrectedFoundries
{
    /// Sorted by the names shown.
    std::vector<FoundryCollectionRecord> shown;
    /// Those that the user hid, likewise.
    std::vector<FoundryCollectionRecord> dismissed;

    bool operator==(const CorrectedFoundries &) const = default;
};

/// Moves families, renames and hides. A family may be moved that no foundry had before, but only to
/// a foundry of `derived`; one that its last family leaves goes. Thread: any.
CorrectedFoundries correctedFoundries(std::vector<FoundryCollectionRecord> derived,
                                      const FoundryCorrections &corrections);

} // namespace lorva
