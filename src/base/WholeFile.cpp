// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#include "base/WholeFile.h"

#include "base/AtomicFile.h"
#include "base/SystemError.h"

#include <QCoreApplication>

#include <cerrno>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace lorva {

namespace {

struct Texts
{
    Q_DECLARE_TR_FUNCTIONS(WholeFile)
};

/// Space behind the bytes, so that a reader that appends a little to them need not move them.
constexpr qint64 kSpareBytes = 256;

class Descriptor
{
public:
    // O_NONBLOCK: opening a FIFO that nobody writes to would wait for ever.
    explicit Descriptor(const FilePath &path)
        : m_number(::open(path.c_str(), O_RDONLY | O_NONBLOCK | O_CLOEXEC | O_NOCTTY))
    {
    }
    ~Descriptor()
    {
        if (m_number >= 0)
            ::close(m_number);
    }
    Descriptor(const Descriptor &) = delete;
    Descriptor &operator=(const Descriptor &) = delete;

    int number() const { return m_number; }

private:
    const int m_number;
};

tl::unexpected<Error> notRegular(const FilePath &path)
{
    return failure(ErrorKind::notRegularFile,
                   Texts::tr("%1 is not a regular file").arg(path.displayText()));
}

tl::unexpected<Error> openFailure(int code, const FilePath &path)
{
    // Sockets, and devices that are not there.
    if (code == ENXIO || code == ENODEV)
        return notRegular(path);
    return systemFailure(code, FileAction::read, path);
}

/// Reads until `bytes` is full or the file ends; 0 or the system's error number.
int fill(const Descriptor &file, QByteArray &bytes)
{
    qsizetype at = 0;
    while (at < bytes.size()) {
        const ssize_t got = ::read(file.number(), bytes.data() + at, size_t(bytes.size() - at));
        if (got < 0 && errno == EINTR)
            continue;
        if (got < 0)
            return errno;
        if (got == 0)
            break;
        at += got;
    }
    bytes.truncate(at);
    return 0;
}

bool isFolder(const FilePath &path)
{
    struct stat info;
    return ::stat(path.c_str(), &info) == 0 && S_ISDIR(info.st_mode);
}

/// 0 for a folder that is there afterwards, whoever made it, else the system's error number.
int makeFolder(const FilePath &folder)
{
    if (::mkdir(folder.c_str(), 0700) == 0)
        return 0;
    const int code = errno;
    return isFolder(folder) ? 0 : code;
}

} // namespace

Result<QByteArray> readWholeFile(const FilePath &path, qint64 mostBytes)
{
    const Descriptor file(path);
    if (file.number() < 0)
        return openFailure(errno, path);
    struct stat info;
    if (::fstat(file.number(), &info) != 0)
        return systemFailure(errno, FileAction::read, path);
    if (!S_ISREG(info.st_mode))
        return notRegular(path);
    // Before anything is allocated.
    if (info.st_size > mostBytes)
        return systemFailure(EFBIG, FileAction::read, path);
    QByteArray bytes;
    bytes.reserve(info.st_size + kSpareBytes);
    bytes.resize(info.st_size);
    if (const int code = fill(file, bytes))
        return systemFailure(code, FileAction::read, path);
    return bytes;
}

Result<void> writeWholeFile(const FilePath &path, QByteArrayView bytes)
{
    if (Result<void> made = makeFolders(path.parent()); !made)
        return made;
    return writeFileAtomically(path, bytes);
}

Result<void> makeFolders(const FilePath &folder)
{
    int code = makeFolder(folder);
    const FilePath parent = folder.parent();
    if (code == ENOENT && !parent.isEmpty()) {
        if (const Result<void> made = makeFolders(parent); !made)
            return made;
        code = makeFolder(folder);
    }
    if (code == 0)
        return {};
    if (code == EEXIST || code == ENOTDIR)
        return failure(
            ErrorKind::notRegularFile,
            Texts::tr("%1 cannot be made: a file has that name").arg(folder.displayText()));
    return systemFailure(code, FileAction::make, folder);
}

} // namespace lorva
