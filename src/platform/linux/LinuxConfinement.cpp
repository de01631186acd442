// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#include "platform/Confinement.h"
#include "platform/FileDescriptor.h"
#include "platform/linux/ConfinedProcess.h"

#include <QCoreApplication>

#include <algorithm>
#include <cerrno>
#include <csignal>
#include <cstring>
#include <limits>
#include <optional>

#include <fcntl.h>
#include <poll.h>
#include <sys/syscall.h>
#include <sys/wait.h>

namespace lorva {

namespace {

using Clock = std::chrono::steady_clock;

/// Until the deadline: the time left as poll() takes it.
int millisecondsUntil(Clock::time_point deadline)
{
    const auto left = std::chrono::ceil<std::chrono::milliseconds>(deadline - Clock::now()).count();
    return int(std::clamp<qint64>(left, 0, std::numeric_limits<int>::max()));
}

enum class Reading { whole, late, tooLong };

/// All that is written to the other end until that is closed.
Reading readAnswer(int descriptor, Clock::time_point deadline, qint64 mostBytes, QByteArray &answer)
{
    char buffer[65536];
    for (;;) {
        pollfd waiting{descriptor, POLLIN, 0};
        const int ready = ::poll(&waiting, 1, millisecondsUntil(deadline));
        if (ready == 0)
            return Reading::late;
        if (ready < 0)
            continue;
        const ssize_t got = ::read(descriptor, buffer, sizeof buffer);
        if (got < 0 && errno == EINTR)
            continue;
        if (got <= 0)
            return Reading::whole;
        answer.append(buffer, got);
        if (answer.size() > mostBytes)
            return Reading::tooLong;
    }
}

struct Texts
{
    Q_DECLARE_TR_FUNCTIONS(Confinement)
};

tl::unexpected<Error> late(const QString &subject)
{
    return failure(ErrorKind::cancelled,
                   Texts::tr("%1: took too long to read and was given up").arg(subject));
}

/// Why a process ended that has not answered.
tl::unexpected<Error> failureOf(int status, const QString &subject)
{
    const int signal = WIFSIGNALED(status) ? WTERMSIG(status) : 0;
    // At the hard limit of processor time the kernel kills.
    if (signal == SIGXCPU || signal == SIGKILL)
        return late(subject);
    if (signal == SIGSYS)
        return failure(
            ErrorKind::invalidValue,
            Texts::tr("%1: reading it needed something that fonts never need, so it was stopped")
                .arg(subject));
    if (WIFEXITED(status) && WEXITSTATUS(status) == kOutOfMemoryExit)
        return failure(ErrorKind::tooLarge,
                       Texts::tr("%1: takes more memory than it may have").arg(subject));
    return failure(ErrorKind::malformed,
                   Texts::tr("%1: is damaged; reading it failed").arg(subject));
}

/// The child's words are only believed to be words.
Result<QByteArray> decoded(const QByteArray &answer, const QString &subject)
{
    if (answer.startsWith(kAnswerMark))
        return answer.mid(1);
    const int kind = answer.size() < 2 ? -1 : uchar(answer[1]);
    if (!answer.startsWith(kErrorMark) || kind < 0 || kind > int(ErrorKind::invalidValue))
        return failureOf(0, subject);
    return failure(ErrorKind(kind), QString::fromUtf8(answer.mid(2)));
}

/// One that hangs on a dead volume does not even die; then the system sees it off some day.
void kill(pid_t child)
{
    ::kill(child, SIGKILL);
    int status = 0;
    ::waitpid(child, &status, WNOHANG);
}

/// Waits for a process that has closed its end. One that has been taken over may do so and go on.
void waitUntil(Clock::time_point deadline, pid_t child)
{
    const FileDescriptor process(int(::syscall(SYS_pidfd_open, child, 0)));
    pollfd waiting{process.number(), POLLIN, 0};
    while (process.isOpen() && ::poll(&waiting, 1, millisecondsUntil(deadline)) < 0
           && errno == EINTR) { }
}

/// Nothing for one that has not ended by then.
std::optional<int> statusOf(pid_t child, Clock::time_point deadline)
{
    waitUntil(deadline, child);
    int status = 0;
    return ::waitpid(child, &status, WNOHANG) == child ? std::optional(status) : std::nullopt;
}

Result<QByteArray> outcomeOf(pid_t child, int answerEnd, const QString &subject,
                             const ConfinementLimits &limits)
{
    const Clock::time_point deadline = Clock::now() + limits.wallTime;
    QByteArray answer;
    switch (readAnswer(answerEnd, deadline, limits.answerBytes, answer)) {
    case Reading::late:
        kill(child);
        return late(subject);
    case Reading::tooLong:
        kill(child);
        return failure(ErrorKind::tooLarge, Texts::tr("%1: its picture is too large").arg(subject));
    case Reading::whole:
        break;
    }
    const std::optional<int> status = statusOf(child, deadline);
    if (!status) {
        kill(child);
        return late(subject);
    }
    return WIFEXITED(*status) && WEXITSTATUS(*status) == EXIT_SUCCESS ? decoded(answer, subject)
                                                                      : failureOf(*status, subject);
}

tl::unexpected<Error> noProcess()
{
    return failure(ErrorKind::ioFailure,
                   Texts::tr("no new process can be started: %1")
                       .arg(QString::fromLocal8Bit(std::strerror(errno))));
}

} // namespace

Result<QByteArray> runConfined(const ConfinedWork &work, const ConfinementLimits &limits)
{
    int ends[2];
    if (::pipe2(ends, O_CLOEXEC) != 0)
        return noProcess();
    const FileDescriptor readEnd(ends[0]);
    FileDescriptor writeEnd(ends[1]);
    const pid_t self = ::getpid();
    const pid_t child = ::fork();
    if (child < 0)
        return noProcess();
    if (child == 0)
        workConfined(work, limits, writeEnd.number(), self);
    writeEnd = FileDescriptor();
    return outcomeOf(child, readEnd.number(), work.subject, limits);
}

} // namespace lorva
