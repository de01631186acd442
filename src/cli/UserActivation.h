// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#pragma once

#include "cli/UserOrganization.h"
#include "install/FontInstallationService.h"
#include "install/WatchedFolderStore.h"

#include <memory>

namespace lorva::cli {

struct ActivationRequest;

/// What this user has switched on, opened for one command. Thread: main, whose event loop runs end
/// in.
class UserActivation
{
public:
    enum class Purpose { looks, changes };
    explicit UserActivation(Purpose purpose);
    ~UserActivation();

    UserOrganization &user() { return m_user; }
    WatchedFolderStore &watchedFolders() { return m_watchedFolders; }
    FontInstallationService &service() { return *m_service; }
    const PlatformFolders &folders() const { return m_folders; }

    /// For commands that only show these parts: fails when the preferences, or one of the parts in
    /// them, cannot be read.
    Result<void> checkShown(std::initializer_list<OrganizationPart> shown);
    /// For commands that go on without what cannot be read: fails when that are the preferences,
    /// and has a line on standard error for each of these parts.
    Result<void> checkChanged(std::initializer_list<OrganizationPart> changed);

    /// Where the stored watched folders are, and `more`.
    std::vector<FilePath> foldersToScan(const std::vector<FilePath> &more) const;

    /// Brings books and disk into line, so that a command begins with what is there; only looks
    /// when that is the purpose.
    void reconcile();
    /// Calls `start` and returns when the run that it begins has ended.
    InstallationOutcome run(const std::function<void(FontInstallationService::Done)> &start);
    /// Fails when changes could not be written: they would end with this process.
    Result<void> finishWriting();

private:
    const PlatformFolders m_folders;
    UserOrganization m_user;
    WatchedFolderStore m_watchedFolders;
    std::unique_ptr<FontInstallationService> m_service;
};

/// A dry run looks only.
UserActivation::Purpose purposeOf(const ActivationRequest &request);

} // namespace lorva::cli
