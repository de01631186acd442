// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#include "platform/linux/NoticeReader.h"

#include "platform/linux/MountTable.h"

#include <QCoreApplication>
#include <QEvent>

#include <array>
#include <cerrno>
#include <cstring>
#include <tuple>
#include <utility>

#include <fcntl.h>
#include <poll.h>
#include <sys/eventfd.h>
#include <sys/inotify.h>
#include <unistd.h>

namespace lorva {

namespace {

constexpr size_t kBufferBytes = 65536;
/// Where the system gives no descriptor to be woken by.
constexpr int kIdleMsWithoutWaking = 500;

} // namespace

NoticeReader::NoticeReader(std::shared_ptr<FolderWatchState> state)
    : m_state(std::move(state))
    , m_mounts(::open(MountTable::kMountInfoPath, O_RDONLY | O_CLOEXEC))
{
}

void NoticeReader::run()
{
    while (wait()) {
        readNotices();
        tellInTime();
    }
}

/// False when it is time to end.
bool NoticeReader::wait()
{
    // Descriptors that are not open are passed over.
    std::array<pollfd, 3> sources{pollfd{m_state->inotify.number(), POLLIN, 0},
                                  pollfd{m_state->wake.number(), POLLIN, 0},
                                  pollfd{m_mounts.number(), POLLPRI, 0}};
    const int idleMs = m_state->wake.isOpen() ? -1 : kIdleMsWithoutWaking;
    // A millisecond more, so that it does not wake just before the time.
    const int timeoutMs = m_untilTelling ? int(m_untilTelling->remainingTime()) + 1 : idleMs;
    const int ready = ::poll(sources.data(), sources.size(), timeoutMs);
    eventfd_t count = 0;
    std::ignore = ::eventfd_read(m_state->wake.number(), &count);
    const std::lock_guard lock(m_state->mutex);
    if (ready > 0 && (sources[2].revents & (POLLPRI | POLLERR)) != 0) {
        m_state->noteAllChanges();
        m_state->noteAllStale();
    }
    return !m_state->isStopping;
}

void NoticeReader::readNotices()
{
    alignas(inotify_event) std::array<char, kBufferBytes> buffer;
    const ssize_t got = ::read(m_state->inotify.number(), buffer.data(), buffer.size());
    const std::lock_guard lock(m_state->mutex);
    for (ssize_t at = 0; at < got;) {
        inotify_event event;
        std::memcpy(&event, buffer.data() + at, sizeof event);
        const char *const name = buffer.data() + at + sizeof event;
        take(event, std::string_view(name, ::strnlen(name, event.len)));
        at += ssize_t(sizeof event + event.len);
    }
}

void NoticeReader::take(const inotify_event &event, std::string_view name)
{
    if ((event.mask & IN_Q_OVERFLOW) != 0) {
        m_state->noteAllChanges();
        m_state->noteAllStale();
        return;
    }
    for (const FilePath &folder : m_state->book.foldersOf(event.wd)) {
        const std::optional<WatchBook::Place> place = m_state->book.placeOf(folder);
        if (!place)
            continue;
        if ((event.mask & (IN_IGNORED | IN_DELETE_SELF | IN_UNMOUNT)) != 0)
            dropPlace(folder);
        else if ((event.mask & IN_MOVE_SELF) != 0)
            dropPlacesInside(place->path);
        else
            takeEntryNotice(event, name, folder, *place);
    }
}

void NoticeReader::takeEntryNotice(const inotify_event &event, std::string_view name,
                                   const FilePath &folder, const WatchBook::Place &place)
{
    const FilePath entry = place.path.child(QByteArrayView(name.data(), qsizetype(name.size())));
    if (place.path == folder) {
        if (!name.starts_with('.'))
            m_state->noteChange(folder);
    } else if (name.empty() || folder.isInside(entry)) {
        m_state->noteStale(folder);
    }
    // The watches of folders go with them to where they are moved.
    if ((event.mask & IN_MOVED_FROM) != 0 && (event.mask & IN_ISDIR) != 0)
        dropPlacesInside(entry);
}

void NoticeReader::dropPlacesInside(const FilePath &path)
{
    for (const FilePath &folder : m_state->book.foldersPlacedInside(path))
        dropPlace(folder);
}

void NoticeReader::dropPlace(const FilePath &folder)
{
    const std::optional<WatchBook::Place> place = m_state->book.placeOf(folder);
    if (place && place->path == folder)
        m_state->noteChange(folder);
    m_state->forget(folder);
    m_state->noteStale(folder);
}

void NoticeReader::tellInTime()
{
    const std::lock_guard lock(m_state->mutex);
    if (!m_state->hasChanges())
        return;
    if (!m_untilTelling)
        m_untilTelling.emplace(FolderWatchState::kGatherMs);
    if (!m_untilTelling->hasExpired())
        return;
    m_untilTelling.reset();
    m_state->told.merge(std::exchange(m_state->changed, {}));
    m_state->isAllTold |= std::exchange(m_state->isAllChanged, false);
    if (m_state->receiver)
        QCoreApplication::postEvent(m_state->receiver, new QEvent(QEvent::User));
}

} // namespace lorva
