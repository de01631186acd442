// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#pragma once

#include "cli/UnreadableParts.h"
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

    /// For a command that shows these parts and no others: fails when the preferences, or one of
    /// the parts in them, cannot be read.
    Result<Organization> load(std::initializer_list<OrganizationPart> shown);
    /// OrganizationStore::change() that also fails when the preferences cannot be read or the
    /// change could not be written. Parts that cannot be read count as absent; a line on standard
    /// error tells of each that is replaced.
    Result<void> change(std::function<Result<void>(Organization &)> change);

    PreferenceStore &preferences() { return m_preferences; }
    OrganizationStore &organization() { return m_organization; }
    StyleStore &styles() { return m_styles; }
    DisplaySettingsStore &displaySettings() { return m_displaySettings; }
    /// Fails when what has been read so far may be less than what is stored, or was stored until
    /// now: trouble must not pass for an empty organisation.
    Result<void> checkRead() const;
    /// Fails while a change waits in memory: it would end with this process.
    Result<void> checkWritten() const;

private:
    const FilePath m_file;
    /// Damaged files that are not this command's doing.
    const std::vector<FilePath> m_asideBefore;
    SqlitePreferenceStore m_preferences;
    CollectionStore m_collections;
    StyleStore m_styles;
    FoundryStore m_foundries;
    DisplaySettingsStore m_displaySettings;
    OrganizationStore m_organization;
};

} // namespace lorva::cli
