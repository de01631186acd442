// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#include "platform/linux/InotifyFolderWatcher.h"

#include "base/MainThread.h"
#include "platform/linux/FolderWatchState.h"
#include "platform/linux/NoticeReader.h"
#include "platform/linux/WatchKeeper.h"

#include <QLoggingCategory>

#include <ctime>
#include <system_error>
#include <thread>
#include <utility>

namespace lorva {

Q_LOGGING_CATEGORY(folderWatcherLog, "lorva.platform.watcher", QtWarningMsg)

namespace {

/// Without threads nothing is watched, and isComplete() says so.
template <class Worker>
void startOnOwnThread(const std::shared_ptr<FolderWatchState> &state)
{
    try {
        std::thread([state] { Worker(state).run(); }).detach();
    } catch (const std::system_error &error) {
        qCWarning(folderWatcherLog) << "cannot watch folders:" << error.what();
    }
}

/// The time as file systems note it, which is behind the exact one.
timespec coarseTime()
{
    timespec now{};
    ::clock_gettime(CLOCK_REALTIME_COARSE, &now);
    return now;
}

} // namespace

InotifyFolderWatcher::InotifyFolderWatcher(int mostWatches, QObject *parent)
    : FolderWatcher(parent)
    , m_state(std::make_shared<FolderWatchState>(mostWatches))
{
    m_state->receiver = this;
    startOnOwnThread<NoticeReader>(m_state);
    startOnOwnThread<WatchKeeper>(m_state);
}

InotifyFolderWatcher::~InotifyFolderWatcher()
{
    const std::lock_guard lock(m_state->mutex);
    m_state->receiver = nullptr;
    m_state->isStopping = true;
    m_state->hasWork.notify_one();
    m_state->wakeReader();
}

void InotifyFolderWatcher::setFolders(std::vector<FilePath> folders)
{
    LORVA_ASSERT_MAIN_THREAD();
    const std::lock_guard lock(m_state->mutex);
    m_state->wanted = {std::make_move_iterator(folders.begin()),
                       std::make_move_iterator(folders.end())};
    m_state->since = coarseTime();
    m_state->hasNewFolders = true;
    m_state->isComplete = false;
    m_state->hasWork.notify_one();
}

bool InotifyFolderWatcher::isComplete() const
{
    const std::lock_guard lock(m_state->mutex);
    return m_state->isComplete;
}

void InotifyFolderWatcher::customEvent(QEvent *)
{
    std::vector<FilePath> folders;
    bool isAll = false;
    {
        const std::lock_guard lock(m_state->mutex);
        isAll = std::exchange(m_state->isAllTold, false);
        for (const FilePath &folder : std::exchange(m_state->told, {})) {
            if (!isAll && m_state->wanted.contains(folder))
                folders.push_back(folder);
        }
    }
    if (isAll || !folders.empty())
        Q_EMIT foldersChanged(folders);
}

} // namespace lorva
