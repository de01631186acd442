// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT

#include "model/LibraryCounts.h"

#include "model/LibraryOrganization.h"

#include <algorithm>

namespace lorva {

namespace {

int countPresent(const QStringList &names, const LibraryIndex &index)
{
    return int(std::count_if(names.begin(), names.end(), [&](const QString &name) {
        return index.placeByFamily.contains(name);
    }));
}

void countActivity(SidebarCounts &counts, const FamilyActivations &activations)
{
    int active = 0;
    int inactive = 0;
    for (const std::optional<FontFamilyActivation> &state : activations) {
        active += state && state->isActive();
        inactive += state && !state->isActive();
    }
    counts.active = active;
    counts.inactive = inactive;
}

SidebarCounts counted(const LibraryView &library)
{
    SidebarCounts counts;
    counts.all = int(library.families->size());
    if (library.activations)
        countActivity(counts, *library.activations);
    if (!library.index)
        return counts;
    const Organization &organization = library.organization.organization();
    for (const FontStyleCategoryRecord &category : organization.styleCategories)
        counts.styles.insert(category.id, countPresent(category.familyNames, *library.index));
    for (const FontCollectionRecord &collection : organization.collections)
        counts.collections.insert(collection.id,
                                  countPresent(collection.familyNames, *library.index));
    // Foundries are made from the catalog, so that all their families are there.
    for (const FoundryCollectionRecord &foundry : library.organization.foundryCollections())
        counts.foundries.insert(foundry.id, int(foundry.familyNames.size()));
    return counts;
}

} // namespace

const SidebarCounts &LibraryCounts::answer(const Stamp &stamp, const LibraryView &library)
{
    if (m_stamp != stamp) {
        m_counts = counted(library);
        m_stamp = stamp;
    }
    return m_counts;
}

} // namespace lorva
