// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT

#include "ui/SidebarActions.h"

#include "commands/OrganizationAlerts.h"
#include "model/LorvaAppModel.h"

#include <QCoreApplication>

#include <algorithm>

namespace lorva {

namespace {

template <class Record>
QStringList membersIn(const std::vector<Record> &records, const QString &id)
{
    const auto found = std::ranges::find(records, id, &Record::id);
    return found == records.end() ? QStringList() : found->familyNames;
}

} // namespace

SidebarActions::SidebarActions(LorvaAppModel &model)
    : m_model(model)
{
}

void SidebarActions::tell(const Result<void> &outcome) const
{
    if (!outcome && onRefused)
        onRefused(outcome.error().detail);
}

void SidebarActions::sidebarSelected(const BrowserSource &source)
{
    m_model.openDetail(std::nullopt);
    m_model.select(source);
}

void SidebarActions::sidebarOrganizeChosen()
{
    if (onOrganizeWanted)
        onOrganizeWanted();
}

void SidebarActions::sidebarPromoHidden()
{
    m_model.hideQuizPromoInSidebar();
}

void SidebarActions::sidebarGroupToggled(SidebarGroup group)
{
    m_model.toggleGroupCollapsed(sidebarGroupIdentifier(group));
}

std::optional<QString> SidebarActions::sidebarCollectionWanted()
{
    const Result<QString> id = m_model.createCollection(m_model.freeCollectionName(
        QCoreApplication::translate("SidebarActions", "New Collection")));
    if (!id) {
        tell(tl::unexpected(id.error()));
        return std::nullopt;
    }
    return *id;
}

void SidebarActions::sidebarCollectionRenamed(const QString &id, const QString &name)
{
    tell(m_model.renameCollection(id, name));
}

void SidebarActions::sidebarCollectionDeletionWanted(const QString &id)
{
    if (onQuestion)
        onQuestion(deleteCollectionAlert(), [this, id] { tell(m_model.deleteCollection(id)); });
}

void SidebarActions::sidebarFoundryRenamed(const QString &id, const QString &name)
{
    tell(m_model.renameFoundry(id, name));
}

void SidebarActions::sidebarFoundryHidingWanted(const QString &id)
{
    const auto &foundries = m_model.foundryCollections();
    const auto found = std::find_if(foundries.begin(), foundries.end(),
                                    [&](const auto &foundry) { return foundry.id == id; });
    if (found != foundries.end() && onQuestion)
        onQuestion(hideFoundryAlert(found->name), [this, id] { tell(m_model.dismissFoundry(id)); });
}

void SidebarActions::sidebarFoundryBroughtBack(const QString &id)
{
    tell(m_model.bringBackFoundry(id));
}

QStringList SidebarActions::membersOf(const SidebarItem &item) const
{
    switch (item.kind()) {
    case SidebarItem::Kind::style:
        return membersIn(m_model.styleCategories(), item.id());
    case SidebarItem::Kind::collection:
        return membersIn(m_model.collections(), item.id());
    case SidebarItem::Kind::foundry:
        return membersIn(m_model.foundryCollections(), item.id());
    default:
        return {};
    }
}

void SidebarActions::sidebarActivationWanted(const SidebarItem &item)
{
    if (onActivationWanted)
        onActivationWanted(membersOf(item));
}

void SidebarActions::sidebarDeactivationWanted(const SidebarItem &item)
{
    if (onDeactivationWanted)
        onDeactivationWanted(membersOf(item));
}

void SidebarActions::sidebarFamiliesDropped(const SidebarItem &target,
                                            const QStringList &familyNames)
{
    switch (target.kind()) {
    case SidebarItem::Kind::style:
        tell(m_model.setStyle(familyNames, target.id()));
        break;
    case SidebarItem::Kind::collection:
        tell(m_model.addFamilies(target.id(), familyNames));
        break;
    case SidebarItem::Kind::foundry:
        tell(m_model.setFoundry(familyNames, target.id()));
        break;
    default:
        break;
    }
}

} // namespace lorva
