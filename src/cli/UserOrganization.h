// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#pragma once

#include "model/stores/CollectionStore.h"
#include "model/stores/DisplaySettingsStore.h"
#include "model/stores/FoundryStore.h"
#include "model/stores/OrganizationStore.h"
#include "model/stores/StyleStore.h"
#include "platform/SqlitePreferenceStore.h"

namespace lorva::cli {

/// This user's organisation, opened for one command. Thread: one at a time.
class UserOrganization
{
public:
    UserOrganization();

    /// Fails when the preferences, or a part of the organisation in them, cannot be read.
    Result<Organization> load();
    /// OrganizationStore::change() that also fails when the change could not be written.
    Result<void> change(std::function<Result<void>(Organization &)> change);

    PreferenceStore &preferences() { return m_preferences; }
    OrganizationStore &organization() { return m_organization; }
    DisplaySettingsStore &displaySettings() { return m_displaySettings; }
    /// Fails while a change waits in memory: it would end with this process.
    Result<void> checkWritten() const;

private:
    Result<void> checkReadable() const;

    SqlitePreferenceStore m_preferences;
    CollectionStore m_collections;
    StyleStore m_styles;
    FoundryStore m_foundries;
    DisplaySettingsStore m_displaySettings;
    OrganizationStore m_organization;
};

} // namespace lorva::cli
