// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#include "cli/Commands.h"
#include "cli/GroupingCommand.h"
#include "cli/Words.h"
#include "model/records/StyleCategories.h"
#include "model/stores/OrganizationChanges.h"

#include <QSet>

namespace lorva::cli {

namespace {

constexpr char kHelp[] =
    "Usage: lorvactl styles [list [STYLE]] [--json]\n"
    "       lorvactl styles create NAME [FAMILY]...\n"
    "       lorvactl styles rename STYLE NAME\n"
    "       lorvactl styles delete STYLE\n"
    "       lorvactl styles add|remove|set STYLE FAMILY...\n"
    "\n"
    "Lists the styles, one line each: the name, a tab, the number of families; or the families of\n"
    "one, by name. Changes are seen at once by a window that is open. The window sorts families\n"
    "into styles by their names once, at its first start.\n"
    "\n"
    "  create         a style of your own\n"
    "  rename         only a style of your own, not one of those that every library has\n"
    "  delete         likewise; its families are in no style then\n"
    "  add            moves families there: a family is in one style at most\n"
    "  remove         takes families out of it; they are in no style then\n"
    "  set            makes these families its members; those that leave are in no style then\n"
    "\n"
    "STYLE is its id, which --json shows, or its name, in any case unless that fits several.\n"
    "FAMILY is the name of a family of this machine or of a style; a lone - reads names from\n"
    "standard input, one per line. A command is done whole or not at all.\n"
    "\n"
    "  --json         JSON instead of lines\n"
    "  --missing      take names of families that this machine lacks, for when their fonts come\n"
    "  --folder DIR   take in the fonts below DIR too, beside those of the watched folders\n"
    "  --help         show this help\n";

std::vector<FontCollectionRecord> categories(const Organization &organization)
{
    std::vector<FontCollectionRecord> groupings;
    for (const FontStyleCategoryRecord &category : organization.styleCategories)
        groupings.push_back({category.id, category.name, category.familyNames});
    return groupings;
}

/// In the words, and with the name, that whoever typed it sees.
Result<void> checkOwn(const Organization &organization, const QString &id)
{
    for (const FontStyleCategoryRecord &category : organization.styleCategories) {
        if (category.id == id && isDefaultStyleCategory(id))
            return failure(ErrorKind::invalidValue,
                           QStringLiteral("every library has the style %1, which cannot be renamed "
                                          "or deleted")
                               .arg(quoted(category.name)));
    }
    return {};
}

Result<void> renameStyle(Organization &organization, const QString &id, const QString &name)
{
    const Result<void> checked = checkOwn(organization, id);
    return checked ? renameStyleCategory(organization, id, name) : checked;
}

Result<void> deleteStyle(Organization &organization, const QString &id)
{
    const Result<void> checked = checkOwn(organization, id);
    return checked ? deleteStyleCategory(organization, id) : checked;
}

Result<void> addToStyle(Organization &organization, const QString &id, const QStringList &families)
{
    return setStyle(organization, families, id);
}

Result<void> removeFromStyle(Organization &organization, const QString &,
                             const QStringList &families)
{
    return setStyle(organization, families, std::nullopt);
}

Result<void> setMembers(Organization &organization, const QString &id, const QStringList &families)
{
    const QSet<QString> staying(families.cbegin(), families.cend());
    QStringList leaving;
    for (const FontStyleCategoryRecord &category : organization.styleCategories) {
        if (category.id == id)
            leaving = category.familyNames;
    }
    leaving.removeIf([&](const QString &name) { return staying.contains(name); });
    const Result<void> left = setStyle(organization, leaving, std::nullopt);
    return left ? setStyle(organization, families, id) : left;
}

} // namespace

int runStylesCommand(std::span<const QByteArray> words)
{
    static const GroupingKind kKind{"styles",
                                    QStringLiteral("style"),
                                    OrganizationPart::styles,
                                    categories,
                                    createStyleCategory,
                                    renameStyle,
                                    deleteStyle,
                                    addToStyle,
                                    removeFromStyle,
                                    setMembers};
    return runGroupingCommand(kKind, kHelp, words);
}

} // namespace lorva::cli
