// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#include "platform/FileTransfer.h"

#include "base/SystemError.h"
#include "platform/FileDescriptor.h"
#include "platform/FolderEntries.h"
#include "platform/NewFile.h"

#include <QCoreApplication>
#include <QLoggingCategory>

#include <algorithm>
#include <array>
#include <cerrno>
#include <climits>
#include <cstring>
#include <memory>
#include <optional>
#include <utility>

#include <dirent.h>
#include <fcntl.h>
#include <sys/stat.h>

namespace lorva {

Q_LOGGING_CATEGORY(fileTransferLog, "lorva.platform.transfer", QtWarningMsg)

namespace {

struct Texts
{
    Q_DECLARE_TR_FUNCTIONS(FileTransfer)
};

// O_NONBLOCK: opening a FIFO that nobody writes to would wait for ever.
constexpr int kReadFlags = O_RDONLY | O_NONBLOCK | O_CLOEXEC | O_NOCTTY;
constexpr size_t kBlockBytes = 131072;

/// For callers a file that grows past a limit is a disk that is full.
tl::unexpected<Error> transferFailure(int code, FileAction action, const FilePath &path)
{
    tl::unexpected<Error> failed = systemFailure(code, action, path);
    if (failed.value().kind == ErrorKind::tooLarge)
        failed.value().kind = ErrorKind::ioFailure;
    return failed;
}

tl::unexpected<Error> notRegular(const FilePath &path)
{
    return failure(ErrorKind::notRegularFile,
                   Texts::tr("%1 is not a regular file").arg(path.displayText()));
}

tl::unexpected<Error> changedMeanwhile(const FilePath &path)
{
    return failure(ErrorKind::ioFailure,
                   Texts::tr("%1 changed while it was read").arg(path.displayText()));
}

struct Source
{
    FileDescriptor file;
    struct stat info;
};

Result<Source> openSource(const FilePath &path)
{
    Source source{FileDescriptor(::open(path.c_str(), kReadFlags)), {}};
    // Sockets, and devices that are not there.
    if (!source.file.isOpen() && (errno == ENXIO || errno == ENODEV))
        return notRegular(path);
    if (!source.file.isOpen() || ::fstat(source.file.number(), &source.info) != 0)
        return transferFailure(errno, FileAction::read, path);
    if (!S_ISREG(source.info.st_mode))
        return notRegular(path);
    return source;
}

/// What was copied is one state of the file, not the beginning of one and the end of another.
bool isUnchanged(const Source &source)
{
    struct stat now;
    return ::fstat(source.file.number(), &now) == 0 && now.st_size == source.info.st_size
        && now.st_mtim.tv_sec == source.info.st_mtim.tv_sec
        && now.st_mtim.tv_nsec == source.info.st_mtim.tv_nsec;
}

/// Nothing when the name is free.
std::optional<Result<Transfer>> lookAtDestination(const FilePath &path)
{
    struct stat info;
    if (::lstat(path.c_str(), &info) == 0)
        return Transfer::destinationExists;
    if (errno == ENOENT)
        return std::nullopt;
    return transferFailure(errno, FileAction::write, path);
}

/// Until the new name is on the disk, the source may not go; so without that there is no copy.
Result<Transfer> flushName(const FilePath &destination)
{
    const int code = flushFolder(destination.parent());
    if (code == 0)
        return Transfer::done;
    ::unlink(destination.c_str());
    return transferFailure(code, FileAction::write, destination);
}

/// An outcome, or why this way of naming does not work in that folder: then another may be tried.
struct Attempt
{
    std::optional<Result<Transfer>> outcome;
    int namingCode = 0;
};

Result<Transfer> fill(NewFile &copy, const Source &source, const FilePath &from, const FilePath &to)
{
    if (const NewFile::Failure failed = copy.fillFrom(source.file.number(), source.info.st_size);
        failed.code != 0)
        return transferFailure(failed.code, failed.isSource ? FileAction::read : FileAction::write,
                               failed.isSource ? from : to);
    if (copy.size() != source.info.st_size || !isUnchanged(source))
        return changedMeanwhile(from);
    if (const int code = copy.flush(source.info.st_mtim))
        return transferFailure(code, FileAction::write, to);
    return Transfer::done;
}

Attempt copyAs(NewFile::Naming naming, const Source &source, const FilePath &from,
               const FilePath &to)
{
    NewFile copy(naming);
    if (const int code = copy.create(to.parent()))
        return {std::nullopt, code};
    if (::lseek(source.file.number(), 0, SEEK_SET) != 0)
        return {transferFailure(errno, FileAction::read, from)};
    if (const Result<Transfer> filled = fill(copy, source, from, to); !filled)
        return {filled};
    const int code = copy.takeName(to);
    if (code == EEXIST)
        return {Transfer::destinationExists};
    if (code == 0)
        return {flushName(to)};
    return {std::nullopt, code};
}

FileDescriptor openRegular(const FilePath &path)
{
    struct stat info;
    FileDescriptor file(::open(path.c_str(), kReadFlags));
    if (!file.isOpen() || ::fstat(file.number(), &info) != 0 || !S_ISREG(info.st_mode))
        return {};
    return file;
}

using Block = std::array<char, kBlockBytes>;

/// How much was read, less than a block only at the end; negative on failure.
ssize_t readBlock(const FileDescriptor &file, off_t offset, Block &block)
{
    size_t at = 0;
    while (at < block.size()) {
        const ssize_t got =
            ::pread(file.number(), block.data() + at, block.size() - at, offset + off_t(at));
        if (got < 0 && errno == EINTR)
            continue;
        if (got < 0)
            return -1;
        if (got == 0)
            break;
        at += size_t(got);
    }
    return ssize_t(at);
}

/// Removes what an attempt that failed made, so that nothing but the source is there.
tl::unexpected<Error> withdraw(const FilePath &destination, tl::unexpected<Error> failed)
{
    if (::unlink(destination.c_str()) != 0)
        qCWarning(fileTransferLog).noquote() << "cannot remove" << destination.displayText();
    return failed;
}

/// Reads what the disk holds and not what memory remembers, as far as the system lets us.
void forgetCachedBytes(const FilePath &path)
{
    const FileDescriptor file(::open(path.c_str(), kReadFlags));
    if (file.isOpen())
        std::ignore = ::posix_fadvise(file.number(), 0, 0, POSIX_FADV_DONTNEED);
}

Result<Transfer> removeSource(const FilePath &source, const FilePath &destination)
{
    if (::unlink(source.c_str()) != 0)
        return withdraw(destination, transferFailure(errno, FileAction::remove, source));
    std::ignore = flushFolder(source.parent());
    return Transfer::done;
}

Result<Transfer> moveFileAcross(const FilePath &source, const FilePath &destination)
{
    Result<Transfer> copied = copyToNewFile(source, destination);
    if (!copied || *copied != Transfer::done)
        return copied;
    forgetCachedBytes(destination);
    if (!haveEqualBytes(source, destination))
        return withdraw(
            destination,
            failure(
                ErrorKind::ioFailure,
                Texts::tr("the copy %1 differs from its source").arg(destination.displayText())));
    return removeSource(source, destination);
}

/// Nothing for what is no link; its error number is in errno.
std::optional<QByteArray> linkTarget(const FilePath &path)
{
    std::array<char, PATH_MAX> target;
    const ssize_t length = ::readlink(path.c_str(), target.data(), target.size());
    return length < 0 ? std::nullopt : std::optional(QByteArray(target.data(), length));
}

/// Makes the link anew, so that it leads from its new folder to where it led.
Result<Transfer> moveLinkAcross(const FilePath &source, const FilePath &destination)
{
    std::optional<QByteArray> target = linkTarget(source);
    if (!target)
        return transferFailure(errno, FileAction::read, source);
    if (!target->startsWith('/'))
        target = source.parent().child(*target).bytes();
    if (::symlink(target->constData(), destination.c_str()) != 0)
        return errno == EEXIST ? Result<Transfer>(Transfer::destinationExists)
                               : transferFailure(errno, FileAction::write, destination);
    if (const Result<Transfer> flushed = flushName(destination); !flushed)
        return flushed;
    return removeSource(source, destination);
}

bool isRelativeLink(const FilePath &path)
{
    const std::optional<QByteArray> target = linkTarget(path);
    return target && !target->startsWith('/');
}

Result<Transfer> moveAcross(const FilePath &source, const FilePath &destination)
{
    struct stat info;
    if (::lstat(source.c_str(), &info) != 0)
        return transferFailure(errno, FileAction::move, source);
    if (S_ISLNK(info.st_mode))
        return moveLinkAcross(source, destination);
    return S_ISREG(info.st_mode) ? moveFileAcross(source, destination) : notRegular(source);
}

void flushBothFolders(const FilePath &source, const FilePath &destination)
{
    // The renaming has happened, whatever the disk says now, and in either state there is one file.
    std::ignore = flushFolder(destination.parent());
    if (source.parent() != destination.parent())
        std::ignore = flushFolder(source.parent());
}

} // namespace

Result<Transfer> copyToNewFile(const FilePath &source, const FilePath &destination)
{
    const Result<Source> opened = openSource(source);
    if (!opened)
        return tl::unexpected(opened.error());
    if (std::optional<Result<Transfer>> taken = lookAtDestination(destination))
        return *std::move(taken);
    Attempt attempt = copyAs(NewFile::Naming::whenDone, *opened, source, destination);
    if (!attempt.outcome)
        attempt = copyAs(NewFile::Naming::atOnce, *opened, source, destination);
    if (attempt.outcome)
        return *std::move(attempt.outcome);
    return transferFailure(attempt.namingCode, FileAction::write, destination);
}

Result<Transfer> moveToNewFile(const FilePath &source, const FilePath &destination)
{
    if (source.parent() != destination.parent() && isRelativeLink(source))
        return moveLinkAcross(source, destination);
    const int code = renameWithoutReplacing(source, destination);
    if (code == EEXIST)
        return Transfer::destinationExists;
    if (code == EXDEV)
        return moveAcross(source, destination);
    if (code != 0)
        return transferFailure(code, FileAction::move, source);
    flushBothFolders(source, destination);
    return Transfer::done;
}

void removeUnfinishedCopies(const FilePath &folder)
{
    struct CloseFolder
    {
        void operator()(DIR *stream) const { ::closedir(stream); }
    };
    const std::unique_ptr<DIR, CloseFolder> stream(::opendir(folder.c_str()));
    while (const dirent *const entry = stream ? ::readdir(stream.get()) : nullptr) {
        struct stat info;
        if (NewFile::isUnfinishedName(entry->d_name)
            && ::fstatat(::dirfd(stream.get()), entry->d_name, &info, AT_SYMLINK_NOFOLLOW) == 0
            && S_ISREG(info.st_mode))
            ::unlinkat(::dirfd(stream.get()), entry->d_name, 0);
    }
}

bool haveEqualBytes(const FilePath &one, const FilePath &other)
{
    const FileDescriptor first = openRegular(one);
    const FileDescriptor second = openRegular(other);
    if (!first.isOpen() || !second.isOpen())
        return false;
    const auto block = std::make_unique<std::array<Block, 2>>();
    for (off_t offset = 0;; offset += off_t(kBlockBytes)) {
        const ssize_t got = readBlock(first, offset, block->front());
        if (got < 0 || got != readBlock(second, offset, block->back())
            || std::memcmp(block->front().data(), block->back().data(), size_t(got)) != 0)
            return false;
        if (size_t(got) < kBlockBytes)
            return true;
    }
}

} // namespace lorva
