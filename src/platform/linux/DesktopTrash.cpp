// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#include "platform/linux/DesktopTrash.h"

#include "base/SystemError.h"
#include "platform/linux/TrashFolder.h"
#include "platform/linux/XdgFolders.h"

#include <QCoreApplication>

#include <cerrno>
#include <cstdlib>
#include <memory>
#include <optional>
#include <utility>

#include <sys/stat.h>
#include <unistd.h>

namespace lorva {

namespace {

struct Texts
{
    Q_DECLARE_TR_FUNCTIONS(DesktopTrash)
};

tl::unexpected<Error> hasNoTrash(const FilePath &file)
{
    return failure(
        ErrorKind::unsupported,
        Texts::tr("cannot move %1 to the Trash: its volume has none").arg(file.displayText()));
}

tl::unexpected<Error> trashFailure(int code, const FilePath &file)
{
    tl::unexpected<Error> failed = systemFailure(code, FileAction::moveToTrash, file);
    // That is about the note on the file; whoever calls is told what became of the file.
    if (failed.value().kind == ErrorKind::tooLarge)
        failed.value().kind = ErrorKind::ioFailure;
    return failed;
}

bool meansNoTrash(int code)
{
    return code == EACCES || code == EPERM || code == EROFS || code == ENOTDIR || code == EEXIST
        || code == ELOOP || code == EXDEV;
}

/// Nothing when `file` turns out to be on another volume than the Trash.
std::optional<Result<FilePath>> takeInto(const FilePath &trashPath, const FilePath &file,
                                         const FilePath &originalPath)
{
    const TrashFolder trash(trashPath);
    if (const int code = trash.ensureFolders())
        return meansNoTrash(code) ? hasNoTrash(file) : trashFailure(code, file);
    const tl::expected<FilePath, int> taken = trash.take(file, originalPath);
    if (taken)
        return *taken;
    if (taken.error() == EXDEV)
        return std::nullopt;
    return trashFailure(taken.error(), file);
}

bool isThere(const FilePath &entry)
{
    struct stat info;
    return ::lstat(entry.c_str(), &info) == 0;
}

tl::unexpected<Error> giveBackFailure(int code, const FilePath &place, const FilePath &destination)
{
    if (code == EEXIST)
        return failure(ErrorKind::invalidValue,
                       Texts::tr("cannot take %1 from the Trash: the name is taken")
                           .arg(destination.displayText()));
    tl::unexpected<Error> failed = systemFailure(code, FileAction::takeFromTrash, place);
    const bool isAboutDestination = failed.value().kind == ErrorKind::notFound
        && place.parent().fileName() == "files" && isThere(place);
    if (isAboutDestination || failed.value().kind == ErrorKind::notRegularFile)
        failed.value().kind = ErrorKind::ioFailure;
    return failed;
}

std::optional<dev_t> deviceOf(const FilePath &folder)
{
    struct stat info;
    if (::stat(folder.c_str(), &info) != 0)
        return std::nullopt;
    return info.st_dev;
}

/// The device that a folder is on, or would be if it were made.
std::optional<dev_t> futureDeviceOf(FilePath folder)
{
    std::optional<dev_t> device = deviceOf(folder);
    while (!device && folder.bytes().size() > 1) {
        folder = folder.parent();
        device = deviceOf(folder);
    }
    return device;
}

Result<FilePath> realFolderOf(const FilePath &file)
{
    struct FreeMemory
    {
        void operator()(char *memory) const { std::free(memory); }
    };
    const std::unique_ptr<char, FreeMemory> real(::realpath(file.parent().c_str(), nullptr));
    if (!real)
        return systemFailure(errno, FileAction::find, file);
    return FilePath(QByteArray(real.get()));
}

FilePath homeTrash()
{
    return xdgFolders().applicationSupport.parent().child("Trash");
}

/// A folder of this user's own and no link, made if it is missing: others could have prepared it.
bool ensureOwnFolder(const FilePath &folder)
{
    struct stat info;
    if (::mkdir(folder.c_str(), 0700) != 0 && errno != EEXIST)
        return false;
    return ::lstat(folder.c_str(), &info) == 0 && S_ISDIR(info.st_mode)
        && info.st_uid == ::geteuid();
}

/// Set up by the administrator for all users: only with the sticky bit, and never a link.
bool isSharedTrash(const FilePath &folder)
{
    struct stat info;
    return ::lstat(folder.c_str(), &info) == 0 && S_ISDIR(info.st_mode)
        && (info.st_mode & S_ISVTX) != 0;
}

/// Trash specification 1.0, "Trash directories": $topdir/.Trash/$uid, else $topdir/.Trash-$uid.
std::optional<FilePath> trashOfVolume(const FilePath &top)
{
    const QByteArray user = QByteArray::number(::geteuid());
    const FilePath shared = top.child(".Trash");
    if (isSharedTrash(shared) && ensureOwnFolder(shared.child(user)))
        return shared.child(user);
    const FilePath own = top.child(QByteArray(".Trash-" + user));
    return ensureOwnFolder(own) ? std::optional(own) : std::nullopt;
}

/// The part of `path` below `folder`, which it lies in.
FilePath relativeTo(const FilePath &folder, const FilePath &path)
{
    const qsizetype skipped = folder.bytes().size() + (folder.bytes().endsWith('/') ? 0 : 1);
    return FilePath(path.bytes().sliced(skipped));
}

} // namespace

DesktopTrash::DesktopTrash(VolumeTop volumeTop)
    : m_volumeTop(std::move(volumeTop))
{
}

FilePath DesktopTrash::topOfVolume(const FilePath &realFolder)
{
    const std::optional<dev_t> device = deviceOf(realFolder);
    FilePath top = realFolder;
    while (top.bytes().size() > 1 && deviceOf(top.parent()) == device)
        top = top.parent();
    return top;
}

Result<FilePath> DesktopTrash::moveToTrash(const FilePath &file)
{
    struct stat info;
    if (::lstat(file.c_str(), &info) != 0)
        return systemFailure(errno, FileAction::find, file);
    const Result<FilePath> folder = realFolderOf(file);
    if (!folder)
        return tl::unexpected(folder.error());

    const FilePath home = homeTrash();
    if (deviceOf(*folder) == futureDeviceOf(home)) {
        // Parts of one device may still be volumes of their own.
        if (std::optional<Result<FilePath>> taken = takeInto(home, file, file))
            return *std::move(taken);
    }
    const FilePath top = m_volumeTop(*folder);
    const std::optional<FilePath> trash = trashOfVolume(top);
    if (!trash)
        return hasNoTrash(file);
    const FilePath place = relativeTo(top, folder->child(file.fileName()));
    return takeInto(*trash, file, place).value_or(hasNoTrash(file));
}

Result<void> DesktopTrash::takeFromTrash(const FilePath &place, const FilePath &destination)
{
    if (const int code = TrashFolder::giveBack(place, destination))
        return giveBackFailure(code, place, destination);
    return {};
}

} // namespace lorva
