// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#pragma once

#include "platform/linux/FolderWatchState.h"
#include "platform/linux/MountTable.h"

#include <memory>
#include <unordered_map>

namespace lorva {

/// Gives every folder its watch: its own, or that of the nearest folder above it that exists.
///
/// Thread: its own. Looks at folders and so may hang; local ones come first.
class WatchKeeper
{
public:
    explicit WatchKeeper(std::shared_ptr<FolderWatchState> state);

    /// Works until the watcher has gone.
    void run();

private:
    struct Wanted
    {
        timespec since{};
        bool wasPlaced = false;
        bool isRemote = false;
    };

    bool waitForWork();
    void takeFolders();
    void planWork();
    bool isInterrupted(size_t next);
    void place(const FilePath &folder);
    bool isSettled(const FilePath &folder, const WatchBook::Place &place);
    WatchBook::Place nearestPlace(const FilePath &folder);
    void record(const FilePath &folder, const WatchBook::Place &place);
    int addWatch(const FilePath &folder);
    void finish();

    const std::shared_ptr<FolderWatchState> m_state;
    MountTable m_mounts;
    std::vector<FilePath> m_order;
    std::unordered_map<FilePath, Wanted> m_wanted;
    /// What the present round looks at, and the watches that it got.
    std::vector<FilePath> m_work;
    std::vector<int> m_added;
};

} // namespace lorva
