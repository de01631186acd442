// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#include "platform/linux/ConfinedProcess.h"

#include "platform/linux/SystemCallFilter.h"

#include <algorithm>
#include <cerrno>
#include <csignal>
#include <exception>

#include <fcntl.h>
#include <sys/prctl.h>
#include <sys/resource.h>
#include <unistd.h>

// The shadow memory of these lies terabytes away.
#if defined(__SANITIZE_ADDRESS__) || defined(__SANITIZE_THREAD__)
#define LORVA_SHADOW_MEMORY
#elif defined(__has_feature)
#if __has_feature(address_sanitizer) || __has_feature(thread_sanitizer)                            \
    || __has_feature(memory_sanitizer)
#define LORVA_SHADOW_MEMORY
#endif
#endif

namespace lorva {

namespace {

#ifdef LORVA_SHADOW_MEMORY
constexpr bool kLimitsMemory = false;
#else
constexpr bool kLimitsMemory = true;
#endif

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
    if (kLimitsMemory)
        limit(RLIMIT_AS, rlim_t(limits.memoryBytes));
    // The soft limit's signal tells why; the hard one cannot be ignored.
    limit(RLIMIT_CPU, rlim_t(limits.processorTime.count()), 1);
    limit(RLIMIT_FSIZE, rlim_t(limits.answerBytes));
    limit(RLIMIT_CORE, 0);
    // Whoever ignores these passes it on to what he starts.
    for (const int signal : {SIGXCPU, SIGXFSZ, SIGSYS})
        std::signal(signal, SIG_DFL);
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

/// Whoever started us may have left descriptors open that are none of a font's business. Errors
/// still go where they go.
void closeAllBut(int answer)
{
    const int nothing = ::open("/dev/null", O_RDWR | O_CLOEXEC);
    ::dup2(nothing, STDIN_FILENO);
    ::dup2(nothing, STDOUT_FILENO);
    if (answer > STDERR_FILENO + 1)
        ::close_range(STDERR_FILENO + 1, unsigned(answer) - 1, 0);
    ::close_range(unsigned(answer) + 1, ~0U, 0);
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

} // namespace

void workConfined(const ConfinedWork &work, const ConfinementLimits &limits, int answer,
                  pid_t parent)
{
    // Memory that is not to be had ends in an exception that nobody can do anything about.
    std::set_terminate([] { ::_exit(kOutOfMemoryExit); });
    giveUpRights(parent);
    closeAllBut(answer);
    limitCosts(limits);
    const Result<QByteArray> outcome = outcomeOf(work);
    if (outcome)
        writeAll(answer, QByteArray(kAnswerMark + *outcome));
    else
        writeAll(answer,
                 QByteArray(QByteArray(1, kErrorMark) + char(outcome.error().kind)
                            + outcome.error().detail.toUtf8()));
    ::_exit(EXIT_SUCCESS);
}

} // namespace lorva
