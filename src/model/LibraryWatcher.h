// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#pragma once

#include "base/RunThen.h"
#include "model/FolderMark.h"
#include "platform/FolderWatcher.h"
#include "platform/PlatformFolders.h"

#include <QObject>
#include <QThreadPool>

#include <chrono>
#include <memory>
#include <set>
#include <vector>

namespace lorva {

/// Notices when the fonts of the library's folders are no longer those that were last read.
///
/// Watches every folder below the watched folders and the font folders, but for this program's own.
/// A notice counts only if what the library sees of the folder is different: files that are no
/// fonts, and our own book-keeping, ask for nothing. Owns: the folder watcher and a thread that
/// looks at folders, so that one that hangs blocks nobody. Thread: main.
class LibraryWatcher final : public QObject
{
    Q_OBJECT
public:
    using Time = std::chrono::system_clock::time_point;

    LibraryWatcher(std::unique_ptr<FolderWatcher> watcher, PlatformFolders folders,
                   QObject *parent = nullptr);

    /// What these folders, and the font folders, held is read, by a look that began at `since`.
    /// What has changed since then is told of, too. Returns at once.
    void watch(std::vector<FilePath> watchedFolders, Time since);
    /// False when changes may go unnoticed: then somebody has to look.
    bool isComplete() const;

Q_SIGNALS:
    void libraryChanged();

private:
    void takeMarks(const std::vector<FilePath> &folders);
    void judge(FolderMarks marks);
    void take(const std::vector<FilePath> &folders);
    void look();

    const std::unique_ptr<FolderWatcher> m_watcher;
    const PlatformFolders m_folders;
    Time m_since{};
    /// Every folder that is watched, as the library has read it or has been told to read it.
    FolderMarks m_marks;
    /// Notices that are not looked into yet: these folders, or all.
    std::set<FilePath> m_noticed;
    bool m_isAllNoticed = false;
    bool m_isBusy = false;
    RunHandle m_run;
    QThreadPool m_pool;
};

} // namespace lorva
