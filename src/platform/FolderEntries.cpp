// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#include "platform/FolderEntries.h"

#include "platform/FileDescriptor.h"

#include <QRandomGenerator>

#include <cerrno>
#include <cstdio>

#include <fcntl.h>
#include <sys/stat.h>

namespace lorva {

namespace {

constexpr int kRandomLetters = 6;
/// Bytes of one character in UTF-8 that follow its first.
constexpr int kMostFollowingBytes = 3;

/// For file systems whose rename always replaces: a second name is never given to a taken one.
int linkAndUnlink(const FilePath &from, const FilePath &to)
{
    if (::linkat(AT_FDCWD, from.c_str(), AT_FDCWD, to.c_str(), 0) != 0)
        return errno;
    if (::unlink(from.c_str()) == 0)
        return 0;
    const int code = errno;
    ::unlink(to.c_str());
    return code;
}

bool meansUnsupported(int code)
{
    return code == EINVAL || code == ENOSYS || code == EOPNOTSUPP;
}

/// Where the extension begins, with its dot; the end of a name without one.
qsizetype extensionStart(const QByteArray &name)
{
    const qsizetype dot = name.lastIndexOf('.');
    return dot > 0 ? dot : name.size();
}

bool isFollowingByte(char byte)
{
    return (uchar(byte) & 0xc0) == 0x80;
}

/// The largest length up to `most` that ends between two characters; `most` in what is no UTF-8.
qsizetype characterBoundary(const QByteArray &text, qsizetype most)
{
    qsizetype at = most;
    while (at > 0 && most - at < kMostFollowingBytes && isFollowingByte(text.at(at)))
        --at;
    return isFollowingByte(text.at(at)) ? most : at;
}

} // namespace

int renameWithoutReplacing(const FilePath &from, const FilePath &to)
{
    if (::renameat2(AT_FDCWD, from.c_str(), AT_FDCWD, to.c_str(), RENAME_NOREPLACE) == 0)
        return 0;
    const int code = errno;
    return meansUnsupported(code) ? linkAndUnlink(from, to) : code;
}

int flushFolder(const FilePath &folder)
{
    const FileDescriptor opened(::open(folder.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC));
    if (!opened.isOpen())
        return errno == EACCES ? 0 : errno;
    return flushFolder(opened.number());
}

int flushFolder(int descriptor)
{
    if (::fsync(descriptor) == 0)
        return 0;
    return meansUnsupported(errno) ? 0 : errno;
}

QByteArray randomName(QByteArrayView prefix)
{
    static constexpr char kLetters[] = "abcdefghijklmnopqrstuvwxyz0123456789";
    QByteArray name = prefix.toByteArray();
    for (int i = 0; i < kRandomLetters; ++i)
        name.append(kLetters[QRandomGenerator::global()->bounded(36)]);
    return name;
}

QByteArray cutName(const QByteArray &name, qsizetype mostBytes)
{
    if (name.size() <= mostBytes)
        return name;
    const QByteArray extension = name.sliced(extensionStart(name));
    const qsizetype room = mostBytes - extension.size();
    if (room <= 0)
        return name.first(characterBoundary(name, mostBytes));
    return name.first(characterBoundary(name, room)).append(extension);
}

QByteArray numberedName(const QByteArray &name, int number)
{
    if (number < 2)
        return name;
    QByteArray numbered = name;
    return numbered.insert(extensionStart(name), QByteArray(" " + QByteArray::number(number)));
}

} // namespace lorva
