// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#include "cli/UserOrganization.h"

#include "cli/PreferenceKeys.h"
#include "platform/linux/XdgFolders.h"

#include <sys/stat.h>

namespace lorva::cli {

namespace {

/// Another process writes for milliseconds; a person at a terminal rather waits than tries again.
constexpr std::chrono::seconds kPatience(5);

tl::unexpected<Error> unreadable(const QString &key, const QString &reason)
{
    return failure(
        ErrorKind::malformed,
        QStringLiteral("the preference %1 cannot be read (%2); lorvactl doctor tells more")
            .arg(key, reason));
}

} // namespace

UserOrganization::UserOrganization()
    : m_preferences(xdgFolders().applicationSupport, kPatience)
    , m_collections(m_preferences)
    , m_styles(m_preferences)
    , m_foundries(m_preferences)
    , m_displaySettings(m_preferences)
    , m_organization(m_preferences, m_collections, m_styles, m_foundries)
{
}

Result<Organization> UserOrganization::load()
{
    if (const Result<void> checked = checkReadable(); !checked)
        return tl::unexpected(checked.error());
    for (const KnownPreference &known : knownPreferences()) {
        if (!known.isOrganization)
            continue;
        if (const Result<void> checked = checkStored(known, m_preferences); !checked)
            return unreadable(known.key, checked.error().detail);
    }
    return m_organization.load();
}

/// A home that cannot be written is readable; a file that gives nothing for want of permission, or
/// for a lock, must not pass for an empty organisation.
Result<void> UserOrganization::checkReadable() const
{
    const PreferenceStoreStatus status = m_preferences.status();
    struct stat info = {};
    const bool isThere = status.file && ::stat(status.file->c_str(), &info) == 0;
    if (status.failure && status.entries.empty() && isThere && info.st_size > 0)
        return tl::unexpected(*status.failure);
    return {};
}

Result<void> UserOrganization::change(std::function<Result<void>(Organization &)> change)
{
    const auto outcome = m_organization.change(std::move(change));
    return outcome ? checkWritten() : tl::unexpected(outcome.error());
}

Result<void> UserOrganization::checkWritten() const
{
    const PreferenceStoreStatus status = m_preferences.status();
    if (status.waitingChanges == 0)
        return {};
    return status.failure
        ? tl::unexpected(*status.failure)
        : failure(ErrorKind::ioFailure, QStringLiteral("the preferences could not be written"));
}

} // namespace lorva::cli
