// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#pragma once

#include "platform/linux/FolderWatchState.h"

#include <QDeadlineTimer>

#include <memory>
#include <optional>
#include <string_view>

struct inotify_event;

namespace lorva {

/// Reads the kernel's notices, finds out which folders they are about, and tells the watcher in
/// batches. Thread: its own; looks at no folder.
class NoticeReader
{
public:
    explicit NoticeReader(std::shared_ptr<FolderWatchState> state);

    /// Works until the watcher has gone.
    void run();

private:
    bool wait();
    void readNotices();
    void take(const inotify_event &event, std::string_view name);
    void takeEntryNotice(const inotify_event &event, std::string_view name, const FilePath &folder,
                         const WatchBook::Place &place);
    void dropPlacesInside(const FilePath &path);
    void dropPlace(const FilePath &folder);
    void tellInTime();

    const std::shared_ptr<FolderWatchState> m_state;
    const FileDescriptor m_mounts;
    std::optional<QDeadlineTimer> m_untilTelling;
};

} // namespace lorva
