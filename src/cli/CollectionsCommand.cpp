// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#include "cli/Commands.h"
#include "cli/GroupingCommand.h"
#include "cli/Help.h"
#include "cli/Texts.h"
#include "model/stores/OrganizationChanges.h"

namespace lorva::cli {

namespace {

HelpText help()
{
    return HelpText({"lorvactl collections [list [COLLECTION]] [--json]",
                     "lorvactl collections create NAME [FAMILY]...",
                     "lorvactl collections rename COLLECTION NAME",
                     "lorvactl collections delete COLLECTION",
                     "lorvactl collections add|remove|set COLLECTION FAMILY..."})
        .paragraph(Texts::tr(
            "Lists the collections, one line each: the name, a tab, the number of families; or the "
            "families of one, in their order. Changes are seen at once by a window that is open."))
        .entries(
            {{"add", Texts::tr("puts families into a collection, at its end")},
             {"remove", Texts::tr("takes families out of it")},
             {"set", Texts::tr("makes these families its members, in this order, and no others")}})
        .paragraph(Texts::tr("COLLECTION is its id, which --json shows, or its name, in any case "
                             "unless that fits several. FAMILY is the name of a family of this "
                             "machine or of a collection; a lone - reads names from standard "
                             "input, one per line. A command is done whole or not at all."))
        .entries({{"--json", Texts::tr("JSON instead of lines")},
                  missingEntry(),
                  folderEntry(),
                  helpEntry()});
}

std::vector<FontCollectionRecord> collections(const Organization &organization)
{
    return organization.collections;
}

} // namespace

int runCollectionsCommand(std::span<const QByteArray> words)
{
    static const GroupingKind kKind{
        "collections",    kCollectionTexts, OrganizationPart::collections,
        collections,      createCollection, renameCollection,
        deleteCollection, addFamilies,      removeFamilies,
        setFamilies};
    return runGroupingCommand(kKind, help, words);
}

} // namespace lorva::cli
