// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT

// How the user sorts the library: commands, each with its name for the menu and its way back.

#include "model/LorvaAppModel.h"

#include "model/OrganizationCommand.h"
#include "model/stores/OrganizationChanges.h"
#include "platform/PreferenceStore.h"

#include <algorithm>

namespace lorva {

namespace {

const QString kHasSeenQuizIntroKey = QStringLiteral("vantrel.merid.hasSeenQuizIntro");
const QString kHideQuizPromoKey = QStringLiteral("vantrel.merid.hideQuizPromoInSidebar");

} // namespace

Result<void> LorvaAppModel::changeOrganization(const QString &commandName,
                                               LibraryOrganization::Change change)
{
    const Result<LibraryOrganization::Outcome> outcome = m_organization.change(std::move(change));
    if (!outcome)
        return tl::unexpected(outcome.error());
    if (!outcome->isOther)
        return {};
    // Whoever hears of the new command sees what it did.
    ++m_membershipGeneration;
    if (!outcome->edit.isEmpty())
        m_undoStack.push(new OrganizationCommand(
            commandName, outcome->edit,
            [this](const OrganizationEdit &edit) { return applyEdit(edit); }));
    membershipChanged();
    return {};
}

/// It cannot fail: what is not possible any more is passed over.
OrganizationEdit LorvaAppModel::applyEdit(const OrganizationEdit &edit)
{
    const Result<LibraryOrganization::Outcome> outcome =
        m_organization.change([edit](Organization &organization) {
            apply(edit, organization);
            return Result<void>();
        });
    membershipChanged();
    return outcome ? outcome->edit : OrganizationEdit();
}

void LorvaAppModel::membershipChanged()
{
    ++m_membershipGeneration;
    validateSelection();
    changed();
}

void LorvaAppModel::takeChangesElsewhere()
{
    m_installationService->takeChangesElsewhere();
    const bool areFoldersOther = readWatchedFolders();
    if (areFoldersOther)
        requestCatalogReconcile();
    const auto sidebar = [this] { return std::pair(m_collapsedGroups, m_hidesQuizPromoInSidebar); };
    const auto sidebarBefore = sidebar();
    readSidebar();
    const bool isDisplayOther = m_display.reload();
    if (m_organization.reload())
        membershipChanged();
    else if (areFoldersOther || isDisplayOther || sidebar() != sidebarBefore)
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

Result<void> LorvaAppModel::toggleFamilies(const QString &collectionID,
                                           const QStringList &familyNames)
{
    const bool areMembers =
        std::all_of(familyNames.begin(), familyNames.end(),
                    [&](const QString &name) { return isMember(name, collectionID); });
    return areMembers ? removeFamilies(collectionID, familyNames)
                      : addFamilies(collectionID, familyNames);
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
    readSidebar();
    changed();
}

bool LorvaAppModel::flag(const QString &key) const
{
    return m_preferences.boolean(key).value_or(false);
}

void LorvaAppModel::setFlag(const QString &key)
{
    m_preferences.inTransaction([&preferences = m_preferences, key] {
        if (!preferences.boolean(key))
            preferences.keepUnreadable(key);
        preferences.setBoolean(key, true);
    });
}

bool LorvaAppModel::hasSeenQuizIntro() const
{
    return flag(kHasSeenQuizIntroKey);
}

void LorvaAppModel::setHasSeenQuizIntro()
{
    if (hasSeenQuizIntro())
        return;
    setFlag(kHasSeenQuizIntroKey);
    changed();
}

void LorvaAppModel::hideQuizPromoInSidebar()
{
    if (m_hidesQuizPromoInSidebar)
        return;
    setFlag(kHideQuizPromoKey);
    m_hidesQuizPromoInSidebar = true;
    changed();
}

void LorvaAppModel::readSidebar()
{
    m_collapsedGroups = m_foundryStore.collapsedGroups();
    m_hidesQuizPromoInSidebar = flag(kHideQuizPromoKey);
}

} // namespace lorva
