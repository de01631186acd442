// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#include "platform/RunLock.h"

#include "base/SystemError.h"
#include "base/WholeFile.h"
#include "platform/FileDescriptor.h"

#include <QCoreApplication>
#include <QDeadlineTimer>

#include <algorithm>
#include <cerrno>
#include <thread>
#include <utility>

#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

namespace lorva {

namespace {

struct Texts
{
    Q_DECLARE_TR_FUNCTIONS(RunLock)
};

using namespace std::chrono_literals;

/// A blocked flock() could not be given up in time, so it is tried again and again.
constexpr std::chrono::milliseconds kPause = 10ms;

/// False also when the file was removed meanwhile: others then lock its successor.
bool isStillThatFile(int descriptor, const FilePath &file)
{
    struct stat own;
    struct stat named;
    return ::fstat(descriptor, &own) == 0 && ::stat(file.c_str(), &named) == 0
        && own.st_dev == named.st_dev && own.st_ino == named.st_ino;
}

enum class Attempt { got, held, fileReplaced };

Attempt tryLock(int descriptor, const FilePath &file)
{
    while (::flock(descriptor, LOCK_EX | LOCK_NB) != 0) {
        if (errno == EWOULDBLOCK)
            return Attempt::held;
        if (errno != EINTR)
            return Attempt::got; // no locks here: better all than none
    }
    return isStillThatFile(descriptor, file) ? Attempt::got : Attempt::fileReplaced;
}

FileDescriptor openLockFile(const FilePath &file)
{
    return FileDescriptor(
        ::open(file.c_str(), O_RDWR | O_CREAT | O_CLOEXEC | O_NOCTTY | O_NONBLOCK, 0600));
}

} // namespace

RunLock::RunLock(int descriptor)
    : m_descriptor(descriptor)
{
}

RunLock::RunLock(RunLock &&other) noexcept
    : m_descriptor(std::exchange(other.m_descriptor, -1))
{
}

RunLock &RunLock::operator=(RunLock &&other) noexcept
{
    std::swap(m_descriptor, other.m_descriptor);
    return *this;
}

RunLock::~RunLock()
{
    if (m_descriptor >= 0)
        ::close(m_descriptor);
}

Result<RunLock> RunLock::take(const FilePath &file, std::chrono::milliseconds patience,
                              const std::stop_token &stop)
{
    if (Result<void> made = makeFolders(file.parent()); !made)
        return tl::unexpected(std::move(made).error());
    const QDeadlineTimer deadline(patience);
    for (;;) {
        FileDescriptor opened = openLockFile(file);
        if (!opened.isOpen())
            return systemFailure(errno, FileAction::lock, file);
        const Attempt attempt = tryLock(opened.number(), file);
        if (attempt == Attempt::got)
            return RunLock(opened.release());
        if (deadline.hasExpired() || stop.stop_requested())
            return failure(
                ErrorKind::cancelled,
                Texts::tr("cannot lock %1: another process holds it").arg(file.displayText()));
        std::this_thread::sleep_for(
            std::min(kPause, std::chrono::milliseconds(deadline.remainingTime() + 1)));
    }
}

} // namespace lorva
