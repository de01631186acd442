// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#include "platform/NewFile.h"

#include "platform/FolderEntries.h"

#include <algorithm>
#include <cctype>
#include <cerrno>
#include <tuple>
#include <vector>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace lorva {

namespace {

constexpr QByteArrayView kPrefix = ".lorva-copy-";
constexpr qsizetype kRandomLetters = 6;
constexpr int kNameAttempts = 16;
constexpr qint64 kBlockBytes = 262144;
/// The kernel would take more at once, but a copy of a slow disk could then not be interrupted.
constexpr qint64 kKernelBlockBytes = 67108864;

} // namespace

NewFile::NewFile(Naming naming)
    : m_naming(naming)
{
}

NewFile::~NewFile()
{
    if (!m_path.isEmpty())
        ::unlink(m_path.c_str());
}

int NewFile::create(const FilePath &folder)
{
    if (m_naming == Naming::atOnce)
        return createNamed(folder);
    m_file = FileDescriptor(::open(folder.c_str(), O_RDWR | O_TMPFILE | O_CLOEXEC, 0666));
    return m_file.isOpen() ? 0 : errno;
}

int NewFile::createNamed(const FilePath &folder)
{
    for (int attempt = 0; attempt < kNameAttempts; ++attempt) {
        const FilePath path = folder.child(randomName(kPrefix));
        m_file = FileDescriptor(::open(path.c_str(), O_RDWR | O_CREAT | O_EXCL | O_CLOEXEC, 0666));
        if (m_file.isOpen()) {
            m_path = path;
            return 0;
        }
        if (errno != EEXIST)
            return errno;
    }
    return EEXIST;
}

NewFile::Failure NewFile::fillFrom(int source, qint64 bytes)
{
    return fillThroughMemory(source, bytes - fillInKernel(source, bytes));
}

/// How much the kernel copied on its own. Where it stops, for whatever reason, reading and writing
/// goes on, and knows which of the two failed.
qint64 NewFile::fillInKernel(int source, qint64 bytes)
{
    qint64 copied = 0;
    while (copied < bytes) {
        const size_t wanted = size_t(std::min(bytes - copied, kKernelBlockBytes));
        const ssize_t got = ::copy_file_range(source, nullptr, m_file.number(), nullptr, wanted, 0);
        if (got < 0 && errno == EINTR)
            continue;
        if (got <= 0)
            break;
        copied += got;
    }
    m_size += copied;
    return copied;
}

NewFile::Failure NewFile::fillThroughMemory(int source, qint64 bytes)
{
    std::vector<char> block(size_t(std::min(bytes, kBlockBytes)));
    while (bytes > 0) {
        const ssize_t got =
            ::read(source, block.data(), size_t(std::min<qint64>(bytes, kBlockBytes)));
        if (got < 0 && errno == EINTR)
            continue;
        if (got < 0)
            return {errno, true};
        if (got == 0)
            break;
        if (const int code = write(block.data(), got))
            return {code, false};
        bytes -= got;
    }
    return {};
}

int NewFile::write(const char *bytes, qint64 count)
{
    while (count > 0) {
        const ssize_t written = ::write(m_file.number(), bytes, size_t(count));
        if (written < 0 && errno == EINTR)
            continue;
        if (written < 0)
            return errno;
        bytes += written;
        count -= written;
        m_size += written;
    }
    return 0;
}

int NewFile::flush(const timespec &modificationTime) const
{
    const timespec times[] = {{0, UTIME_OMIT}, modificationTime};
    // File systems without times are no reason to fail.
    std::ignore = ::futimens(m_file.number(), times);
    return ::fsync(m_file.number()) == 0 ? 0 : errno;
}

int NewFile::takeName(const FilePath &path)
{
    if (m_naming == Naming::whenDone) {
        const QByteArray self = "/proc/self/fd/" + QByteArray::number(m_file.number());
        const int linked =
            ::linkat(AT_FDCWD, self.constData(), AT_FDCWD, path.c_str(), AT_SYMLINK_FOLLOW);
        return linked == 0 ? 0 : errno;
    }
    const int code = renameWithoutReplacing(m_path, path);
    if (code == 0)
        m_path = FilePath();
    return code;
}

bool NewFile::isUnfinishedName(QByteArrayView name)
{
    return name.size() == kPrefix.size() + kRandomLetters && name.startsWith(kPrefix)
        && std::all_of(name.begin() + kPrefix.size(), name.end(),
                       [](uchar letter) { return std::islower(letter) || std::isdigit(letter); });
}

} // namespace lorva
