// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#include "cli/Library.h"

#include "base/Json.h"
#include "base/SystemError.h"
#include "cli/PreferenceLook.h"
#include "cli/Texts.h"
#include "install/WatchedFolderStore.h"
#include "platform/linux/FontconfigAvailableFonts.h"
#include "platform/linux/XdgFolders.h"

#include <cerrno>

#include <sys/stat.h>
#include <unistd.h>

namespace lorva::cli {

namespace {

tl::unexpected<Error> folderFailure(int code, const FilePath &folder)
{
    if (code == ENOENT)
        return failure(ErrorKind::notFound,
                       Texts::tr("there is no folder %1").arg(folder.displayText()));
    return systemFailure(code, FileAction::read, folder);
}

/// Looks without opening the preferences: a command that lists fonts makes, mends and locks
/// nothing.
Result<std::vector<WatchedFolder>> storedFolders()
{
    const PreferenceLook look = lookAtPreferences(xdgFolders().applicationSupport);
    if (!look.rows)
        return tl::unexpected(look.rows.error());
    const auto row = look.rows->find(WatchedFolderStore::defaultKey());
    if (row == look.rows->end())
        return {};
    const std::optional<PreferenceValue> value = preferenceOfRow(row->second);
    const QByteArray *const json = value ? std::get_if<QByteArray>(&*value) : nullptr;
    if (!json)
        return failure(ErrorKind::typeMismatch, Texts::tr("the stored value is of another type"));
    return decodeJson<std::vector<WatchedFolder>>(*json);
}

} // namespace

Result<std::vector<FilePath>> givenFolders(const Arguments &arguments)
{
    std::vector<FilePath> folders;
    for (const QByteArray &word : arguments.values("--folder")) {
        // "$UNSET" would else be the working folder.
        if (word.isEmpty())
            return failure(ErrorKind::usage, Texts::tr("--folder needs the name of a folder"));
        const FilePath folder = FilePath::absolute(word);
        struct stat info;
        if (::stat(folder.c_str(), &info) != 0)
            return folderFailure(errno, folder);
        if (!S_ISDIR(info.st_mode))
            return failure(ErrorKind::invalidValue,
                           Texts::tr("%1 is no folder").arg(folder.displayText()));
        if (::access(folder.c_str(), R_OK | X_OK) != 0)
            return folderFailure(errno, folder);
        folders.push_back(folder);
    }
    return folders;
}

std::vector<FilePath> withWatchedFolders(std::vector<FilePath> given, LookupTrouble trouble)
{
    const Result<std::vector<WatchedFolder>> stored = storedFolders();
    if (!stored && trouble == LookupTrouble::isTold)
        warn(Texts::tr("the watched folders cannot be read (%1); they are left out")
                 .arg(stored.error().detail));
    std::vector<FilePath> folders;
    for (const WatchedFolder &each : stored.value_or(std::vector<WatchedFolder>())) {
        if (FilePath folder = folderURL(each); !folder.isEmpty())
            folders.push_back(std::move(folder));
    }
    folders.insert(folders.end(), given.begin(), given.end());
    return folders;
}

FontCatalogLoader::Dependencies machineFonts(CacheUse cacheUse)
{
    const PlatformFolders folders = xdgFolders();
    return {std::make_shared<FontconfigAvailableFonts>(folders.registeredLinks()),
            folders.parseCache(), cacheUse == CacheUse::readAndSave};
}

FontCatalogLoader::ProgressCallback ScanProgress::callback()
{
    if (!m_line.isShown())
        return nullptr;
    return [this](const FontScanPhase &phase) { show(phase); };
}

void ScanProgress::show(const FontScanPhase &phase)
{
    const auto now = std::chrono::steady_clock::now();
    if (m_shownKind == phase.kind && now - m_shownAt < std::chrono::milliseconds(50))
        return;
    m_shownKind = phase.kind;
    m_shownAt = now;
    m_line.show(phase.text());
}

} // namespace lorva::cli
