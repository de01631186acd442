// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#pragma once

#include "catalog/CatalogCache.h"
#include "catalog/FontLibraryService.h"
#include "model/LibraryIndex.h"
#include "model/LibraryOrganization.h"

#include <QSet>

#include <memory>
#include <optional>

namespace lorva {

/// A catalog as the model shows it, made ready on a worker. Immutable.
struct ReadyCatalog
{
    /// Sorted by name.
    CatalogSnapshot snapshot;
    /// Nothing until a scan has looked: a snapshot does not say.
    std::optional<QSet<FilePath>> watchedFontURLs;
    PreparedFamilies prepared;
    /// Holds what the catalog before it held.
    bool isAsBefore = false;
    /// Null while they are being worked out.
    std::shared_ptr<const LibraryIndex> index;
    ShownFoundries foundries;
    std::shared_ptr<const FamilyActivations> activations;
    /// What the activations were worked out from.
    std::shared_ptr<const ActivationState> activationState;
    /// What the style categories were, and what they become by the families' names.
    std::optional<LibraryOrganization::Unclassified> unclassified;
    std::vector<FontStyleCategoryRecord> classified;
};

using Catalog = std::shared_ptr<const ReadyCatalog>;

/// What making a catalog ready needs besides the scan's result.
struct CatalogCircumstances
{
    /// The one shown until now; never null.
    Catalog present;
    /// Its index, if that is known.
    std::shared_ptr<const LibraryIndex> presentIndex;
    std::shared_ptr<const ActivationState> activationState;
    FoundryCorrections foundryCorrections;
    std::optional<LibraryOrganization::Unclassified> unclassified;
};

// Thread: worker. `service` is only asked what any thread may ask.

/// The catalog of the snapshot file, without what takes long; null when there is none.
Catalog readSnapshot(CatalogCache &cache, const FontLibraryService &service);
/// The scan's result: sorted, indexed, classified.
Catalog makeReady(FontCatalogResult result, const CatalogCircumstances &circumstances,
                  const FontLibraryService &service);

/// The style categories with the families sorted into them by their names.
std::vector<FontStyleCategoryRecord> classified(const FontFamilyList &families,
                                                const LibraryOrganization::Unclassified &from);

} // namespace lorva
