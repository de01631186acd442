// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#include "cli/GroupingCommand.h"

#include "cli/FamilyListing.h"
#include "cli/GroupingListing.h"
#include "cli/GroupingNames.h"
#include "cli/Library.h"
#include "cli/UserOrganization.h"
#include "cli/Verbs.h"
#include "cli/Words.h"
#include "model/stores/OrganizationChanges.h"
#include "model/stores/OrganizationNames.h"

namespace lorva::cli {

namespace {

using FamilyChange = Result<void> (*)(Organization &, const QString &, const QStringList &);

Result<FontCollectionRecord> wanted(const GroupingKind &kind, const Organization &organization,
                                    const QString &typed)
{
    std::vector<FontCollectionRecord> all = kind.groupings(organization);
    const Result<size_t> place = findGrouping(groupingNames(all), typed, kind.texts);
    if (!place)
        return tl::unexpected(place.error());
    return std::move(all[*place]);
}

FamilyNames namesOfMachine(const std::vector<FilePath> &folders)
{
    QStringList names;
    for (const FontFamilyRecord &family :
         scanLibrary(withWatchedFolders(folders, LookupTrouble::isToldElsewhere)).families)
        names.push_back(family.familyName);
    return FamilyNames(names);
}

/// The families of the request among those of this machine and those that are members already.
Result<QStringList> knownFamilies(FamilyNames names, const Organization &organization,
                                  const VerbRequest &request)
{
    names.addMembers(organization);
    return names.find(request.families, request.unknownFamilies);
}

/// `ownID`: of the one that is to be called so.
Result<void> checkNameFree(const GroupingKind &kind, const Organization &organization,
                           const QString &ownID, const QString &name)
{
    const QString comparable = comparableName(cleanedName(name));
    for (const FontCollectionRecord &each : kind.groupings(organization)) {
        if (each.id != ownID && comparableName(each.name) == comparable)
            return failure(ErrorKind::invalidValue,
                           Texts::tr(kind.texts.taken).arg(quoted(each.name)));
    }
    return {};
}

Result<void> list(const GroupingKind &kind, const VerbRequest &request)
{
    const Result<Organization> organization = UserOrganization().load({kind.part});
    if (!organization)
        return tl::unexpected(organization.error());
    if (request.subjects.isEmpty()) {
        printGroupings(kind.groupings(*organization), request.isJson);
        return {};
    }
    const auto grouping = wanted(kind, *organization, request.subjects.front());
    if (!grouping)
        return tl::unexpected(grouping.error());
    printGrouping(*grouping, request.isJson);
    return {};
}

Result<void> create(const GroupingKind &kind, const VerbRequest &request)
{
    const FamilyNames names = namesOfMachine(request.folders);
    const QString id = newGroupingID();
    return UserOrganization().change([=](Organization &organization) -> Result<void> {
        const Result<QStringList> families = knownFamilies(names, organization, request);
        if (!families)
            return tl::unexpected(families.error());
        Result<void> created = checkNameFree(kind, organization, id, request.subjects.front());
        if (created)
            created = kind.create(organization, id, request.subjects.front());
        return created ? kind.addFamilies(organization, id, *families) : created;
    });
}

/// Finds the grouping and calls `change` with its id.
Result<void> changeGrouping(
    const GroupingKind &kind, const QString &typed,
    const std::function<Result<void>(Organization &, const QString &id)> &change)
{
    return UserOrganization().change([=](Organization &organization) -> Result<void> {
        const auto grouping = wanted(kind, organization, typed);
        return grouping ? change(organization, grouping->id) : tl::unexpected(grouping.error());
    });
}

Result<void> rename(const GroupingKind &kind, const VerbRequest &request)
{
    return changeGrouping(kind, request.subjects.front(),
                          [=](Organization &organization, const QString &id) {
                              const QString &name = request.subjects.back();
                              const auto isFree = checkNameFree(kind, organization, id, name);
                              return isFree ? kind.rename(organization, id, name) : isFree;
                          });
}

Result<void> changeFamilies(const GroupingKind &kind, const VerbRequest &request,
                            FamilyChange change)
{
    const FamilyNames names = namesOfMachine(request.folders);
    return changeGrouping(kind, request.subjects.front(),
                          [=](Organization &organization, const QString &id) -> Result<void> {
                              const auto families = knownFamilies(names, organization, request);
                              return families ? change(organization, id, *families)
                                              : tl::unexpected(families.error());
                          });
}

Result<void> removeFamilies(const GroupingKind &kind, const VerbRequest &request)
{
    return UserOrganization().change([=](Organization &organization) -> Result<void> {
        const auto grouping = wanted(kind, organization, request.subjects.front());
        if (!grouping)
            return tl::unexpected(grouping.error());
        const FamilyNames members(grouping->familyNames, {&kind.texts, grouping->name});
        const auto families = members.find(request.families, FamilyNames::Unknown::fails);
        if (!families)
            return tl::unexpected(families.error());
        return kind.removeFamilies(organization, grouping->id, *families);
    });
}

} // namespace

int runGroupingCommand(const GroupingKind &kind, HelpText (*help)(),
                       std::span<const QByteArray> words)
{
    using Families = Verb::Families;
    const auto with = [&](auto function) {
        return [&kind, function](const VerbRequest &request) { return function(kind, request); };
    };
    const auto changing = [&](FamilyChange change) {
        return [&kind, change](const VerbRequest &request) {
            return changeFamilies(kind, request, change);
        };
    };
    const auto remove = [&](const VerbRequest &request) {
        return changeGrouping(kind, request.subjects.front(), kind.remove);
    };
    const Verb verbs[]{
        {"list", 0, 1, Families::none, "--json", with(list)},
        {"create", 1, 1, Families::maybe, "--missing --folder", with(create)},
        {"rename", 2, 2, Families::none, "", with(rename)},
        {"delete", 1, 1, Families::none, "", remove},
        {"add", 1, 1, Families::some, "--missing --folder", changing(kind.addFamilies)},
        {"remove", 1, 1, Families::some, "", with(removeFamilies)},
        {"set", 1, 1, Families::some, "--missing --folder", changing(kind.setFamilies)},
    };
    return runVerb(kind.command, help, verbs, words);
}

} // namespace lorva::cli
