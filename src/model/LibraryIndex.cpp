// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT

#include "model/LibraryIndex.h"

#include "base/Trace.h"
#include "organize/Foundries.h"
#include "organize/SearchText.h"

namespace lorva {

namespace {

/// Some makers are known by their families' names alone, so that every family takes part.
QHash<QString, QString> manufacturersOfAll(const CatalogSnapshot &catalog)
{
    QHash<QString, QString> manufacturers = catalog.manufacturers;
    for (const FontFamilyRecord &family : *catalog.families)
        manufacturers.insert(family.familyName, manufacturers.value(family.familyName));
    return manufacturers;
}

} // namespace

std::optional<quint32> LibraryIndex::place(const QString &familyName) const
{
    const auto found = placeByFamily.constFind(familyName);
    return found == placeByFamily.cend() ? std::nullopt : std::optional(*found);
}

std::shared_ptr<const LibraryIndex> makeLibraryIndex(const CatalogSnapshot &catalog)
{
    const TraceStage stage("catalog: foundries and search texts");
    auto index = std::make_shared<LibraryIndex>();
    const std::vector<FontFamilyRecord> &families = *catalog.families;
    index->placeByFamily.reserve(qsizetype(families.size()));
    index->searchBlobByFamily.reserve(families.size());
    for (quint32 place = 0; place < families.size(); ++place) {
        const FontFamilyRecord &family = families[place];
        index->placeByFamily.insert(family.familyName, place);
        index->searchBlobByFamily.push_back(
            searchTextOf(family, catalog.manufacturers.value(family.familyName)));
    }
    index->derivedFoundries =
        deriveFoundries(manufacturersOfAll(catalog), kFewestFamiliesOfFoundry);
    return index;
}

std::shared_ptr<const FamilyActivations> activationsOf(const FontFamilyList &families,
                                                       const ActivationState &state)
{
    const TraceStage stage("catalog: activation");
    auto activations = std::make_shared<FamilyActivations>();
    activations->reserve(families->size());
    for (const FontFamilyRecord &family : *families)
        activations->push_back(state.activation(family));
    return activations;
}

} // namespace lorva
