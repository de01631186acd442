// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#pragma once

#include "model/records/Organization.h"

#include <QSet>

#include <optional>

namespace lorva {

class PreferenceStore;

/// Keeps what the user says about foundries, and which groups of the sidebar are collapsed.
///
/// Every setter reads the present array or dictionary, changes one entry and writes it back, in one
/// transaction. Holds a reference to the preference store, which outlives it, and no cache. Thread:
/// main.
class FoundryStore
{
public:
    explicit FoundryStore(
        PreferenceStore &defaults,
        QString dismissedKey = QStringLiteral("vantrel.merid.dismissedFoundries"),
        QString collapsedGroupsKey = QStringLiteral("vantrel.merid.collapsedSidebarGroups"),
        QString overridesKey = QStringLiteral("vantrel.merid.foundryOverrides"),
        QString nameOverridesKey = QStringLiteral("vantrel.merid.foundryNameOverrides"));

    QSet<QString> dismissed() const;
    void setDismissed(const QString &foundryID, bool isDismissed);
    QSet<QString> collapsedGroups() const;
    void setCollapsed(const QString &group, bool isCollapsed);
    /// Foundry id by family name; an empty id: of no foundry.
    QHash<QString, QString> overrides() const;
    /// Nothing removes the family's override.
    void setOverride(const QString &familyName, const std::optional<QString> &foundryID);
    /// Name to show, by foundry id; without those of which nothing shows.
    QHash<QString, QString> nameOverrides() const;
    /// Nothing removes the foundry's name.
    void setNameOverride(const QString &foundryID, const std::optional<QString> &name);

    FoundryCorrections corrections() const;
    /// Replaces all corrections that differ from the stored ones.
    void save(const FoundryCorrections &corrections);

private:
    PreferenceStore &m_defaults;
    const QString m_dismissedKey;
    const QString m_collapsedGroupsKey;
    const QString m_overridesKey;
    const QString m_nameOverridesKey;
};

} // namespace lorva
