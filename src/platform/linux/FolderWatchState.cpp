// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#include "platform/linux/FolderWatchState.h"

#include <tuple>

#include <sys/eventfd.h>
#include <sys/inotify.h>

namespace lorva {

FolderWatchState::FolderWatchState(int mostWatchesAllowed)
    : mostWatches(mostWatchesAllowed)
    , inotify(::inotify_init1(IN_NONBLOCK | IN_CLOEXEC))
    , wake(::eventfd(0, EFD_NONBLOCK | EFD_CLOEXEC))
{
}

void FolderWatchState::noteChange(const FilePath &folder)
{
    if (!hasChanges())
        wakeReader();
    changed.insert(folder);
}

void FolderWatchState::noteAllChanges()
{
    if (!hasChanges())
        wakeReader();
    isAllChanged = true;
}

void FolderWatchState::noteStale(const FilePath &folder)
{
    stale.insert(folder);
    hasWork.notify_one();
}

void FolderWatchState::noteAllStale()
{
    isAllStale = true;
    hasWork.notify_one();
}

void FolderWatchState::forget(const FilePath &folder)
{
    dropWatch(book.remove(folder));
}

void FolderWatchState::dropWatch(int watch) const
{
    if (watch != WatchBook::kNoWatch)
        ::inotify_rm_watch(inotify.number(), watch);
}

void FolderWatchState::wakeReader() const
{
    std::ignore = ::eventfd_write(wake.number(), 1);
}

} // namespace lorva
