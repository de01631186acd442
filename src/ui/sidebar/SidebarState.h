// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#pragma once

#include "organize/SidebarTree.h"

#include <QSet>
#include <QStringList>

namespace lorva {

/// Everything that the sidebar shows, as one immutable value.
struct SidebarState
{
    SidebarContent content;
    /// Foundries that the user hid and may bring back.
    std::vector<FoundryCollectionRecord> dismissedFoundries;
    /// As sidebarGroupIdentifier().
    QSet<QString> collapsedGroups;
    BrowserSource selectedSource;

    bool operator==(const SidebarState &) const = default;
};

/// What the user does in the sidebar, told to whoever decides.
class SidebarDelegate
{
public:
    virtual ~SidebarDelegate() = default;
    virtual void sidebarSelected(const BrowserSource &source) = 0;
    /// The promotion row.
    virtual void sidebarOrganizeChosen() = 0;
    virtual void sidebarPromoHidden() = 0;
    virtual void sidebarGroupToggled(SidebarGroup group) = 0;
    /// Makes an empty collection and gives its id, so that its name can be edited at once; nothing
    /// when it failed.
    virtual std::optional<QString> sidebarCollectionWanted() = 0;
    /// The new name is neither empty nor the old one.
    virtual void sidebarCollectionRenamed(const QString &id, const QString &name) = 0;
    /// The user has not been asked yet.
    virtual void sidebarCollectionDeletionWanted(const QString &id) = 0;
    virtual void sidebarFoundryRenamed(const QString &id, const QString &name) = 0;
    virtual void sidebarFoundryHidingWanted(const QString &id) = 0;
    virtual void sidebarFoundryBroughtBack(const QString &id) = 0;
    /// Everything in a style category, collection or foundry is to be switched on, or off.
    virtual void sidebarActivationWanted(const SidebarItem &item) = 0;
    virtual void sidebarDeactivationWanted(const SidebarItem &item) = 0;
    /// Families dropped on a style category, collection or foundry row.
    virtual void sidebarFamiliesDropped(const SidebarItem &target,
                                        const QStringList &familyNames) = 0;
};

} // namespace lorva
