// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT

#include "model/VisibleFamilies.h"

#include "model/LibraryOrganization.h"
#include "organize/SearchText.h"

#include <algorithm>

namespace lorva {

namespace {

using Places = FontFamilySubset::Places;
using Kind = BrowserSource::Kind;

Places placesOfNames(const QStringList &names, const LibraryView &library)
{
    Places places;
    if (library.index) {
        for (const QString &name : names) {
            if (const std::optional<quint32> place = library.index->place(name))
                places.push_back(*place);
        }
    } else {
        const QSet<QString> wanted(names.begin(), names.end());
        for (quint32 place = 0; place < library.families->size(); ++place) {
            if (wanted.contains((*library.families)[place].familyName))
                places.push_back(place);
        }
    }
    std::ranges::sort(places);
    places.erase(std::unique(places.begin(), places.end()), places.end());
    return places;
}

Places placesOfActivity(bool wantsActive, const LibraryView &library)
{
    Places places;
    if (!library.activations)
        return places;
    for (quint32 place = 0; place < library.activations->size(); ++place) {
        const std::optional<FontFamilyActivation> &state = (*library.activations)[place];
        if (state && state->isActive() == wantsActive)
            places.push_back(place);
    }
    return places;
}

const QStringList *membersOf(const BrowserSource &source, const LibraryOrganization &organization)
{
    switch (source.kind()) {
    case Kind::style:
        return organization.styleMembers(source.id());
    case Kind::collection:
        return organization.collectionMembers(source.id());
    case Kind::foundry:
        return organization.foundryMembers(source.id());
    default:
        return nullptr;
    }
}

FontFamilySubset familiesOf(const BrowserSource &source, const LibraryView &library)
{
    if (source.kind() == Kind::discover)
        return {};
    if (source.kind() == Kind::active || source.kind() == Kind::inactive)
        return {library.families, placesOfActivity(source.kind() == Kind::active, library)};
    const QStringList *members = membersOf(source, library.organization);
    if (!members)
        return library.families;
    return {library.families, placesOfNames(*members, library)};
}

FontFamilySubset found(const FontFamilySubset &base, const SearchQuery &query,
                       const LibraryIndex &index)
{
    Places places;
    for (size_t i = 0; i < base.size(); ++i) {
        const size_t place = base.place(i);
        if (query.matches(index.searchBlobByFamily[place]))
            places.push_back(quint32(place));
    }
    return {base.list(), std::move(places)};
}

} // namespace

FontFamilySubset VisibleFamilies::answer(const VisibleFamiliesStamp &stamp,
                                         const LibraryView &library)
{
    if (m_visibleFamiliesStamp == stamp)
        return m_cachedVisibleFamilies;
    const FontFamilySubset &families =
        base({stamp.source, stamp.catalogGeneration, stamp.activationGeneration,
              stamp.membershipGeneration},
             library);
    const SearchQuery query(stamp.query);
    m_cachedVisibleFamilies =
        query.isEmpty() || !library.index ? families : found(families, query, *library.index);
    m_visibleFamiliesStamp = stamp;
    return m_cachedVisibleFamilies;
}

const FontFamilySubset &VisibleFamilies::base(const SearchBaseStamp &stamp,
                                              const LibraryView &library)
{
    if (m_baseStamp != stamp) {
        m_base = familiesOf(stamp.source, library);
        m_baseStamp = stamp;
    }
    return m_base;
}

} // namespace lorva
