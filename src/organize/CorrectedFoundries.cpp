// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#include "organize/Foundries.h"
#include "organize/NameOrder.h"

#include <algorithm>

namespace lorva {

namespace {

/// Foundry id by family, for the families that really go somewhere; an empty id: nowhere.
QHash<QString, QString> effectiveMoves(const std::vector<FoundryCollectionRecord> &foundries,
                                       QHash<QString, QString> overrides)
{
    QSet<QString> known{QString()};
    for (const FoundryCollectionRecord &foundry : foundries)
        known.insert(foundry.id);
    overrides.removeIf([&known](const auto &each) { return !known.contains(each.value()); });
    return overrides;
}

/// A list is only taken apart when it changes: most of them stay shared.
void removeMoved(QStringList &families, const QHash<QString, QString> &moves)
{
    const auto isMoved = [&moves](const QString &family) { return moves.contains(family); };
    if (std::any_of(families.cbegin(), families.cend(), isMoved))
        families.removeIf(isMoved);
}

void moveFamilies(std::vector<FoundryCollectionRecord> &foundries,
                  const QHash<QString, QString> &moves)
{
    QHash<QString, QStringList> gained;
    for (auto each = moves.cbegin(); each != moves.cend(); ++each)
        gained[each.value()].append(each.key());
    const NameOrder order;
    for (FoundryCollectionRecord &foundry : foundries) {
        removeMoved(foundry.familyNames, moves);
        if (const auto added = gained.constFind(foundry.id); added != gained.constEnd())
            order.insert(foundry.familyNames, *added);
    }
    std::erase_if(foundries, [](const auto &foundry) { return foundry.familyNames.isEmpty(); });
}

void rename(std::vector<FoundryCollectionRecord> &foundries, const QHash<QString, QString> &names)
{
    for (FoundryCollectionRecord &foundry : foundries) {
        const auto name = names.constFind(foundry.id);
        if (name != names.constEnd() && !name->trimmed().isEmpty())
            foundry.name = *name;
    }
    NameOrder().sortByName(foundries);
}

} // namespace

CorrectedFoundries correctedFoundries(std::vector<FoundryCollectionRecord> derived,
                                      const FoundryCorrections &corrections)
{
    const QHash<QString, QString> moves = effectiveMoves(derived, corrections.overrides);
    if (!moves.isEmpty())
        moveFamilies(derived, moves);
    if (!corrections.names.isEmpty())
        rename(derived, corrections.names);
    CorrectedFoundries corrected;
    for (FoundryCollectionRecord &foundry : derived) {
        const bool isDismissed = corrections.dismissed.contains(foundry.id);
        (isDismissed ? corrected.dismissed : corrected.shown).push_back(std::move(foundry));
    }
    return corrected;
}

} // namespace lorva
