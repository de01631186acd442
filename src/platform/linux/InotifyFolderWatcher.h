// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#pragma once

#include "platform/FolderWatcher.h"

#include <memory>

namespace lorva {

struct FolderWatchState;

/// A FolderWatcher over the kernel's inotify, and over its list of mounts for volumes that come and
/// go.
///
/// Entries whose names begin with a dot count for nothing. Owns: a thread that adds the watches and
/// one that reads the notices; the destructor waits for neither, because the first may hang in a
/// folder. Until the watches are there, isComplete() is false; a folder in which something came or
/// went before that is told of. A folder on a file system of the network is watched for what this
/// machine does there, and never counts as complete. Unnoticed goes when a folder is renamed that
/// lies above the given ones and is not among them.
class InotifyFolderWatcher final : public FolderWatcher
{
    Q_OBJECT
public:
    static constexpr int kMostWatches = 65536;

    /// At most `mostWatches` (the system's own limit may be lower).
    explicit InotifyFolderWatcher(int mostWatches = kMostWatches, QObject *parent = nullptr);
    ~InotifyFolderWatcher() override;

    void setFolders(std::vector<FilePath> folders) override;
    bool isComplete() const override;

protected:
    /// News from the threads.
    void customEvent(QEvent *event) override;

private:
    const std::shared_ptr<FolderWatchState> m_state;
};

} // namespace lorva
