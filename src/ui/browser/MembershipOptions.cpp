// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT

#include "ui/browser/MembershipOptions.h"

#include "model/records/DisplayedNames.h"

#include <algorithm>

namespace lorva {

namespace {

/// The one grouping that all the families are in; empty when there is none.
QString commonID(const QHash<QString, QString> &idByFamily, const QStringList &familyNames)
{
    if (familyNames.isEmpty())
        return {};
    const QString id = idByFamily.value(familyNames.front());
    const bool isCommon = std::ranges::all_of(
        familyNames, [&](const QString &name) { return idByFamily.value(name) == id; });
    return isCommon ? id : QString();
}

bool holdsAll(const QSet<QString> &members, const QStringList &familyNames)
{
    return !familyNames.isEmpty() && members.size() >= familyNames.size()
        && std::ranges::all_of(familyNames,
                               [&](const QString &name) { return members.contains(name); });
}

template <class Option, class Record>
std::vector<Option> exclusiveOptions(const std::vector<Record> &records, const QString &memberID)
{
    std::vector<Option> options;
    options.reserve(records.size());
    for (const Record &record : records)
        options.push_back(
            {record.id, displayedName(record), !memberID.isEmpty() && record.id == memberID});
    return options;
}

} // namespace

std::vector<StyleMembershipOption> styleOptions(const FontBrowserState &state,
                                                const QStringList &familyNames)
{
    return exclusiveOptions<StyleMembershipOption>(state.styleCategories,
                                                   commonID(state.styleIDByFamily, familyNames));
}

std::vector<CollectionMembershipOption> collectionOptions(const FontBrowserState &state,
                                                          const QStringList &familyNames)
{
    std::vector<CollectionMembershipOption> options;
    options.reserve(state.collections.size());
    for (const FontCollectionRecord &record : state.collections) {
        const auto members = state.collectionMembersByID.constFind(record.id);
        const bool isMember =
            members != state.collectionMembersByID.cend() && holdsAll(*members, familyNames);
        options.push_back({record.id, record.name, isMember});
    }
    return options;
}

std::vector<FoundryMembershipOption> foundryOptions(const FontBrowserState &state,
                                                    const QStringList &familyNames)
{
    return exclusiveOptions<FoundryMembershipOption>(
        state.foundryCollections, commonID(state.foundryIDByFamily, familyNames));
}

ActivationOffer activationOffer(const FontBrowserState &state, const QStringList &familyNames)
{
    const QSet<QString> names(familyNames.begin(), familyNames.end());
    ActivationOffer offer;
    for (const FontFamilyRecord &family : state.families)
        if (names.contains(family.familyName))
            offer.add(state.activationProvider(family));
    return offer;
}

} // namespace lorva
