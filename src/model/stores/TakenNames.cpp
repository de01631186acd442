// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#include "model/stores/TakenNames.h"

#include "model/stores/OrganizationChanges.h"
#include "model/stores/OrganizationNames.h"

namespace lorva {

void TakenNames::insert(const QString &name)
{
    m_comparableNames.insert(comparableName(name));
}

bool TakenNames::contains(const QString &name) const
{
    return m_comparableNames.contains(comparableName(name));
}

QString TakenNames::freeName(const QString &base) const
{
    const QString cleaned = cleanedName(base);
    QString name = cleaned;
    for (int number = 2; contains(name); ++number) {
        const QString suffix = u' ' + QString::number(number);
        name = cutBetweenCharacters(cleaned, kLongestName - suffix.size()) + suffix;
    }
    return name;
}

QString freeCollectionName(const Organization &organization, const QString &base)
{
    TakenNames taken;
    for (const FontCollectionRecord &each : organization.collections)
        taken.insert(each.name);
    return taken.freeName(base);
}

} // namespace lorva
