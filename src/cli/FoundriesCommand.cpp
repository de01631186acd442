// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#include "cli/Commands.h"
#include "cli/FamilyListing.h"
#include "cli/GroupingListing.h"
#include "cli/GroupingNames.h"
#include "cli/Help.h"
#include "cli/Library.h"
#include "cli/Texts.h"
#include "cli/UserOrganization.h"
#include "cli/Verbs.h"
#include "cli/Words.h"
#include "model/stores/OrganizationChanges.h"
#include "organize/Foundries.h"

#include <algorithm>

namespace lorva::cli {

namespace {

HelpText help()
{
    return HelpText({"lorvactl foundries [list [FOUNDRY]] [--hidden] [--json] [--folder DIR]...",
                     "lorvactl foundries rename FOUNDRY NAME | rename FOUNDRY --original",
                     "lorvactl foundries delete|hide|show FOUNDRY",
                     "lorvactl foundries add|remove|set FOUNDRY FAMILY...",
                     "lorvactl foundries reset FAMILY..."})
        .paragraph(Texts::tr(
            "Lists the foundries of this machine's fonts with two families at least, corrected by "
            "what you said, one line each: the name, a tab, the number of families; or the "
            "families of one. Changes are seen at once by a window that is open."))
        .entries(
            {{"rename",
              Texts::tr("shows the foundry under another name, or under its own with --original")},
             {"delete, hide",
              Texts::tr(
                  "hides it, its families stay in the library; list --hidden shows such ones")},
             {"show", Texts::tr("brings it back")},
             {"add", Texts::tr("moves families to it, whatever their fonts say")},
             {"remove", Texts::tr("takes families out of it; they are of no foundry then")},
             {"set",
              Texts::tr("makes these families its own; others that their fonts count to it are of "
                        "no foundry then")},
             {"reset", Texts::tr("lets the fonts of families say it again")}})
        .paragraph(
            Texts::tr("FOUNDRY is its id, which --json shows, or its name, in any case unless that "
                      "fits several. FAMILY is the name of a family of this machine or of one that "
                      "you sorted; a lone - reads names from standard input, one per line. A "
                      "command is done whole or not at all."))
        .entries({{"--json", Texts::tr("JSON instead of lines")},
                  missingEntry(),
                  folderEntry(),
                  helpEntry()});
}

/// What the fonts of the machine say.
struct FontsSay
{
    std::vector<FoundryCollectionRecord> foundries;
    QStringList families;

