// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#include "platform/Confinement.h"
#include "platform/FileDescriptor.h"
#include "platform/linux/ConfinedProcess.h"

#include <QCoreApplication>

#include <algorithm>
#include <cerrno>
#include <csignal>
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

/// How often is looked for what the system cannot tell of.
constexpr int kPauseMilliseconds = 5;

/// Waits until the descriptor has something; where there is none, or the kernel has no memory for
/// the waiting, a moment. False when the time is up.
bool hasWaited(int descriptor, Clock::time_point deadline)
{
    const int left = millisecondsUntil(deadline);
    pollfd waiting{descriptor, POLLIN, 0};
    if (descriptor < 0 || (::poll(&waiting, 1, left) < 0 && errno != EINTR))
        ::poll(nullptr, 0, std::min(left, kPauseMilliseconds));
    return left > 0;
}

enum class Reading { whole, late, tooLong };

/// All that is written to the other end until that is closed. The descriptor does not block.
Reading readAnswer(int descriptor, Clock::time_point deadline, qint64 mostBytes, QByteArray &answer)
{
    char buffer[65536];
    for (;;) {
        const ssize_t got = ::read(descriptor, buffer, sizeof buffer);
        if (got > 0)
            answer.append(buffer, got);
        if (answer.size() > mostBytes)
            return Reading::tooLong;
        if (got > 0 || (got < 0 && errno == EINTR))
            continue;
        if (got == 0 || errno != EAGAIN)
            return Reading::whole;
        if (!hasWaited(descriptor, deadline))
            return Reading::late;
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
    if (signal == SIGXCPU)
        return late(subject);
    // The kernel kills at the hard limit of processor time, and when the machine's memory runs out.
    if (signal == SIGKILL)
        return failure(
            ErrorKind::cancelled,
            Texts::tr("%1: took too much time or memory to read and was given up").arg(subject));
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

/// One line, whatever the child wrote.
QString words(const QByteArray &utf8)
{
    QString text = QString::fromUtf8(utf8.first(std::min(utf8.size(), kMostDetailBytes)));
    for (QChar &each : text) {
        const QChar::Category category = each.category();
        if (category == QChar::Other_Control || category == QChar::Separator_Line
            || category == QChar::Separator_Paragraph)
            each = QChar::ReplacementCharacter;
    }
    return text;
}

/// The child's words are only believed to be words.
Result<QByteArray> decoded(const QByteArray &answer, const QString &subject)
{
    if (answer.startsWith(kAnswerMark))
        return answer.mid(1);
    const int kind = answer.size() < 2 ? -1 : uchar(answer[1]);
    if (!answer.startsWith(kErrorMark) || kind < 0 || kind > int(kLastErrorKind))
        return failureOf(0, subject);
    return failure(ErrorKind(kind), words(answer.mid(2)));
}

/// One that hangs on a dead volume does not even die; then the system sees it off some day.
void kill(pid_t child)
{
    ::kill(child, SIGKILL);
    int status = 0;
    ::waitpid(child, &status, WNOHANG);
}

/// Of a process that has closed its end; one that has been taken over may do so and go on. Nothing
/// for one that has not ended by then.
std::optional<int> statusOf(pid_t child, Clock::time_point deadline)
{
    // Kernels before 5.3 have none.
    const FileDescriptor process(int(::syscall(SYS_pidfd_open, child, 0)));
    int status = 0;
    pid_t ended = 0;
    do {
        ended = ::waitpid(child, &status, WNOHANG);
    } while (ended == 0 && hasWaited(process.number(), deadline));
    return ended == child ? std::optional(status) : std::nullopt;
}

/// With the mark, or of an error.
qint64 mostBytes(const ConfinementLimits &limits)
{
    return std::max<qint64>(limits.answerBytes, 1 + kMostDetailBytes) + 1;
}

Result<QByteArray> outcomeOf(pid_t child, int answerEnd, const QString &subject,
                             const ConfinementLimits &limits)
{
    const Clock::time_point deadline = Clock::now() + limits.wallTime;
    QByteArray answer;
    switch (readAnswer(answerEnd, deadline, mostBytes(limits), answer)) {
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

/// Whoever ignores the end of children, as who started us may have done, is not told how they
/// ended (waitpid(2)). As it was again at the end of the scope.
class HeardChildren
{
public:
    HeardChildren()
    {
        struct sigaction heard = {};
        heard.sa_handler = SIG_DFL;
        ::sigaction(SIGCHLD, &heard, &m_before);
    }
    ~HeardChildren() { ::sigaction(SIGCHLD, &m_before, nullptr); }
    HeardChildren(const HeardChildren &) = delete;
    HeardChildren &operator=(const HeardChildren &) = delete;

private:
    struct sigaction m_before = {};
};

} // namespace

Result<QByteArray> runConfined(const ConfinedWork &work, const ConfinementLimits &limits)
{
    int ends[2];
    if (::pipe2(ends, O_CLOEXEC) != 0)
        return noProcess();
    const FileDescriptor readEnd(ends[0]);
    FileDescriptor writeEnd(ends[1]);
    if (::fcntl(readEnd.number(), F_SETFL, O_NONBLOCK) != 0)
        return noProcess();
    const HeardChildren heard;
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
