// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#include "install/WatchedFolderStore.h"

#include "base/SystemError.h"
#include "install/FolderEntries.h"
#include "model/stores/StoredValue.h"

#include <QCoreApplication>
#include <QUuid>

#include <algorithm>
#include <memory>

#include <cerrno>

#include <sys/stat.h>

namespace lorva {

namespace {

struct Texts
{
    Q_DECLARE_TR_FUNCTIONS(WatchedFolderStore)
};

using Folders = std::vector<WatchedFolder>;

/// The stored list as a transaction finds it, and how it puts it back.
class StoredFolders
{
public:
    StoredFolders(PreferenceStore &defaults, const QString &key)
        : m_defaults(defaults)
        , m_key(key)
        , m_stored(storedJson<Folders>(defaults, key))
    {
    }

    Folders list() const { return m_stored.value_or(Folders()); }
    void replace(const Folders &folders)
    {
        if (folders != list())
            storeJson(m_defaults, m_key, folders, storedState(m_stored.has_value()));
    }

private:
    PreferenceStore &m_defaults;
    const QString &m_key;
    const std::optional<Folders> m_stored;
};

bool holds(const Folders &folders, const FilePath &path)
{
    return std::ranges::count(folders, path, &WatchedFolder::lastKnownPath) > 0;
}

WatchedFolder makeRecord(const FilePath &path)
{
    return {QUuid::createUuid().toString(QUuid::WithoutBraces), {}, path};
}

/// One record for each different folder.
Folders recordsFor(const std::vector<FilePath> &folders)
{
    Folders records;
    for (const FilePath &folder : folders) {
        if (folder.isUtf8() && !holds(records, folder))
            records.push_back(makeRecord(folder));
    }
    return records;
}

} // namespace

WatchedFolderStore::WatchedFolderStore(PreferenceStore &defaults, QString key)
    : m_defaults(defaults)
    , m_key(std::move(key))
{
}

std::vector<WatchedFolder> WatchedFolderStore::load() const
{
    return storedJson<Folders>(m_defaults, m_key).value_or(Folders());
}

void WatchedFolderStore::save(const std::vector<WatchedFolder> &folders)
{
    const auto isText = [](const WatchedFolder &each) { return each.lastKnownPath.isUtf8(); };
    if (!std::ranges::all_of(folders, isText))
        return;
    m_defaults.inTransaction(
        [&defaults = m_defaults, key = m_key, folders] { storeJson(defaults, key, folders); });
}

std::vector<WatchedFolder> WatchedFolderStore::add(const std::vector<FilePath> &resolvedFolders)
{
    // The transaction may run again later: ids are made only once.
    const Folders wanted = recordsFor(resolvedFolders);
    if (wanted.empty())
        return {};
    const auto added = std::make_shared<Folders>();
    m_defaults.inTransaction([&defaults = m_defaults, key = m_key, wanted, added] {
        StoredFolders stored(defaults, key);
        Folders folders = stored.list();
        added->clear();
        std::ranges::copy_if(wanted, std::back_inserter(*added), [&](const WatchedFolder &each) {
            return !holds(folders, each.lastKnownPath);
        });
        folders.insert(folders.end(), added->begin(), added->end());
        stored.replace(folders);
    });
    return *added;
}

std::optional<WatchedFolder> WatchedFolderStore::remove(const QString &id)
{
    const auto removed = std::make_shared<std::optional<WatchedFolder>>();
    m_defaults.inTransaction([&defaults = m_defaults, key = m_key, id, removed] {
        StoredFolders stored(defaults, key);
        Folders folders = stored.list();
        const auto place = std::ranges::find(folders, id, &WatchedFolder::id);
        removed->reset();
        if (place == folders.end())
            return;
        *removed = *place;
        folders.erase(place);
        stored.replace(folders);
    });
    return *removed;
}

Result<FilePath> resolvedFolder(const FilePath &folder)
{
    struct stat info;
    const std::optional<FilePath> path = realPath(folder);
    if (!path || ::stat(path->c_str(), &info) != 0)
        return systemFailure(errno, FileAction::find, folder);
    if (!S_ISDIR(info.st_mode))
        return failure(ErrorKind::notRegularFile,
                       Texts::tr("%1 is no folder").arg(folder.displayText()));
    return *path;
}

} // namespace lorva
