// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#pragma once

#include "model/records/RecordsJson.h"
#include "model/stores/OrganizationChanges.h"
#include "model/stores/StoredValue.h"
#include "model/stores/TakenNames.h"

#include <QCoreApplication>

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

/// Names become such as a person could have typed: what is shown can be exported and imported.
template <class Grouping>
void makeNamesUsable(std::vector<Grouping> &groupings)
{
    TakenNames taken;
    for (Grouping &each : groupings) {
        each.name = cleanedName(each.name);
        taken.insert(each.name);
    }
    for (Grouping &each : groupings) {
        if (!each.name.isEmpty())
            continue;
        each.name = taken.freeName(QCoreApplication::translate("StoredGroupings", "Untitled"));
        taken.insert(each.name);
    }
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
