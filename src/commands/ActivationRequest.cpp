// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT

#include "commands/ActivationRequest.h"

#include "catalog/FontLibraryService.h"
#include "commands/ActivationPlans.h"

#include <algorithm>

namespace lorva {

namespace {

std::vector<FontFamilyRecord> familiesNamed(const QStringList &names,
                                            const std::vector<FontFamilyRecord> &catalog)
{
    const QSet<QString> wanted(names.begin(), names.end());
    std::vector<FontFamilyRecord> found;
    std::ranges::copy_if(catalog, std::back_inserter(found), [&](const FontFamilyRecord &family) {
        return wanted.contains(family.familyName);
    });
    return found;
}

bool holdsFile(const FontFamilyRecord &family, const std::optional<FilePath> &file)
{
    return std::ranges::find(family.styles, file, &FontStyleRecord::fileURL) != family.styles.end();
}

QStringList familiesHolding(const std::optional<FilePath> &file, const QStringList &but,
                            const std::vector<FontFamilyRecord> &catalog)
{
    QStringList names;
    for (const FontFamilyRecord &family : catalog)
        if (!but.contains(family.familyName) && holdsFile(family, file))
            names.append(family.familyName);
    return names;
}

void leaveOnly(const std::optional<FilePath> &file, std::vector<FontFamilyRecord> &families)
{
    for (FontFamilyRecord &family : families)
        std::erase_if(family.styles,
                      [&](const FontStyleRecord &style) { return style.fileURL != file; });
    std::erase_if(families, [](const FontFamilyRecord &family) { return family.styles.empty(); });
}

std::vector<FontStyleRecord> stylesOf(const std::vector<FontFamilyRecord> &families)
{
    std::vector<FontStyleRecord> styles;
    for (const FontFamilyRecord &family : families)
        styles.insert(styles.end(), family.styles.begin(), family.styles.end());
    return styles;
}

std::vector<FontFamilyRecord> familiesFor(ActivationRequest::Kind kind,
                                          const std::vector<FontFamilyRecord> &asked,
                                          const ActivationBooks &books)
{
    switch (kind) {
    case ActivationRequest::Kind::activate:
        return familiesToActivate(asked, books);
    case ActivationRequest::Kind::complete:
        return familiesToComplete(asked, books);
    case ActivationRequest::Kind::deactivate:
        return familiesToDeactivate(asked, books);
    }
    return {};
}

} // namespace

/// A style's own name says little.
QStringList ActivationRequest::subjects() const
{
    if (!style || style->label.isEmpty())
        return names;
    return {QString(names.join(QString()) % u' ' % style->label)};
}

QStringList ActivationPlan::names() const
{
    QStringList names;
    for (const FontFamilyRecord &family : families)
        names.append(family.familyName);
    return names;
}

ActivationPlan planAmong(const ActivationRequest &request,
                         const std::vector<FontFamilyRecord> &catalog, const ActivationBooks &books)
{
    std::vector<FontFamilyRecord> asked = familiesNamed(request.names, catalog);
    if (request.style)
        leaveOnly(request.style->fileURL, asked);
    ActivationPlan plan;
    plan.families = familiesFor(request.kind, asked, books);
    if (!plan.families.empty() && request.kind == ActivationRequest::Kind::deactivate)
        plan.areOriginsKnown = books.areAllOriginsKnown(stylesOf(plan.families));
    return plan;
}

ActivationPlan planFor(const ActivationRequest &request,
                       const std::vector<FontFamilyRecord> &catalog, const ActivationBooks &books,
                       const FontLibraryService &library)
{
    ActivationPlan plan = planAmong(request, catalog, books);
    if (plan.families.empty())
        return plan;
    plan.others = request.style ? familiesHolding(request.style->fileURL, request.names, catalog)
                                : library.familiesSharingFiles(plan.names());
    return plan;
}

} // namespace lorva