    QStringList familiesOf(const QString &foundryID) const
    {
        for (const FoundryCollectionRecord &foundry : foundries) {
            if (foundry.id == foundryID)
                return foundry.familyNames;
        }
        return {};
    }
};

FontsSay readFonts(const std::vector<FilePath> &folders)
{
    const FontCatalogResult result =
        scanLibrary(withWatchedFolders(folders, LookupTrouble::isToldElsewhere));
    FontsSay fonts{deriveFoundries(result.manufacturers, kFewestFamiliesOfFoundry), {}};
    for (const FontFamilyRecord &family : result.families)
        fonts.families.push_back(family.familyName);
    return fonts;
}

/// The foundries that can be named: those of the fonts under the names shown, and those that only
/// corrections know, whose fonts may come again.
std::vector<GroupingName> allFoundries(const FontsSay &fonts, const FoundryCorrections &corrections)
{
    std::vector<GroupingName> names = groupingNames(fonts.foundries);
    const auto addUnknown = [&](const QString &id) {
        const auto isThere = [&](const GroupingName &each) { return each.id == id; };
        if (!id.isEmpty() && std::none_of(names.begin(), names.end(), isThere))
            names.push_back({id, id});
    };
    std::for_each(corrections.names.keyBegin(), corrections.names.keyEnd(), addUnknown);
    std::for_each(corrections.dismissed.begin(), corrections.dismissed.end(), addUnknown);
    for (GroupingName &each : names)
        each.name = corrections.names.value(each.id, each.name);
    return names;
}

Result<GroupingName> wanted(const std::vector<GroupingName> &foundries, const QString &typed)
{
    const Result<size_t> place = findGrouping(foundries, typed, kFoundryTexts);
    return place ? Result<GroupingName>(foundries[*place]) : tl::unexpected(place.error());
}

Result<QStringList> knownFamilies(const FontsSay &fonts, const Organization &organization,
                                  const VerbRequest &request)
{
    FamilyNames names(fonts.families);
    names.addMembers(organization);
    return names.find(request.families, request.unknownFamilies);
}

/// Lets the fonts say it where they say this already: a correction less to keep.
void moveFamilies(Organization &organization, const FontsSay &fonts, const QString &foundryID,
                  const QStringList &families)
{
    const QStringList derived = fonts.familiesOf(foundryID);
    const QSet<QString> native(derived.cbegin(), derived.cend());
    QStringList foreign = families;
    foreign.removeIf([&](const QString &name) { return native.contains(name); });
    setFoundry(organization, foreign, foundryID);
    QStringList own = families;
    own.removeIf([&](const QString &name) { return !native.contains(name); });
    resetFoundry(organization, own);
}

QStringList membersOf(const FontsSay &fonts, const Organization &organization,
                      const QString &foundryID)
{
    const CorrectedFoundries corrected =
        correctedFoundries(fonts.foundries, organization.foundries);
    for (const auto *foundries : {&corrected.shown, &corrected.dismissed}) {
        for (const FoundryCollectionRecord &foundry : *foundries) {
            if (foundry.id == foundryID)
                return foundry.familyNames;
        }
    }
    return {};
}

/// Families that leave: those that were moved here go where their fonts say, others to no foundry.
void dropFamilies(Organization &organization, const FontsSay &fonts, const QString &foundryID,
                  const QStringList &families)
{
    const QStringList derived = fonts.familiesOf(foundryID);
    for (const QString &name : families) {
        if (derived.contains(name))
            setFoundry(organization, {name}, QString());
        else
            resetFoundry(organization, {name});
    }
}

/// Reads the fonts, finds the foundry among all that can be named, and calls `change` with it.
using FoundryChange = Result<void> (*)(Organization &, const FontsSay &, const GroupingName &,
                                       const VerbRequest &);
Result<void> changeFoundry(const VerbRequest &request, FoundryChange change)
{
    const FontsSay fonts = readFonts(request.folders);
    return UserOrganization().change([=](Organization &organization) -> Result<void> {
        const Result<GroupingName> foundry =
            wanted(allFoundries(fonts, organization.foundries), request.subjects.front());
        return foundry ? change(organization, fonts, *foundry, request)
                       : tl::unexpected(foundry.error());
    });
}

Result<void> list(const VerbRequest &request)
{
    const Result<Organization> organization =
        UserOrganization().load({OrganizationPart::foundries});
    if (!organization)
        return tl::unexpected(organization.error());
    const CorrectedFoundries corrected =
        correctedFoundries(readFonts(request.folders).foundries, organization->foundries);
    const auto &foundries = request.isHidden ? corrected.dismissed : corrected.shown;
    if (request.subjects.isEmpty()) {
        printGroupings(foundries, request.isJson);
        return {};
    }
    const Result<size_t> place =
        findGrouping(groupingNames(foundries), request.subjects.front(), kFoundryTexts);
    if (!place)
        return tl::unexpected(place.error());
    printGrouping(foundries[*place], request.isJson);
    return {};
}

Result<void> refuseToCreate(const VerbRequest &)
{
    return failure(ErrorKind::unsupported,
                   Texts::tr("a foundry comes from the fonts and cannot be created; rename "
                             "one, or add families to one"));
}

Result<void> rename(const VerbRequest &request)
{
    if (request.isOriginal == (request.subjects.size() == 2))
        return failure(ErrorKind::usage, Texts::tr("rename needs either a new name or --original"));
    return changeFoundry(request,
                         [](Organization &organization, const FontsSay &,
                            const GroupingName &foundry, const VerbRequest &asked) {
                             return renameFoundry(organization, foundry.id,
                                                  asked.isOriginal
                                                      ? std::nullopt
                                                      : std::optional(asked.subjects.back()));
                         });
}

Result<void> hide(const VerbRequest &request)
{
    return changeFoundry(request,
                         [](Organization &organization, const FontsSay &,
                            const GroupingName &foundry, const VerbRequest &) -> Result<void> {
                             dismissFoundry(organization, foundry.id);
                             return {};
                         });
}

Result<void> show(const VerbRequest &request)
{
    return changeFoundry(request,
                         [](Organization &organization, const FontsSay &,
                            const GroupingName &foundry, const VerbRequest &) -> Result<void> {
                             bringBackFoundry(organization, foundry.id);
                             return {};
                         });
}

Result<void> addFamilies(Organization &organization, const FontsSay &fonts,
                         const GroupingName &foundry, const VerbRequest &request)
{
    if (fonts.familiesOf(foundry.id).isEmpty())
        return failure(
            ErrorKind::notFound,
            Texts::tr("no fonts of this machine are of the foundry %1").arg(quoted(foundry.name)));
    const Result<QStringList> families = knownFamilies(fonts, organization, request);
    if (!families)
        return tl::unexpected(families.error());
    moveFamilies(organization, fonts, foundry.id, *families);
    return {};
}

Result<void> removeFamilies(Organization &organization, const FontsSay &fonts,
                            const GroupingName &foundry, const VerbRequest &request)
{
    const FamilyNames members(membersOf(fonts, organization, foundry.id),
                              {&kFoundryTexts, foundry.name});
    const auto families = members.find(request.families, FamilyNames::Unknown::fails);
    if (!families)
        return tl::unexpected(families.error());
    setFoundry(organization, *families, QString());
    return {};
}

Result<void> setFamilies(Organization &organization, const FontsSay &fonts,
                         const GroupingName &foundry, const VerbRequest &request)
{
    const QStringList members = membersOf(fonts, organization, foundry.id);
    if (const auto added = addFamilies(organization, fonts, foundry, request); !added)
        return added;
    const Result<QStringList> families = knownFamilies(fonts, organization, request);
    const QSet<QString> staying(families->cbegin(), families->cend());
    QStringList leaving = members;
    leaving.removeIf([&](const QString &name) { return staying.contains(name); });
    dropFamilies(organization, fonts, foundry.id, leaving);
    return {};
}

Result<void> reset(const VerbRequest &request)
{
    const FontsSay fonts = readFonts(request.folders);
    return UserOrganization().change([=](Organization &organization) -> Result<void> {
        const Result<QStringList> families = knownFamilies(fonts, organization, request);
        if (!families)
            return tl::unexpected(families.error());
        resetFoundry(organization, *families);
        return {};
    });
}

} // namespace

int runFoundriesCommand(std::span<const QByteArray> words)
{
    using Families = Verb::Families;
    const auto changing = [](FoundryChange change) {
        return [change](const VerbRequest &request) { return changeFoundry(request, change); };
    };
    const Verb verbs[]{
        {"list", 0, 1, Families::none, "--json --hidden --folder", list},
        {"create", 0, 1, Families::maybe, "--missing --folder", refuseToCreate},
        {"rename", 1, 2, Families::none, "--original --folder", rename},
        {"delete", 1, 1, Families::none, "--folder", hide},
        {"hide", 1, 1, Families::none, "--folder", hide},
        {"show", 1, 1, Families::none, "--folder", show},
        {"add", 1, 1, Families::some, "--missing --folder", changing(addFamilies)},
        {"remove", 1, 1, Families::some, "--folder", changing(removeFamilies)},
        {"set", 1, 1, Families::some, "--missing --folder", changing(setFamilies)},
        {"reset", 0, 0, Families::some, "--missing --folder", reset},
    };
    return runVerb("foundries", help, verbs, words);
}

} // namespace lorva::cli
