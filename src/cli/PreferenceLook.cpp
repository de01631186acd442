// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#include "cli/PreferenceLook.h"

#include "base/SystemError.h"
#include "base/WholeFile.h"
#include "cli/Texts.h"
#include "platform/PreferenceDatabase.h"

#include <QTemporaryDir>

#include <array>
#include <cerrno>
#include <chrono>
#include <optional>
#include <thread>

#include <fcntl.h>
#include <sys/stat.h>
#include <sys/statvfs.h>
#include <unistd.h>

namespace lorva::cli {

namespace {

using Rows = PreferenceLook::Rows;

/// A thousand times what a library of 10,000 families needs.
constexpr qint64 kMostBytes = qint64(1) << 30;
/// Less and the next change may not fit.
constexpr quint64 kLeastFreeBytes = quint64(4) << 20;
constexpr int kCopyAttempts = 5;
constexpr int kLockLooks = 10;
constexpr std::chrono::milliseconds kBetweenLooks{100};

/// The file and what a change under way has beside it: the log, or the journal.
constexpr std::array kParts{"", "-wal", "-journal"};

// Which bytes a writer locks is part of SQLite's file format: with the log, the first of the locks
// in the shared index (section "WAL-Index Locks"); without, the reserved byte (PENDING_BYTE + 1).
constexpr off_t kLogWriterByte = 120;
constexpr off_t kReservedByte = 0x40000001;

FilePath with(const FilePath &file, const char *suffix)
{
    return FilePath(QByteArray(file.bytes() + suffix));
}

/// What tells that a part is still the one that was copied.
QByteArray stateOf(const FilePath &file)
{
    QByteArray state;
    for (const char *suffix : kParts) {
        struct stat info = {};
        if (::stat(with(file, suffix).c_str(), &info) == 0)
            state += QByteArray::number(qint64(info.st_ino)) + ' '
                + QByteArray::number(qint64(info.st_size)) + ' '
                + QByteArray::number(qint64(info.st_mtim.tv_sec)) + ' '
                + QByteArray::number(qint64(info.st_mtim.tv_nsec));
        state += '\n';
    }
    return state;
}

Result<void> copyParts(const FilePath &file, const FilePath &copy)
{
    for (const char *suffix : kParts) {
        const Result<QByteArray> bytes = readWholeFile(with(file, suffix), kMostBytes);
        if (!bytes && *suffix != '\0' && bytes.error().kind == ErrorKind::notFound)
            continue;
        if (!bytes)
            return tl::unexpected(bytes.error());
        if (const Result<void> written = writeWholeFile(with(copy, suffix), *bytes); !written)
            return written;
    }
    return {};
}

tl::unexpected<Error> damaged(const QString &detail)
{
    return failure(ErrorKind::malformed, detail);
}

Result<Rows> readCopy(const FilePath &copy)
{
    auto connection = SqliteConnection::open(copy, SqliteConnection::Access::readWrite);
    if (!connection)
        return tl::unexpected(connection.error());
    const auto checked = connection->run("PRAGMA quick_check(1)");
    if (!checked)
        return damaged(checked.error().detail);
    if (checked->empty() || checked->front().front() != "ok")
        return damaged(Texts::tr("the database is damaged"));
    const auto tables =
        connection->run("SELECT name FROM sqlite_schema WHERE name = 'preferences'");
    if (tables && tables->empty())
        return Rows();
    const auto rows = connection->run("SELECT key, kind, value FROM preferences");
    if (!rows)
        return damaged(rows.error().detail);
    Rows all;
    for (const SqliteConnection::Row &row : *rows)
        all.emplace(QString::fromUtf8(row[0]), PreferenceRow{row[1], row[2]});
    return all;
}

Result<Rows> readOnce(const FilePath &file)
{
    const QTemporaryDir folder;
    if (!folder.isValid())
        return failure(ErrorKind::ioFailure,
                       Texts::tr("no folder for a copy: %1").arg(folder.errorString()));
    const FilePath copy = FilePath::fromText(folder.filePath(QStringLiteral("copy.sqlite")));
    const Result<void> copied = copyParts(file, copy);
    return copied ? readCopy(copy) : tl::unexpected(copied.error());
}

Result<Rows> readUndisturbed(const FilePath &file)
{
    for (int attempt = 1;; ++attempt) {
        const QByteArray before = stateOf(file);
        Result<Rows> rows = readOnce(file);
        if (stateOf(file) == before || attempt == kCopyAttempts)
            return rows;
    }
}

/// The process that holds a lock on the byte, as the system counts; nothing for a free byte.
std::optional<pid_t> holderOf(const FilePath &file, off_t byte)
{
    const int descriptor = ::open(file.c_str(), O_RDONLY | O_NONBLOCK | O_CLOEXEC);
    if (descriptor < 0)
        return std::nullopt;
    struct flock lock = {};
    lock.l_type = F_WRLCK;
    lock.l_whence = SEEK_SET;
    lock.l_start = byte;
    lock.l_len = 1;
    const bool isHeld = ::fcntl(descriptor, F_GETLK, &lock) == 0 && lock.l_type != F_UNLCK;
    ::close(descriptor);
    return isHeld ? std::optional(lock.l_pid) : std::nullopt;
}

std::optional<pid_t> writerOf(const FilePath &file)
{
    const std::optional<pid_t> writer = holderOf(with(file, "-shm"), kLogWriterByte);
    return writer ? writer : holderOf(file, kReservedByte);
}

Result<void> checkUnlocked(const FilePath &file)
{
    std::optional<pid_t> writer = writerOf(file);
    for (int look = 1; writer && look < kLockLooks; ++look) {
        std::this_thread::sleep_for(kBetweenLooks);
        writer = writerOf(file);
    }
    if (!writer)
        return {};
    return failure(ErrorKind::cancelled, Texts::tr("process %1 keeps it locked").arg(*writer));
}

/// As the effective user, as whoever opens a file is judged.
Result<void> checkAccess(const FilePath &path, int mode)
{
    if (::faccessat(AT_FDCWD, path.c_str(), mode, AT_EACCESS) == 0)
        return {};
    return systemFailure(errno, FileAction::write, path);
}

/// The file itself, which may yet have to be made.
Result<void> checkFile(const FilePath &file)
{
    struct stat info = {};
    if (::stat(file.c_str(), &info) != 0)
        return errno == ENOENT ? Result<void>() : systemFailure(errno, FileAction::lookAt, file);
    if (!S_ISREG(info.st_mode))
        return failure(ErrorKind::notRegularFile,
                       Texts::tr("%1 is no regular file").arg(file.displayText()));
    return checkAccess(file, R_OK | W_OK);
}

FilePath nearestFolder(FilePath folder)
{
    struct stat info = {};
    while (folder.bytes().size() > 1 && ::stat(folder.c_str(), &info) != 0 && errno == ENOENT)
        folder = folder.parent();
    return folder;
}

Result<void> checkSpace(const FilePath &folder)
{
    struct statvfs info = {};
    if (::statvfs(folder.c_str(), &info) != 0)
        return systemFailure(errno, FileAction::lookAt, folder);
    if (quint64(info.f_bavail) * info.f_frsize >= kLeastFreeBytes)
        return {};
    return failure(ErrorKind::ioFailure,
                   Texts::tr("no space is left in %1").arg(folder.displayText()));
}

} // namespace

PreferenceLook lookAtPreferences(const FilePath &applicationSupport)
{
    PreferenceLook look;
    look.file = applicationSupport.child(PreferenceDatabase::kFileName);
    struct stat info = {};
    look.exists = ::stat(look.file.c_str(), &info) == 0 || errno != ENOENT;
    look.size = info.st_size;
    if (look.exists)
        look.rows = readUndisturbed(look.file);
    return look;
}

Result<void> checkWritable(const FilePath &file)
{
    const FilePath folder = nearestFolder(file.parent());
    Result<void> checked = checkAccess(folder, W_OK | X_OK);
    if (checked)
        checked = checkFile(file);
    if (checked)
        checked = checkSpace(folder);
    return checked ? checkUnlocked(file) : checked;
}

} // namespace lorva::cli
