// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT

#include "model/ReadyCatalog.h"

#include "base/Folding.h"
#include "base/Trace.h"
#include "organize/StyleClassifier.h"

#include <algorithm>

namespace lorva {

namespace {

/// The families in the order that the user's language sorts their names.
FontFamilyList sortedByName(std::vector<FontFamilyRecord> families)
{
    const NameCollator collator;
    std::vector<std::pair<QByteArray, size_t>> keys;
    keys.reserve(families.size());
    for (size_t i = 0; i < families.size(); ++i)
        keys.emplace_back(collator.sortKey(families[i].familyName), i);
    std::stable_sort(keys.begin(), keys.end(),
                     [](const auto &a, const auto &b) { return a.first < b.first; });
    std::vector<FontFamilyRecord> sorted;
    sorted.reserve(families.size());
    for (const auto &[key, index] : keys)
        sorted.push_back(std::move(families[index]));
    return makeFamilyList(std::move(sorted));
}

} // namespace

Catalog readSnapshot(CatalogCache &cache, const FontLibraryService &service)
{
    std::optional<CatalogSnapshot> snapshot = cache.load();
    if (!snapshot)
        return nullptr;
    auto ready = std::make_shared<ReadyCatalog>();
    ready->snapshot = *std::move(snapshot);
    ready->prepared = service.prepareFamilies(ready->snapshot.families);
    return ready;
}

Catalog makeReady(FontCatalogResult result, const CatalogCircumstances &circumstances,
                  const FontLibraryService &service)
{
    const TraceStage stage("catalog: sort and compare");
    const ReadyCatalog &present = *circumstances.present;
    auto ready = std::make_shared<ReadyCatalog>();
    ready->snapshot = {sortedByName(std::move(result.families)), result.manufacturers};
    ready->watchedFontURLs = result.watchedFontURLs;
    ready->isAsBefore = ready->snapshot == present.snapshot;
    ready->prepared = service.prepareFamilies(ready->snapshot.families);
    ready->index = ready->isAsBefore && circumstances.presentIndex
        ? circumstances.presentIndex
        : makeLibraryIndex(ready->snapshot);
    ready->foundries = shownFoundries(*ready->index, circumstances.foundryCorrections);
    ready->activationState = circumstances.activationState;
    ready->activations = activationsOf(ready->snapshot.families, *ready->activationState);
    // A library that could not be found must not count as one that was sorted.
    if (circumstances.unclassified && !ready->snapshot.families->empty()) {
        ready->unclassified = circumstances.unclassified;
        ready->classified = classified(ready->snapshot.families, *ready->unclassified);
    }
    return ready;
}

std::vector<FontStyleCategoryRecord> classified(const FontFamilyList &families,
                                                const LibraryOrganization::Unclassified &from)
{
    const TraceStage stage("catalog: classify");
    return classify(*families, from.categories,
                    from.isCjkOnly ? ClassifierPass::cjkOnly : ClassifierPass::full);
}

} // namespace lorva
