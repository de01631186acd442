// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#include "cli/UserOrganization.h"

#include "cli/Console.h"
#include "cli/PreferenceLook.h"
#include "cli/Texts.h"
#include "platform/linux/XdgFolders.h"
#include "platform/PreferenceDatabase.h"
#include "platform/PreferenceFilesAside.h"

#include <algorithm>
#include <cerrno>

#include <sys/stat.h>

namespace lorva::cli {

namespace {

/// Another process writes for milliseconds; a person at a terminal rather waits than tries again.
constexpr std::chrono::seconds kPatience(5);

bool isAbsent(const FilePath &file)
{
    struct stat info = {};
    return ::lstat(file.c_str(), &info) != 0 && errno == ENOENT;
}

/// Preferences that can only be read are whole, although the store cannot use them fully.
bool areWhole(const PreferenceStoreStatus &status, const FilePath &file)
{
    // Once the lock, or what else it was, has passed there is no knowing what was missed.
    if (!status.failure || status.failure->kind == ErrorKind::cancelled)
        return false;
    const PreferenceLook look = lookAtPreferences(file.parent());
    return look.rows && look.rows->size() == status.entries.size();
}

Error failureOf(const PreferenceStoreStatus &status, const QString &usualDetail)
{
    return status.failure.value_or(Error{ErrorKind::ioFailure, usualDetail});
}

} // namespace

UserOrganization::UserOrganization()
    : m_file(xdgFolders().applicationSupport.child(PreferenceDatabase::kFileName))
    , m_asideBefore(preferencesAside(m_file))
    , m_preferences(m_file.parent(), kPatience)
    , m_collections(m_preferences)
    , m_styles(m_preferences)
    , m_foundries(m_preferences)
    , m_displaySettings(m_preferences)
    , m_organization(m_preferences, m_collections, m_styles, m_foundries)
{
}

Result<Organization> UserOrganization::load(std::initializer_list<OrganizationPart> shown)
{
    if (const Result<void> checked = checkRead(); !checked)
        return tl::unexpected(checked.error());
    for (const UnreadablePart &each : unreadableParts(m_preferences)) {
        if (std::find(shown.begin(), shown.end(), each.part) != shown.end())
            return failure(ErrorKind::malformed,
                           Texts::tr("%1; lorvactl doctor tells more").arg(textOf(each)));
    }
    Organization organization = m_organization.load();
    if (const Result<void> checked = checkRead(); !checked)
        return tl::unexpected(checked.error());
    return organization;
}

Result<void> UserOrganization::change(std::function<Result<void>(Organization &)> change)
{
    if (const Result<void> checked = checkRead(); !checked)
        return checked;
    std::vector<UnreadablePart> unreadable;
    const auto outcome = m_organization.change([&](Organization &organization) {
        unreadable = unreadableParts(m_preferences);
        return change(organization);
    });
    // Else one that was not found for that reason passes for one that does not exist.
    if (const Result<void> checked = checkRead(); !checked)
        return checked;
    if (!outcome)
        return tl::unexpected(outcome.error());
    if (const Result<void> written = checkWritten(); !written)
        return written;
    for (const UnreadablePart &each : replacedParts(unreadable, outcome->edit))
        warn(textOfKept(each, m_preferences));
    return {};
}

Result<void> UserOrganization::checkRead() const
{
    for (const FilePath &aside : preferencesAside(m_file)) {
        if (std::find(m_asideBefore.begin(), m_asideBefore.end(), aside) == m_asideBefore.end())
            return failure(ErrorKind::malformed,
                           Texts::tr("%1 could not be read and was moved to %2")
                               .arg(m_file.displayText(), aside.displayText()));
    }
    // Where there are none yet, and none can be made, nobody has sorted anything.
    if (!m_preferences.hasMissedValues() || isAbsent(m_file))
        return {};
    const PreferenceStoreStatus status = m_preferences.status();
    if (areWhole(status, m_file))
        return {};
    return tl::unexpected(failureOf(status, Texts::tr("the preferences could not be read")));
}

Result<void> UserOrganization::checkWritten() const
{
    const PreferenceStoreStatus status = m_preferences.status();
    if (status.waitingChanges == 0)
        return {};
    return tl::unexpected(failureOf(status, Texts::tr("the preferences could not be written")));
}

} // namespace lorva::cli
