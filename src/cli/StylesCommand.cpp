// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#include "cli/Commands.h"
#include "cli/GroupingCommand.h"
#include "cli/Help.h"
#include "cli/Texts.h"
#include "cli/Words.h"
#include "model/records/StyleCategories.h"
#include "model/stores/OrganizationChanges.h"

#include <QSet>

namespace lorva::cli {

namespace {

HelpText help()
{
    return HelpText({"lorvactl styles [list [STYLE]] [--json]",
                     "lorvactl styles create NAME [FAMILY]...", "lorvactl styles rename STYLE NAME",
                     "lorvactl styles delete STYLE",
                     "lorvactl styles add|remove|set STYLE FAMILY..."})
        .paragraph(Texts::tr(
            "Lists the styles, one line each: the name, a tab, the number of families; or the "
            "families of one, by name. Changes are seen at once by a window that is open. The "
            "window sorts families into styles by their names once, at its first start."))
        .entries({{"create", Texts::tr("a style of your own")},
                  {"rename",
                   Texts::tr("only a style of your own, not one of those that every library has")},
                  {"delete", Texts::tr("likewise; its families are in no style then")},
                  {"add", Texts::tr("moves families there: a family is in one style at most")},
                  {"remove", Texts::tr("takes families out of it; they are in no style then")},
                  {"set",
                   Texts::tr(
                       "makes these families its members; those that leave are in no style then")}})
        .paragraph(Texts::tr(
            "STYLE is its id, which --json shows, or its name, in any case unless that fits "
            "several. FAMILY is the name of a family of this machine or of a style; a lone - reads "
            "names from standard input, one per line. A command is done whole or not at all."))
        .entries({{"--json", Texts::tr("JSON instead of lines")},
                  missingEntry(),
                  folderEntry(),
                  helpEntry()});
}

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
                           Texts::tr("every library has the style %1, which cannot be renamed "
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
    static const GroupingKind kKind{"styles",    kStyleTexts,         OrganizationPart::styles,
                                    categories,  createStyleCategory, renameStyle,
                                    deleteStyle, addToStyle,          removeFromStyle,
                                    setMembers};
    return runGroupingCommand(kKind, help, words);
}

} // namespace lorva::cli
