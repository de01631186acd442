// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#pragma once

#include "model/records/RecordsJson.h"
#include "model/stores/StoredValue.h"

namespace lorva {

/// Groupings of one id become one, in the place and with the name of the first, and every family is
/// a member once: what follows relies on both, and other programs may have written otherwise.
template <class Grouping>
std::vector<Grouping> joinedByID(std::vector<Grouping> groupings)
{
    std::vector<Grouping> out;
    out.reserve(groupings.size());
    QHash<QString, size_t> placeByID;
    for (Grouping &each : groupings) {
        const auto known = placeByID.constFind(each.id);
        if (known != placeByID.cend()) {
            out[*known].familyNames += each.familyNames;
            continue;
        }
        placeByID.insert(each.id, out.size());
        out.push_back(std::move(each));
    }
    for (Grouping &each : out) {
        each.familyNames.removeAll(QString());
        each.familyNames.removeDuplicates();
    }
    return out;
}

/// The collections or style categories under `key`, in the stored order; nothing when they are
/// absent or unreadable.
template <class Grouping>
std::optional<std::vector<Grouping>> storedGroupings(const PreferenceStore &defaults,
                                                     const QString &key)
{
    auto stored = storedJson<std::vector<Grouping>>(defaults, key);
    if (!stored)
        return std::nullopt;
    return joinedByID(*std::move(stored));
}

} // namespace lorva
