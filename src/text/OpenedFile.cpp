// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#include "text/OpenedFile.h"

#include "text/FontLimits.h"
#include "text/GuardedMapping.h"

#include <QCoreApplication>

#include <cerrno>
#include <cstring>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace lorva {

namespace {

struct Texts
{
    Q_DECLARE_TR_FUNCTIONS(FontFile)
};

tl::unexpected<Error> openFailure(const FilePath &path, int error)
{
    const QString name = path.displayText();
    switch (error) {
    case ENOENT:
    case ENOTDIR:
        return failure(ErrorKind::notFound, Texts::tr("%1: no such file").arg(name));
    case EACCES:
    case EPERM:
        return failure(ErrorKind::permissionDenied, Texts::tr("%1: may not be read").arg(name));
    case ELOOP:
        return failure(ErrorKind::notFound,
                       Texts::tr("%1: is a link that leads in a circle").arg(name));
    case ENXIO:
    case ENODEV:
        return failure(ErrorKind::notRegularFile, Texts::tr("%1: is not a regular file").arg(name));
    default:
        return failure(ErrorKind::ioFailure,
                       Texts::tr("%1: cannot be opened: %2")
                           .arg(name, QString::fromLocal8Bit(std::strerror(error))));
    }
}

FileIdentity identityOf(const struct stat &info)
{
    return {quint64(info.st_dev), quint64(info.st_ino), qint64(info.st_size),
            qint64(info.st_mtim.tv_sec) * 1'000'000'000 + info.st_mtim.tv_nsec};
}

/// Whether others keep the file, and we cannot write it. Root can write everything; there it is the
/// folder of packages that counts.
bool isInstalled(const FilePath &path, const struct stat &info)
{
    if (info.st_mode & (S_IWGRP | S_IWOTH))
        return false;
    const uid_t user = ::geteuid();
    return user == 0 ? info.st_uid == 0 && path.bytes().startsWith("/usr/share/")
                     : info.st_uid != user;
}

} // namespace

std::optional<FileIdentity> currentIdentity(const FilePath &path)
{
    struct stat info;
    return ::stat(path.c_str(), &info) == 0 ? std::optional(identityOf(info)) : std::nullopt;
}

Result<std::shared_ptr<const OpenedFile>> OpenedFile::open(const FilePath &path)
{
    // O_NONBLOCK: opening a FIFO that nobody writes to would wait for ever.
    const int fd = ::open(path.c_str(), O_RDONLY | O_NONBLOCK | O_CLOEXEC | O_NOCTTY);
    if (fd < 0)
        return openFailure(path, errno);
    std::shared_ptr<OpenedFile> file(new OpenedFile(fd));
    struct stat info;
    if (::fstat(fd, &info) != 0)
        return openFailure(path, errno);
    if (!S_ISREG(info.st_mode))
        return failure(ErrorKind::notRegularFile,
                       Texts::tr("%1: is not a regular file").arg(path.displayText()));
    if (info.st_size > kMaxFileSize)
        return failure(ErrorKind::tooLarge,
                       Texts::tr("%1: is larger than any font").arg(path.displayText()));
    file->m_identity = identityOf(info);
    file->m_isInstalled = isInstalled(path, info);
    file->readFirstPage();
    return file;
}

OpenedFile::~OpenedFile()
{
    ::close(m_fd);
}

void OpenedFile::readFirstPage()
{
    const quint64 wanted = std::min<quint64>(size(), m_firstPage.size());
    if (read(0, m_firstPage.data(), wanted))
        m_firstPageSize = wanted;
}

bool OpenedFile::read(quint64 offset, char *out, quint64 length) const
{
    if (offset > size() || length > size() - offset)
        return false;
    if (offset + length <= m_firstPageSize) {
        std::memcpy(out, m_firstPage.data() + offset, length);
        return true;
    }
    while (length > 0) {
        const ssize_t got = ::pread(m_fd, out, length, off_t(offset));
        if (got < 0 && errno == EINTR)
            continue;
        if (got < 0)
            m_hasFailed = true;
        if (got <= 0)
            return false;
        offset += quint64(got);
        out += got;
        length -= quint64(got);
    }
    return true;
}

QByteArray OpenedFile::bytes(quint64 offset, quint64 length) const
{
    // Before anything is allocated: a damaged length must not cost memory.
    if (offset > size() || length > size() - offset)
        return {};
    QByteArray out(qsizetype(length), Qt::Uninitialized);
    return read(offset, out.data(), length) ? out : QByteArray();
}

std::unique_ptr<GuardedMapping> OpenedFile::map(quint64 offset, quint32 length) const
{
    if (!m_isInstalled || offset > size() || length > size() - offset)
        return nullptr;
    return GuardedMapping::map(m_fd, offset, length);
}

} // namespace lorva
