// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#include "cli/Commands.h"
#include "cli/GroupingCommand.h"
#include "model/stores/OrganizationChanges.h"

namespace lorva::cli {

namespace {

constexpr char kHelp[] =
    "Usage: lorvactl collections [list [COLLECTION]] [--json]\n"
    "       lorvactl collections create NAME [FAMILY]...\n"
    "       lorvactl collections rename COLLECTION NAME\n"
    "       lorvactl collections delete COLLECTION\n"
    "       lorvactl collections add|remove|set COLLECTION FAMILY...\n"
    "\n"
    "Lists the collections, one line each: the name, a tab, the number of families; or the "
    "families\n"
    "of one, in their order. Changes are seen at once by a window that is open.\n"
    "\n"
    "  add            puts families into a collection, at its end\n"
    "  remove         takes families out of it\n"
    "  set            makes these families its members, in this order, and no others\n"
    "\n"
    "COLLECTION is its id, which --json shows, or its name, in any case unless that fits several.\n"
    "FAMILY is the name of a family of this machine or of a collection; a lone - reads names from\n"
    "standard input, one per line. A command is done whole or not at all.\n"
    "\n"
    "  --json         JSON instead of lines\n"
    "  --missing      take names of families that this machine lacks, for when their fonts come\n"
    "  --folder DIR   take in the fonts below DIR too, beside those of the watched folders\n"
    "  --help         show this help\n";

std::vector<FontCollectionRecord> collections(const Organization &organization)
{
    return organization.collections;
}

} // namespace

int runCollectionsCommand(std::span<const QByteArray> words)
{
    static const GroupingKind kKind{"collections",
                                    QStringLiteral("collection"),
                                    OrganizationPart::collections,
                                    collections,
                                    createCollection,
                                    renameCollection,
                                    deleteCollection,
                                    addFamilies,
                                    removeFamilies,
                                    setFamilies};
    return runGroupingCommand(kKind, kHelp, words);
}

} // namespace lorva::cli
