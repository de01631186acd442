// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#include "bench/LibraryGenerator.h"

#include "base/AtomicFile.h"
#include "base/SystemError.h"
#include "base/WholeFile.h"
#include "bench/GeneratedFamily.h"

#include <QCryptographicHash>
#include <QDir>
#include <QFile>

#include <atomic>
#include <cerrno>
#include <mutex>
#include <optional>
#include <thread>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace lorva::bench {

namespace {

constexpr char kStampName[] = ".lorva-generated-library";
constexpr char kUnfinished[] = "unfinished";
constexpr qint64 kMostStampBytes = 4096;

QString textOf(const FilePath &path)
{
    return QFile::decodeName(path.bytes());
}

/// Names the bytes that a library of so many families has: a few families stand for the rest, so
/// that a change of how faces are built makes old libraries new.
QByteArray stampOf(int families)
{
    QCryptographicHash hash(QCryptographicHash::Sha1);
    for (int number = 0; number < std::min(families, 100); ++number)
        for (const GeneratedFile &file : generateFamily(number)) {
            hash.addData(file.path);
            hash.addData(file.bytes);
        }
    return QByteArray::number(families) + ' ' + hash.result().toHex();
}

std::optional<QByteArray> readStamp(const FilePath &folder)
{
    const auto stamp = readWholeFile(folder.child(kStampName), kMostStampBytes);
    return stamp ? std::optional(*stamp) : std::nullopt;
}

Result<void> makeEmptyFolder(const FilePath &folder)
{
    QDir directory(textOf(folder));
    if (readStamp(folder)) {
        if (!directory.removeRecursively())
            return systemFailure(errno, FileAction::empty, folder);
    } else if (directory.exists()
               && !directory.isEmpty(QDir::AllEntries | QDir::Hidden | QDir::System
                                     | QDir::NoDotAndDotDot)) {
        return failure(ErrorKind::invalidValue,
                       QStringLiteral("%1 holds something else than a generated library")
                           .arg(folder.displayText()));
    }
    return writeWholeFile(folder.child(kStampName), kUnfinished);
}

/// Without a flush to the disk for each file, which a benchmark's input does not need.
Result<void> writeFile(const FilePath &path, const QByteArray &bytes)
{
    int descriptor = ::open(path.c_str(), O_WRONLY | O_CREAT | O_TRUNC | O_CLOEXEC, 0644);
    if (descriptor < 0 && errno == ENOENT && makeFolders(path.parent()))
        descriptor = ::open(path.c_str(), O_WRONLY | O_CREAT | O_TRUNC | O_CLOEXEC, 0644);
    if (descriptor < 0)
        return systemFailure(errno, FileAction::write, path);
    const ssize_t written = ::write(descriptor, bytes.constData(), size_t(bytes.size()));
    const int code = written < 0 ? errno : ENOSPC;
    ::close(descriptor);
    if (written != bytes.size())
        return systemFailure(code, FileAction::write, path);
    return {};
}

Result<void> writeFamily(const FilePath &folder, int number)
{
    for (const GeneratedFile &file : generateFamily(number))
        if (const auto written = writeFile(folder.child(file.path), file.bytes); !written)
            return written;
    return {};
}

/// On all processors; the first failure ends it.
Result<void> writeFamilies(const FilePath &folder, int families)
{
    std::atomic<int> next = 0;
    std::mutex lock;
    Result<void> outcome;
    const auto work = [&] {
        for (int number = next++; number < families; number = next++) {
            if (Result<void> written = writeFamily(folder, number); !written) {
                const std::lock_guard guard(lock);
                outcome = std::move(written);
                next = families;
            }
        }
    };
    std::vector<std::jthread> threads;
    for (unsigned i = 0; i < std::max(1U, std::thread::hardware_concurrency()); ++i)
        threads.emplace_back(work);
    threads.clear();
    return outcome;
}

} // namespace

Result<void> generateLibrary(const FilePath &folder, int families)
{
    const QByteArray stamp = stampOf(families);
    if (readStamp(folder) == stamp)
        return {};
    if (auto made = makeEmptyFolder(folder); !made)
        return made;
    if (auto written = writeFamilies(folder, families); !written)
        return written;
    return writeFileAtomically(folder.child(kStampName), stamp);
}

} // namespace lorva::bench
