// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#pragma once

#include "platform/FileDescriptor.h"
#include "platform/linux/WatchBook.h"

#include <QObject>

#include <condition_variable>
#include <ctime>
#include <mutex>
#include <set>
#include <vector>

namespace lorva {

/// What a folder watcher and its two threads share: one that looks at folders and may hang there,
/// and one that reads the kernel's notices and never does.
///
/// Lives until the last of the three has gone. Everything but the constants is touched under the
/// lock, which nobody holds while a file system may take its time.
struct FolderWatchState
{
    /// Changes are told of so long after the first of them.
    static constexpr int kGatherMs = 100;

    explicit FolderWatchState(int mostWatchesAllowed);

    // The rest is called with the lock held.

    /// The folder may be different; the reader will tell.
    void noteChange(const FilePath &folder);
    void noteAllChanges();
    /// Where the folder is watched has to be found out anew.
    void noteStale(const FilePath &folder);
    void noteAllStale();
    bool hasChanges() const { return isAllChanged || !changed.empty(); }
    bool hasStale() const { return hasNewFolders || isAllStale || !stale.empty(); }
    /// The folder is no longer watched in its place.
    void forget(const FilePath &folder);
    void dropWatch(int watch) const;
    void wakeReader() const;

    const int mostWatches;
    /// Not open where the system has no more of them.
    const FileDescriptor inotify;
    const FileDescriptor wake;

    std::mutex mutex;
    std::condition_variable hasWork;
    bool isStopping = false;

    std::set<FilePath> wanted;
    /// When they were wanted.
    timespec since{};
    bool hasNewFolders = false;
    std::set<FilePath> stale;
    bool isAllStale = false;

    WatchBook book;
    bool isComplete = false;

    std::set<FilePath> changed;
    bool isAllChanged = false;
    /// What was handed to the watcher and it has not told yet.
    std::set<FilePath> told;
    bool isAllTold = false;
    /// The watcher; none when it has gone.
    QObject *receiver = nullptr;
};

} // namespace lorva
