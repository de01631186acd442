// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT

// The user's watched folders. Only workers look at the disk: a volume that does not answer would
// stop the window.

#include "model/LorvaAppModel.h"

#include "base/RunThen.h"
#include "install/WatchedFontRegistrar.h"
#include "model/FolderLooks.h"
#include "platform/FontRegistrar.h"

#include <QCoreApplication>

#include <algorithm>

namespace lorva {

namespace {

struct Texts
{
    Q_DECLARE_TR_FUNCTIONS(LorvaAppModelFolders)
};

/// After it a folder counts as not there.
constexpr std::chrono::seconds kPatienceWithFolders{2};

/// Thread: worker.
std::optional<int> fontsIn(const std::optional<QSet<FilePath>> &files, const FilePath &folder)
{
    if (!files)
        return std::nullopt;
    return int(
        std::ranges::count_if(*files, [&](const FilePath &file) { return file.isInside(folder); }));
}

} // namespace

/// True if it is another list than before.
bool LorvaAppModel::readWatchedFolders()
{
    std::vector<WatchedFolder> stored = m_watchedFolderStore.load();
    return std::exchange(m_watchedFolders, stored) != stored;
}

/// The stored ones, then those of this run, each once.
std::vector<FilePath> LorvaAppModel::foldersToScan() const
{
    std::vector<FilePath> folders;
    const auto take = [&](FilePath folder) {
        if (!folder.bytes().isEmpty() && !std::ranges::count(folders, folder))
            folders.push_back(std::move(folder));
    };
    for (const WatchedFolder &folder : m_watchedFolders)
        take(folderURL(folder));
    if (m_givenFolders)
        std::ranges::for_each(m_givenFolders->resolvedFolders(), take);
    std::ranges::for_each(m_foldersForThisRun, take);
    return folders;
}

void LorvaAppModel::addFoldersForThisRun(const std::vector<FilePath> &folders)
{
    if (folders.empty())
        return;
    m_foldersForThisRun.insert(m_foldersForThisRun.end(), folders.begin(), folders.end());
    loadCatalog();
}

void LorvaAppModel::addWatchedFolders(std::vector<FilePath> folders,
                                      std::function<void(AddedFolders)> done)
{
    using Resolved = std::map<FilePath, Result<FilePath>>;
    const auto resolve = [folders = std::move(folders)](const std::stop_token &) {
        Resolved resolved;
        for (const FilePath &folder : folders)
            resolved.emplace(folder, resolvedFolder(folder));
        return std::pair(folders, std::move(resolved));
    };
    runThen(
        m_folderPool, this, resolve,
        [this, done = std::move(done)](const std::pair<std::vector<FilePath>, Resolved> &found) {
            AddedFolders added = addResolved(found.first, found.second);
            // Also for folders that were in the list: whoever adds them wants to see them.
            added.hasBegunScan = added.failures.size() < found.second.size();
            if (added.hasBegunScan)
                loadCatalog();
            if (done)
                done(std::move(added));
        });
}

AddedFolders LorvaAppModel::addResolved(const std::vector<FilePath> &order,
                                        const std::map<FilePath, Result<FilePath>> &resolved)
{
    AddedFolders added;
    std::vector<FilePath> wanted;
    for (const FilePath &folder : order) {
        const Result<FilePath> &path = resolved.at(folder);
        if (!path)
            added.failures.emplace(folder, path.error());
        else if (!path->isUtf8())
            added.failures.emplace(
                folder,
                Error{ErrorKind::invalidValue,
                      Texts::tr("%1 is no UTF-8 text and cannot be kept in the preferences")
                          .arg(path->displayText())});
        else
            wanted.push_back(*path);
    }
    added.records = m_watchedFolderStore.add(wanted);
    readWatchedFolders();
    return added;
}

Result<void> LorvaAppModel::removeWatchedFolder(const QString &id)
{
    const std::optional<WatchedFolder> removed = m_watchedFolderStore.remove(id);
    readWatchedFolders();
    if (!removed)
        return failure(ErrorKind::notFound,
                       Texts::tr("there is no watched folder with the id %1").arg(id));
    if (m_fontRegistrar) {
        const auto withdraw = [folder = folderURL(*removed),
                               registrar = m_fontRegistrar](const std::stop_token &stop) {
            WatchedFontRegistrar().unregisterFonts({folder}, *registrar, stop);
            return true;
        };
        runThen(m_folderPool, this, withdraw, [](bool) {});
    }
    loadCatalog();
    return {};
}

void LorvaAppModel::lookAtFolders(std::function<void(QHash<QString, FolderLook>)> done)
{
    if (!m_folderLooks)
        m_folderLooks = new FolderLooks(kPatienceWithFolders, canOpenFolder, this);
    std::vector<FilePath> paths;
    for (const WatchedFolder &folder : m_watchedFolders)
        paths.push_back(folderURL(folder));
    const auto count = [this, folders = m_watchedFolders,
                        done = std::move(done)](const QSet<FilePath> &there) {
        const auto work = [folders, there, catalog = m_catalog](const std::stop_token &) {
            QHash<QString, FolderLook> looks;
            for (const WatchedFolder &folder : folders) {
                const FilePath path = folderURL(folder);
                looks.insert(folder.id,
                             {there.contains(path), fontsIn(catalog->watchedFontURLs, path)});
            }
            return looks;
        };
        runThen(m_quietPool, this, work, done);
    };
    m_folderLooks->look(paths, count);
}

} // namespace lorva
