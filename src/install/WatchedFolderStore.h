// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#pragma once

#include "base/Result.h"
#include "install/WatchedFolder.h"

#include <vector>

namespace lorva {

class PreferenceStore;

/// The user's watched folders, in the user's order, kept in the preferences.
///
/// Holds the preference store, which outlives it. Thread: main.
class WatchedFolderStore
{
public:
    static QString defaultKey() { return QStringLiteral("vantrel.merid.watchedFolders"); }

    explicit WatchedFolderStore(PreferenceStore &defaults, QString key = defaultKey());

    /// Empty when nothing is stored or that does not decode.
    std::vector<WatchedFolder> load() const;
    /// Replaces the list. What does not decode is kept first. A list that has no JSON form, because
    /// a path is no UTF-8, is not written.
    void save(const std::vector<WatchedFolder> &folders);

    /// Adds those folders that are not in the stored list yet, in one transaction, and gives the
    /// records added. The paths have their links resolved (resolvedFolder()): the disk is not
    /// looked at here. Folders whose path is no UTF-8 are left out.
    std::vector<WatchedFolder> add(const std::vector<FilePath> &resolvedFolders);
    /// Gives the record that has gone; nothing when there was none of that id.
    std::optional<WatchedFolder> remove(const QString &id);

private:
    PreferenceStore &m_defaults;
    const QString m_key;
};

/// The path with links resolved. Fails with notFound, notRegularFile (it is no folder) or as the
/// system does. Thread: any; may take long on a slow volume.
Result<FilePath> resolvedFolder(const FilePath &folder);

} // namespace lorva
