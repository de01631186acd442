// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#include "platform/linux/WatchKeeper.h"

#include <algorithm>
#include <cerrno>
#include <cstdlib>
#include <utility>

#include <sys/inotify.h>
#include <sys/stat.h>

namespace lorva {

namespace {

constexpr quint32 kEvents = IN_CREATE | IN_DELETE | IN_MOVED_FROM | IN_MOVED_TO | IN_CLOSE_WRITE
    | IN_ATTRIB | IN_DELETE_SELF | IN_MOVE_SELF | IN_ONLYDIR;
/// A folder that comes and goes faster than it can be looked at is looked at again later.
constexpr int kMostAttempts = 16;

/// The system gives no more watches; otherwise the folder is as good as missing.
bool isRefusal(int code)
{
    return code == ENOSPC || code == ENOMEM || code == EMFILE || code == EBADF || code == EINVAL;
}

/// The folder directly in `above` that leads to `folder`.
FilePath nextTowards(const FilePath &above, const FilePath &folder)
{
    const qsizetype start = above.bytes().size() + (above.bytes().endsWith('/') ? 0 : 1);
    const qsizetype end = folder.bytes().indexOf('/', start);
    return end < 0 ? folder : FilePath(folder.bytes().first(end));
}

FilePath withLinksFollowed(const FilePath &path)
{
    struct FreeMemory
    {
        void operator()(char *memory) const { std::free(memory); }
    };
    const std::unique_ptr<char, FreeMemory> real(::realpath(path.c_str(), nullptr));
    return real ? FilePath(QByteArray(real.get())) : path;
}

bool hasChangedSince(const FilePath &folder, const timespec &since)
{
    struct stat info;
    return ::stat(folder.c_str(), &info) == 0
        && std::pair(info.st_mtim.tv_sec, info.st_mtim.tv_nsec)
        >= std::pair(since.tv_sec, since.tv_nsec);
}

} // namespace

WatchKeeper::WatchKeeper(std::shared_ptr<FolderWatchState> state)
    : m_state(std::move(state))
{
}

void WatchKeeper::run()
{
    while (waitForWork()) {
        for (size_t i = 0; i < m_work.size() && !isInterrupted(i); ++i)
            place(m_work[i]);
        finish();
    }
}

bool WatchKeeper::waitForWork()
{
    // What is mounted is asked first and without the lock; it costs less than the round.
    {
        std::unique_lock lock(m_state->mutex);
        m_state->hasWork.wait(lock, [this] { return m_state->isStopping || m_state->hasStale(); });
        if (m_state->isStopping)
            return false;
    }
    m_mounts = MountTable::current();
    const std::lock_guard lock(m_state->mutex);
    if (std::exchange(m_state->hasNewFolders, false))
        takeFolders();
    planWork();
    return true;
}

void WatchKeeper::takeFolders()
{
    for (const FilePath &folder : m_state->book.folders()) {
        if (!m_state->wanted.contains(folder))
            m_state->forget(folder);
    }
    std::erase_if(m_wanted,
                  [this](const auto &entry) { return !m_state->wanted.contains(entry.first); });
    for (const FilePath &folder : m_state->wanted)
        m_wanted.try_emplace(folder, Wanted{m_state->since});
    m_order.assign(m_state->wanted.begin(), m_state->wanted.end());
    // A volume that hangs shall hang alone.
    std::stable_partition(m_order.begin(), m_order.end(),
                          [this](const FilePath &folder) { return !m_mounts.isRemote(folder); });
}

void WatchKeeper::planWork()
{
    const bool isAllStale = std::exchange(m_state->isAllStale, false);
    const std::set<FilePath> stale = std::exchange(m_state->stale, {});
    m_work.clear();
    for (const FilePath &folder : m_order) {
        if (isAllStale || stale.contains(folder) || !m_state->book.placeOf(folder))
            m_work.push_back(folder);
    }
}

/// The rest of the round is left for the next one.
bool WatchKeeper::isInterrupted(size_t next)
{
    const std::lock_guard lock(m_state->mutex);
    if (!m_state->isStopping && !m_state->hasNewFolders)
        return false;
    m_state->stale.insert(m_work.begin() + qsizetype(next), m_work.end());
    return true;
}

void WatchKeeper::place(const FilePath &folder)
{
    for (int attempt = 0; attempt < kMostAttempts; ++attempt) {
        const WatchBook::Place found = nearestPlace(folder);
        if (found.watch < 0) {
            const std::lock_guard lock(m_state->mutex);
            m_state->forget(folder);
            return;
        }
        m_wanted[folder].isRemote = m_mounts.isRemote(withLinksFollowed(found.path));
        record(folder, found);
        if (isSettled(folder, found))
            return;
    }
    const std::lock_guard lock(m_state->mutex);
    m_state->noteStale(folder);
}

/// What came or went before the reader knew whom the watch is for, nobody will tell.
bool WatchKeeper::isSettled(const FilePath &folder, const WatchBook::Place &place)
{
    if (addWatch(place.path) != place.watch)
        return false;
    return place.path == folder || addWatch(nextTowards(place.path, folder)) < 0;
}

WatchBook::Place WatchKeeper::nearestPlace(const FilePath &folder)
{
    FilePath path = folder;
    int watch = addWatch(path);
    while (watch < 0 && !isRefusal(-watch) && path.bytes().size() > 1) {
        path = path.parent();
        watch = addWatch(path);
    }
    return {watch, path};
}

void WatchKeeper::record(const FilePath &folder, const WatchBook::Place &place)
{
    Wanted &wanted = m_wanted[folder];
    const bool isThere = place.path == folder;
    const bool isLate = !wanted.wasPlaced && isThere && hasChangedSince(folder, wanted.since);
    const std::lock_guard lock(m_state->mutex);
    const bool isOther = wanted.wasPlaced && isThere && m_state->book.placeOf(folder) != place;
    m_state->dropWatch(m_state->book.set(folder, place));
    wanted.wasPlaced = true;
    if (isLate || isOther)
        m_state->noteChange(folder);
}

/// The watch, or the system's error number, negative.
int WatchKeeper::addWatch(const FilePath &folder)
{
    const int watch = ::inotify_add_watch(m_state->inotify.number(), folder.c_str(), kEvents);
    if (watch < 0)
        return -errno;
    const std::lock_guard lock(m_state->mutex);
    if (!m_state->book.hasWatch(watch)
        && m_state->book.watchCount() >= size_t(std::max(m_state->mostWatches, 0))) {
        m_state->dropWatch(watch);
        return -ENOSPC;
    }
    m_added.push_back(watch);
    return watch;
}

void WatchKeeper::finish()
{
    const std::lock_guard lock(m_state->mutex);
    for (const int watch : std::exchange(m_added, {})) {
        if (!m_state->book.hasWatch(watch))
            m_state->dropWatch(watch);
    }
    m_state->isComplete =
        !m_state->hasNewFolders && std::ranges::all_of(m_order, [this](const FilePath &folder) {
            return m_state->book.placeOf(folder) && !m_wanted[folder].isRemote;
        });
}

} // namespace lorva
