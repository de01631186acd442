// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#include "platform/linux/TrashFolder.h"

#include "platform/FileDescriptor.h"
#include "platform/FolderEntries.h"

#include <QDateTime>

#include <algorithm>
#include <cerrno>
#include <tuple>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace lorva {

namespace {

constexpr QByteArrayView kFilesName = "files";
constexpr QByteArrayView kInfoName = "info";
constexpr QByteArrayView kNoteExtension = ".trashinfo";
/// Room for the number that tells entries of one name apart.
constexpr qsizetype kNumberBytes = 8;
constexpr int kMostOfOneName = 100'000;
constexpr qsizetype kUsualMostNameBytes = 255;

int makeFolder(const FilePath &folder)
{
    if (::mkdir(folder.c_str(), 0700) == 0)
        return 0;
    const int code = errno;
    struct stat info;
    return code == EEXIST && ::stat(folder.c_str(), &info) == 0 && S_ISDIR(info.st_mode) ? 0 : code;
}

int makeFolders(const FilePath &folder)
{
    const int code = makeFolder(folder);
    if (code != ENOENT || folder.bytes().size() <= 1)
        return code;
    const int parentCode = makeFolders(folder.parent());
    return parentCode == 0 ? makeFolder(folder) : parentCode;
}

/// Trash specification 1.0, "Contents of a trash directory".
QByteArray noteOn(const FilePath &originalPath)
{
    static constexpr QByteArrayView kScheme = "file://";
    QByteArray note = "[Trash Info]\nPath=";
    note.append(originalPath.toUrl().sliced(kScheme.size()));
    note.append("\nDeletionDate=");
    note.append(QDateTime::currentDateTime().toString(u"yyyy-MM-dd'T'HH:mm:ss").toLatin1());
    return note.append('\n');
}

int writeAll(int descriptor, QByteArrayView bytes)
{
    while (!bytes.isEmpty()) {
        const ssize_t written = ::write(descriptor, bytes.data(), size_t(bytes.size()));
        if (written < 0 && errno == EINTR)
            continue;
        if (written < 0)
            return errno;
        bytes = bytes.sliced(written);
    }
    return ::fsync(descriptor) == 0 ? 0 : errno;
}

int writeNewFile(const FilePath &path, const QByteArray &bytes)
{
    const FileDescriptor file(::open(path.c_str(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC, 0600));
    if (!file.isOpen())
        return errno;
    const int code = writeAll(file.number(), bytes);
    if (code != 0)
        ::unlink(path.c_str());
    return code;
}

} // namespace

TrashFolder::TrashFolder(FilePath folder)
    : m_folder(std::move(folder))
    , m_files(m_folder.child(kFilesName))
    , m_info(m_folder.child(kInfoName))
{
}

int TrashFolder::ensureFolders() const
{
    for (const FilePath &folder : {m_folder, m_files, m_info}) {
        if (const int code = makeFolders(folder))
            return code;
    }
    return 0;
}

tl::expected<FilePath, int> TrashFolder::take(const FilePath &file,
                                              const FilePath &originalPath) const
{
    const QByteArray note = noteOn(originalPath);
    const long most = ::pathconf(m_info.c_str(), _PC_NAME_MAX);
    const qsizetype room =
        (most > 0 ? std::min<qsizetype>(most, kUsualMostNameBytes) : kUsualMostNameBytes)
        - kNoteExtension.size();
    const QByteArray shortName = cutName(file.fileName(), room - kNumberBytes);
    QByteArray name = cutName(file.fileName(), room);
    int code = takeAs(name, file, note);
    for (int number = 2; code == EEXIST && number <= kMostOfOneName; ++number) {
        name = numberedName(shortName, number);
        code = takeAs(name, file, note);
    }
    if (code != 0)
        return tl::unexpected(code);
    return m_files.child(name);
}

int TrashFolder::giveBack(const FilePath &place, const FilePath &destination)
{
    const FilePath files = place.parent();
    if (files.fileName() != kFilesName)
        return ENOENT;
    if (const int code = renameWithoutReplacing(place, destination))
        return code;
    // A note that stays says something about a file that no program finds any more.
    const QByteArray note = place.fileName() + kNoteExtension;
    ::unlink(files.parent().child(kInfoName).child(note).c_str());
    std::ignore = flushFolder(destination.parent());
    std::ignore = flushFolder(files);
    return 0;
}

/// The note comes first: its name, once taken, is taken in "files", too, for every program that
/// keeps to the rules.
int TrashFolder::takeAs(const QByteArray &name, const FilePath &file, const QByteArray &note) const
{
    const FilePath notePath = m_info.child(QByteArray(name + kNoteExtension));
    if (const int code = writeNewFile(notePath, note))
        return code;
    if (const int code = renameWithoutReplacing(file, m_files.child(name))) {
        ::unlink(notePath.c_str());
        return code;
    }
    // It has moved, whatever the disk says now.
    std::ignore = flushFolder(m_files);
    std::ignore = flushFolder(file.parent());
    return 0;
}

} // namespace lorva
