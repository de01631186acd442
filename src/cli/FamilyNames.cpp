// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#include "cli/FamilyNames.h"

#include "cli/Console.h"
#include "cli/Texts.h"
#include "cli/Words.h"
#include "model/stores/OrganizationNames.h"

namespace lorva::cli {

FamilyNames::FamilyNames(const QStringList &names, FamiliesOf whole)
    : m_whole(std::move(whole))
{
    add(names);
}

void FamilyNames::add(const QStringList &names)
{
    for (const QString &name : names) {
        const qsizetype before = m_names.size();
        m_names.insert(name);
        if (m_names.size() == before)
            continue;
        m_nameByPrintedForm.insert(singleLine(name), name);
        m_namesByFoldedForm[comparableName(name)].push_back(name);
    }
}

void FamilyNames::addMembers(const Organization &organization)
{
    for (const FontCollectionRecord &collection : organization.collections)
        add(collection.familyNames);
    for (const FontStyleCategoryRecord &category : organization.styleCategories)
        add(category.familyNames);
    add(organization.foundries.overrides.keys());
}

Result<QString> FamilyNames::find(const QString &typed, Unknown unknown) const
{
    if (m_names.contains(typed))
        return typed;
    if (const auto printed = m_nameByPrintedForm.constFind(typed);
        printed != m_nameByPrintedForm.cend())
        return *printed;
    const QStringList alike = m_namesByFoldedForm.value(comparableName(typed));
    if (alike.size() == 1)
        return alike.front();
    if (alike.size() > 1)
        return failure(
            ErrorKind::invalidValue,
            Texts::tr("several families are called %1: %2").arg(quoted(typed), listed(alike)));
    if (unknown == Unknown::isKept)
        return typed;
    return tl::unexpected(unknownFamily(typed));
}

Error FamilyNames::unknownFamily(const QString &typed) const
{
    return {ErrorKind::notFound,
            m_whole.texts
                ? Texts::tr(m_whole.texts->lacksFamily).arg(quoted(typed), quoted(m_whole.name))
                : Texts::tr("there is no family %1").arg(quoted(typed))};
}

Result<QStringList> FamilyNames::find(const QStringList &typed, Unknown unknown) const
{
    QStringList found;
    for (const QString &each : typed) {
        Result<QString> name = find(each, unknown);
        if (!name)
            return tl::unexpected(name.error());
        found.push_back(*std::move(name));
    }
    return found;
}

} // namespace lorva::cli
