// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT

// How the user sorts the library: commands, each with its name for the menu and its way back.

#include "model/LorvaAppModel.h"

#include "model/OrganizationCommand.h"
#include "model/stores/OrganizationChanges.h"
#include "platform/PreferenceStore.h"

namespace lorva {

namespace {

const QString kHasSeenQuizIntroKey = QStringLiteral("vantrel.merid.hasSeenQuizIntro");
const QString kHideQuizPromoKey = QStringLiteral("vantrel.merid.hideQuizPromoInSidebar");

} // namespace

Result<void> LorvaAppModel::changeOrganization(const QString &commandName,
                                               LibraryOrganization::Change change)
{
    Result<OrganizationEdit> edit = m_organization.change(std::move(change));
    if (!edit)
        return tl::unexpected(std::move(edit).error());
    if (edit->isEmpty())
        return {};
    const auto applyAgain = [this](const OrganizationEdit &again) {
        static_cast<void>(m_organization.change([again](Organization &organization) {
            apply(again, organization);
            return Result<void>();
        }));
        membershipChanged();
    };
    m_undoStack.push(new OrganizationCommand(commandName, *std::move(edit), applyAgain));
    membershipChanged();
    return {};
}

void LorvaAppModel::membershipChanged()
{
    ++m_membershipGeneration;
    validateSelection();
    changed();
}

void LorvaAppModel::takeChangesElsewhere()
{
    const bool isSortedAnew = m_organization.reload();
    const QSet<QString> collapsed = m_foundryStore.collapsedGroups();
    const bool isFoldedAnew = std::exchange(m_collapsedGroups, collapsed) != collapsed;
    const bool looksNew = m_display.reload();
    if (isSortedAnew)
        membershipChanged();
    else if (isFoldedAnew || looksNew)
        changed();
}

Result<QString> LorvaAppModel::createCollection(const QString &name)
{
    const QString id = newGroupingID();
    return changeOrganization(tr("New Collection"),
                              [id, name](Organization &organization) {
                                  return lorva::createCollection(organization, id, name);
                              })
        .map([&] { return id; });
}

Result<void> LorvaAppModel::renameCollection(const QString &id, const QString &name)
{
    return changeOrganization(tr("Rename Collection"), [=](Organization &organization) {
        return lorva::renameCollection(organization, id, name);
    });
}

Result<void> LorvaAppModel::deleteCollection(const QString &id)
{
    return changeOrganization(tr("Delete Collection"), [=](Organization &organization) {
        return lorva::deleteCollection(organization, id);
    });
}

Result<void> LorvaAppModel::addFamilies(const QString &collectionID, const QStringList &familyNames)
{
    return changeOrganization(tr("Add to Collection"), [=](Organization &organization) {
        return lorva::addFamilies(organization, collectionID, familyNames);
    });
}

Result<void> LorvaAppModel::removeFamilies(const QString &collectionID,
                                           const QStringList &familyNames)
{
    return changeOrganization(tr("Remove from Collection"), [=](Organization &organization) {
        return lorva::removeFamilies(organization, collectionID, familyNames);
    });
}

QString LorvaAppModel::freeCollectionName(const QString &base) const
{
    return lorva::freeCollectionName(m_organization.organization(), base);
}

Result<void> LorvaAppModel::setStyle(const QStringList &familyNames,
                                     const std::optional<QString> &categoryID)
{
    return changeOrganization(tr("Change Style"), [=](Organization &organization) {
        return lorva::setStyle(organization, familyNames, categoryID);
    });
}

Result<QString> LorvaAppModel::createStyleCategory(const QString &name)
{
    const QString id = newGroupingID();
    return changeOrganization(tr("New Style"),
                              [id, name](Organization &organization) {
                                  return lorva::createStyleCategory(organization, id, name);
                              })
        .map([&] { return id; });
}

Result<void> LorvaAppModel::renameStyleCategory(const QString &id, const QString &name)
{
    return changeOrganization(tr("Rename Style"), [=](Organization &organization) {
        return lorva::renameStyleCategory(organization, id, name);
    });
}

Result<void> LorvaAppModel::deleteStyleCategory(const QString &id)
{
    return changeOrganization(tr("Delete Style"), [=](Organization &organization) {
        return lorva::deleteStyleCategory(organization, id);
    });
}

Result<void> LorvaAppModel::setFoundry(const QStringList &familyNames, const QString &foundryID)
{
    return changeOrganization(tr("Change Foundry"), [=](Organization &organization) {
        lorva::setFoundry(organization, familyNames, foundryID);
        return Result<void>();
    });
}

Result<void> LorvaAppModel::resetFoundry(const QStringList &familyNames)
{
    return changeOrganization(tr("Change Foundry"), [=](Organization &organization) {
        lorva::resetFoundry(organization, familyNames);
        return Result<void>();
    });
}

Result<void> LorvaAppModel::renameFoundry(const QString &id, const std::optional<QString> &name)
{
    return changeOrganization(tr("Rename Foundry"), [=](Organization &organization) {
        return lorva::renameFoundry(organization, id, name);
    });
}

Result<void> LorvaAppModel::dismissFoundry(const QString &id)
{
    return changeOrganization(tr("Hide Foundry"), [=](Organization &organization) {
        lorva::dismissFoundry(organization, id);
        return Result<void>();
    });
}

Result<void> LorvaAppModel::bringBackFoundry(const QString &id)
{
    return changeOrganization(tr("Show Foundry"), [=](Organization &organization) {
        lorva::bringBackFoundry(organization, id);
        return Result<void>();
    });
}

void LorvaAppModel::toggleGroupCollapsed(const QString &group)
{
    m_foundryStore.setCollapsed(group, !m_collapsedGroups.contains(group));
    m_collapsedGroups = m_foundryStore.collapsedGroups();
    changed();
}

bool LorvaAppModel::hasSeenQuizIntro() const
{
    return m_preferences.boolean(kHasSeenQuizIntroKey).value_or(false);
}

void LorvaAppModel::setHasSeenQuizIntro()
{
    m_preferences.setBoolean(kHasSeenQuizIntroKey, true);
}

bool LorvaAppModel::hidesQuizPromoInSidebar() const
{
    return m_preferences.boolean(kHideQuizPromoKey).value_or(false);
}

void LorvaAppModel::hideQuizPromoInSidebar()
{
    if (hidesQuizPromoInSidebar())
        return;
    m_preferences.setBoolean(kHideQuizPromoKey, true);
    changed();
}

} // namespace lorva
