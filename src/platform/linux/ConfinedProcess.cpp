// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#include "platform/linux/ConfinedProcess.h"

#include "base/Sanitizers.h"
#include "platform/linux/SystemCallFilter.h"

#include <QCoreApplication>

#include <algorithm>
#include <cerrno>
#include <csignal>
#include <cstring>
#include <exception>
#include <vector>

#include <dirent.h>
#include <fcntl.h>
#include <sys/prctl.h>
#include <sys/resource.h>
#include <unistd.h>

namespace lorva {

namespace {

struct Texts
{
    Q_DECLARE_TR_FUNCTIONS(Confinement)
};

/// Never more than whoever started us allows. The hard limit, which a process cannot raise again,
/// leaves `room` above the soft one.
void limit(__rlimit_resource resource, rlim_t most, rlim_t room = 0)
{
    rlimit now = {};
    if (::getrlimit(resource, &now) != 0)
        return;
    const rlimit wanted{std::min(most, now.rlim_cur), std::min(most + room, now.rlim_max)};
    ::setrlimit(resource, &wanted);
}

void limitCosts(const ConfinementLimits &limits)
{
    if (!kHasShadowMemory)
        limit(RLIMIT_AS, rlim_t(limits.memoryBytes));
    // The soft limit's signal tells why; the hard one cannot be ignored.
    limit(RLIMIT_CPU, rlim_t(limits.processorTime.count()), 1);
    limit(RLIMIT_FSIZE, rlim_t(limits.answerBytes));
    limit(RLIMIT_CORE, 0);
    // Whoever ignores these passes it on to what he starts.
    for (const int signal : {SIGXCPU, SIGSYS})
        std::signal(signal, SIG_DFL);
    // A file that may not grow refuses; that is no reason to die.
    std::signal(SIGXFSZ, SIG_IGN);
}

void giveUpRights(pid_t parent)
{
    ::prctl(PR_SET_NO_NEW_PRIVS, 1, 0, 0, 0);
    // No other process of the user may look into this one, and no core is written.
    ::prctl(PR_SET_DUMPABLE, 0, 0, 0, 0);
    ::prctl(PR_SET_PDEATHSIG, SIGKILL, 0, 0, 0);
    // It may have gone before that took hold.
    if (::getppid() != parent)
        ::_exit(EXIT_FAILURE);
}

/// What the listing of our descriptors has between these, both included.
bool closeListed(unsigned first, unsigned last)
{
    DIR *const listing = ::opendir("/proc/self/fd");
    if (listing == nullptr)
        return false;
    std::vector<unsigned> numbers;
    errno = 0;
    while (const dirent *const entry = ::readdir(listing)) {
        const unsigned number = QByteArrayView(entry->d_name).toUInt();
        if (number >= first && number <= last)
            numbers.push_back(number);
    }
    const bool isWhole = errno == 0;
    ::closedir(listing);
    std::for_each(numbers.begin(), numbers.end(), [](unsigned each) { ::close(int(each)); });
    return isWhole;
}

/// Kernels before 5.9 cannot close them all at once.
bool closeBetween(unsigned first, unsigned last)
{
    return first > last || ::close_range(first, last, 0) == 0 || closeListed(first, last);
}

/// Of a sanitizer's faults somebody must hear.
constexpr int kLastSilenced = kHasShadowMemory ? STDOUT_FILENO : STDERR_FILENO;

/// Whoever started us may have left descriptors open that are none of a font's business. Of the
/// standard ones, others may hold that they are open.
bool keepOnly(int answer)
{
    const int nothing = ::open("/dev/null", O_RDWR | O_CLOEXEC);
    bool isSilent = nothing >= 0;
    for (int number = STDIN_FILENO; number <= kLastSilenced; ++number)
        isSilent = isSilent && ::dup2(nothing, number) == number;
    return isSilent && closeBetween(STDERR_FILENO + 1, unsigned(answer) - 1)
        && closeBetween(unsigned(answer) + 1, ~0U);
}

void writeAll(int descriptor, QByteArrayView bytes)
{
    while (!bytes.isEmpty()) {
        const ssize_t written = ::write(descriptor, bytes.data(), size_t(bytes.size()));
        if (written < 0 && errno == EINTR)
            continue;
        if (written <= 0)
            ::_exit(EXIT_FAILURE);
        bytes = bytes.sliced(written);
    }
}

Result<QByteArray> outcomeOf(const ConfinedWork &work)
{
    if (const Result<void> prepared = work.prepare(); !prepared)
        return tl::unexpected(prepared.error());
    // A kernel without filters still has the limits.
    installSystemCallFilter();
    return work.work();
}

/// In UTF-8.
QByteArray shortDetail(const QString &detail)
{
    const QByteArray bytes = detail.toUtf8();
    qsizetype length = std::min(bytes.size(), kMostDetailBytes);
    // Not within a character.
    while (length < bytes.size() && (uchar(bytes[length]) & 0xC0) == 0x80)
        --length;
    return bytes.first(length);
}

QByteArray written(const Result<QByteArray> &outcome)
{
    if (outcome)
        return kAnswerMark + *outcome;
    const Error &error = outcome.error();
    return QByteArray(1, kErrorMark) + char(error.kind) + shortDetail(error.detail);
}

} // namespace

tl::unexpected<Error> noProcess()
{
    return failure(ErrorKind::ioFailure,
                   Texts::tr("no new process can be started: %1")
                       .arg(QString::fromLocal8Bit(std::strerror(errno))));
}

void workConfined(const ConfinedWork &work, const ConfinementLimits &limits, int answer,
                  pid_t parent)
{
    // Memory that is not to be had ends in an exception that nobody can do anything about.
    std::set_terminate([] { ::_exit(kOutOfMemoryExit); });
    giveUpRights(parent);
    // Out of the way of the standard ones.
    const int end = ::fcntl(answer, F_DUPFD, STDERR_FILENO + 1);
    if (end < 0 || !keepOnly(end)) {
        writeAll(end < 0 ? answer : end, written(noProcess()));
        ::_exit(EXIT_SUCCESS);
    }
    limitCosts(limits);
    writeAll(end, written(outcomeOf(work)));
    ::_exit(EXIT_SUCCESS);
}

} // namespace lorva
