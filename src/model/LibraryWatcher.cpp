// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT

#include "model/LibraryWatcher.h"

#include "install/FolderWalker.h"
#include "platform/ThreadPriority.h"

#include <algorithm>

namespace lorva {

namespace {

/// File systems note the time of the kernel's last tick.
constexpr std::chrono::milliseconds kFileTimeLag{20};

std::vector<FilePath> rootsOf(std::vector<FilePath> watchedFolders, const PlatformFolders &folders)
{
    std::vector<FilePath> roots = std::move(watchedFolders);
    roots.push_back(folders.userFonts);
    roots.push_back(folders.allUsersFonts);
    roots.insert(roots.end(), folders.systemFonts.begin(), folders.systemFonts.end());
    std::erase_if(roots, [](const FilePath &root) { return root.bytes().isEmpty(); });
    return roots;
}

/// The roots, also those that are not there, and what lies below them.
std::vector<FilePath> foldersBelow(const std::vector<FilePath> &roots, const FilePath &ownFolder,
                                   const std::stop_token &stop)
{
    FolderWalker walker(stop);
    for (const FilePath &root : roots)
        walker.walk(root);
    std::set<FilePath> folders(roots.begin(), roots.end());
    folders.insert(walker.folders().begin(), walker.folders().end());
    // Each load writes there.
    if (!ownFolder.bytes().isEmpty()) {
        std::erase_if(folders, [&](const FilePath &folder) {
            return folder == ownFolder || folder.isInside(ownFolder);
        });
    }
    return {folders.begin(), folders.end()};
}

FolderMarks marksOf(const std::vector<FilePath> &folders, const std::stop_token &stop)
{
    FolderMarks marks;
    for (const FilePath &folder : folders) {
        if (stop.stop_requested())
            break;
        marks.emplace(folder, folderMark(folder));
    }
    return marks;
}

/// Other folders stand in its place than were known: a volume came or went.
bool isReplaced(const FolderMarks &known, const FilePath &folder, const FolderMark &mark)
{
    const auto found = known.find(folder);
    return found != known.end() && found->second.identity != mark.identity;
}

bool isOther(const FolderMarks &known, const FilePath &folder, const FolderMark &mark)
{
    const auto found = known.find(folder);
    return found == known.end() || found->second.content != mark.content;
}

} // namespace

LibraryWatcher::LibraryWatcher(std::unique_ptr<FolderWatcher> watcher, PlatformFolders folders,
                               QObject *parent)
    : QObject(parent)
    , m_watcher(std::move(watcher))
    , m_folders(std::move(folders))
{
    m_pool.setObjectName(QStringLiteral("vantrel.lorva.library-watcher"));
    m_pool.setMaxThreadCount(1);
    connect(m_watcher.get(), &FolderWatcher::foldersChanged, this, &LibraryWatcher::take);
}

bool LibraryWatcher::isComplete() const
{
    return m_watcher->isComplete() && !m_isBusy;
}

void LibraryWatcher::watch(std::vector<FilePath> watchedFolders, Time since)
{
    m_run.cancel();
    m_isBusy = true;
    m_since = since;
    const auto find = [roots = rootsOf(std::move(watchedFolders), m_folders),
                       own = m_folders.applicationSupport](const std::stop_token &stop) {
        lowerThisThreadsPriority();
        return foldersBelow(roots, own, stop);
    };
    m_run = runThen(m_pool, this, find, [this](const std::vector<FilePath> &folders) {
        // Before they are looked at: a change is seen by one or by the other.
        m_watcher->setFolders(folders);
        takeMarks(folders);
    });
}

void LibraryWatcher::takeMarks(const std::vector<FilePath> &folders)
{
    const auto work = [folders](const std::stop_token &stop) { return marksOf(folders, stop); };
    m_run = runThen(m_pool, this, work, [this](FolderMarks marks) { judge(std::move(marks)); });
}

/// What changed before the reading began was read; what changed later may have been missed, and of
/// what was exchanged as a whole nobody knows when.
void LibraryWatcher::judge(FolderMarks marks)
{
    const bool isLate = std::ranges::any_of(marks, [this](const auto &each) {
        const auto &[folder, mark] = each;
        return isReplaced(m_marks, folder, mark)
            || (isOther(m_marks, folder, mark) && mark.lastChange >= m_since - kFileTimeLag);
    });
    m_marks = std::move(marks);
    m_isBusy = false;
    look();
    if (isLate)
        Q_EMIT libraryChanged();
}

void LibraryWatcher::take(const std::vector<FilePath> &folders)
{
    m_noticed.insert(folders.begin(), folders.end());
    m_isAllNoticed = m_isAllNoticed || folders.empty();
    look();
}

void LibraryWatcher::look()
{
    if (m_isBusy || (m_noticed.empty() && !m_isAllNoticed))
        return;
    m_isBusy = true;
    std::vector<FilePath> folders;
    for (const auto &[folder, mark] : m_marks) {
        if (m_isAllNoticed || m_noticed.contains(folder))
            folders.push_back(folder);
    }
    m_noticed.clear();
    m_isAllNoticed = false;
    const auto work = [folders](const std::stop_token &stop) { return marksOf(folders, stop); };
    m_run = runThen(m_pool, this, work, [this](const FolderMarks &marks) {
        m_isBusy = false;
        const bool hasChanged = std::ranges::any_of(
            marks, [this](const auto &each) { return isOther(m_marks, each.first, each.second); });
        // The scan that this asks for will see them so; if they then become what they were, that is
        // a change, too.
        for (const auto &[folder, mark] : marks)
            m_marks[folder] = mark;
        look();
        if (hasChanged)
            Q_EMIT libraryChanged();
    });
}

} // namespace lorva
