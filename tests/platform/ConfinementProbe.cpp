// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT

// ConfinementProbe ATTEMPT FILE [SYSTEM-CALL…]: tries in a confined process what its name says, and
// prints what came of it: "done", the system's refusal, or the number of the error's kind. The
// system calls are such as the kernel does not have.
#include "platform/Confinement.h"

#include <seccomp.h>

#include <algorithm>
#include <atomic>
#include <cerrno>
#include <csignal>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <map>
#include <new>
#include <span>
#include <string>
#include <thread>
#include <vector>

#include <fcntl.h>
#include <linux/sched.h>
#include <poll.h>
#include <sys/mman.h>
#include <sys/prctl.h>
#include <sys/ptrace.h>
#include <sys/resource.h>
#include <sys/socket.h>
#include <sys/stat.h>
#include <sys/syscall.h>
#include <unistd.h>

namespace {

using namespace lorva;

struct Attempt
{
    std::string (*run)();
    std::chrono::seconds processorTime{10};
    std::chrono::seconds wallTime{30};
};

std::string file;
int kept = -1;
int stray = -1;
/// What prctl() told before the filter.
std::map<std::string, int> processState;

std::string outcome(long result)
{
    return result < 0 ? std::strerror(errno) : "done";
}

std::string done(bool isDone)
{
    return isDone ? "done" : "not done";
}

std::string opened(int flags)
{
    return outcome(::open(file.c_str(), flags, 0600));
}

void waitForEver()
{
    for (;;)
        ::poll(nullptr, 0, -1);
}

/// Waits from before the filter for its turn to open the file, and tells what came of it.
class EarlyThread
{
public:
    EarlyThread()
        : m_thread([this] {
            m_start.wait(false);
            m_told = opened(O_WRONLY);
        })
    {
    }
    std::string told()
    {
        m_start = true;
        m_start.notify_one();
        m_thread.join();
        return m_told;
    }

private:
    std::atomic<bool> m_start = false;
    std::string m_told;
    std::thread m_thread;
};
EarlyThread *earlyThread = nullptr;

const std::map<std::string, Attempt> kAttempts{
    {"read what was opened", {[] {
         char first = 0;
         return done(::pread(kept, &first, 1, 0) == 1 && first == 'f');
     }}},
    {"start a thread", {[] {
         int answer = 0;
         std::thread([&answer] { answer = 42; }).join();
         return done(answer == 42);
     }}},
    {"use a stray descriptor", {[] {
         struct stat info;
         return outcome(::fstat(stray, &info));
     }}},
    {"complain", {[] { return outcome(::write(STDERR_FILENO, "!", 1)); }}},
    {"make a file longer than its answer", {[] {
         ::lseek(kept, off_t(1) << 20, SEEK_SET);
         return outcome(::write(kept, "x", 1));
     }}},
    {"open for writing in an earlier thread", {[] { return earlyThread->told(); }}},
    {"gain no rights", {[] { return done(processState["no new rights"] == 1); }}},
    {"end with its parent", {[] { return done(processState["signal"] == SIGKILL); }}},
    {"hide its memory", {[] { return done(processState["dumpable"] == 0); }}},
    {"have no core dumps", {[] {
         rlimit core = {};
         return done(::getrlimit(RLIMIT_CORE, &core) == 0 && core.rlim_max == 0);
     }}},
    {"open for reading", {[] { return opened(O_RDONLY); }}},
    {"open for writing", {[] { return opened(O_WRONLY); }}},
    {"open for both", {[] { return opened(O_RDWR); }}},
    {"open and truncate", {[] { return opened(O_RDONLY | O_TRUNC); }}},
    {"open and make", {[] { return opened(O_RDONLY | O_CREAT); }}},
    {"rename", {[] { return outcome(::rename(file.c_str(), (file + "2").c_str())); }}},
    {"link", {[] { return outcome(::link(file.c_str(), (file + "2").c_str())); }}},
    {"remove", {[] { return outcome(::unlink(file.c_str())); }}},
    {"change rights", {[] { return outcome(::chmod(file.c_str(), 0777)); }}},
    {"open a socket", {[] { return outcome(::socket(AF_UNIX, SOCK_STREAM, 0)); }}},
    {"run a program", {[] {
         char *const none[]{nullptr};
         return outcome(::execve("/bin/true", none, none));
     }}},
    {"fork", {[] { return outcome(::fork()); }}},
    {"fork by the newest call", {[] {
         clone_args arguments = {};
         return outcome(::syscall(SYS_clone3, &arguments, sizeof arguments));
     }}},
    {"trace its parent",
     {[] { return outcome(::ptrace(PTRACE_SEIZE, ::getppid(), nullptr, nullptr)); }}},
    {"signal its parent", {[] { return outcome(::kill(::getppid(), SIGUSR1)); }}},
    {"signal a thread of its parent",
     {[] { return outcome(::syscall(SYS_tgkill, ::getppid(), ::getppid(), SIGUSR1)); }}},
    {"make code", {[] {
         void *const page =
             ::mmap(nullptr, 4096, PROT_READ | PROT_EXEC, MAP_PRIVATE | MAP_ANONYMOUS, -1, 0);
         return outcome(page == MAP_FAILED ? -1 : 0);
     }}},
    {"raise its limits", {[] {
         const rlimit all{RLIM_INFINITY, RLIM_INFINITY};
         return outcome(::setrlimit(RLIMIT_CPU, &all));
     }}},
    {"use much memory", {[]() -> std::string {
         std::vector<std::vector<char>> blocks;
         while (blocks.size() < 32)
             blocks.emplace_back(size_t(64) << 20, 'x');
         return done(blocks.back().back() == 'x');
     }}},
    {"never end",
     {[]() -> std::string {
          for (;;)
              std::atomic_signal_fence(std::memory_order_seq_cst);
      },
      std::chrono::seconds(1)}},
    {"wait for ever",
     {[]() -> std::string {
          waitForEver();
          return {};
      },
      std::chrono::seconds(60), std::chrono::seconds(1)}},
    {"close its end and wait",
     {[]() -> std::string {
          for (int i = STDERR_FILENO + 1; i < 64; ++i)
              ::close(i);
          waitForEver();
          return {};
      },
      std::chrono::seconds(60), std::chrono::seconds(1)}},
    {"answer too much", {[] { return std::string(size_t(2) << 20, 'x'); }}},
    {"crash", {[]() -> std::string { std::abort(); }}},
    {"throw", {[]() -> std::string { throw std::bad_alloc(); }}},
};

Result<void> prepare()
{
    processState["no new rights"] = ::prctl(PR_GET_NO_NEW_PRIVS, 0, 0, 0, 0);
    processState["dumpable"] = ::prctl(PR_GET_DUMPABLE, 0, 0, 0, 0);
    ::prctl(PR_GET_PDEATHSIG, &processState["signal"]);
    earlyThread = new EarlyThread;
    kept = ::open(file.c_str(), O_RDWR);
    return kept >= 0 ? Result<void>()
                     : failure(ErrorKind::notFound, QStringLiteral("there is no such file"));
}

/// From here on the kernel does not know them.
bool takeAway(std::span<char *const> calls)
{
    void *const filter = seccomp_init(SCMP_ACT_ALLOW);
    const bool isAway = std::all_of(calls.begin(), calls.end(), [filter](const char *call) {
        return seccomp_rule_add(filter, SCMP_ACT_ERRNO(ENOSYS), seccomp_syscall_resolve_name(call),
                                0)
            == 0;
    });
    const bool isLoaded = calls.empty() || seccomp_load(filter) == 0;
    seccomp_release(filter);
    return isAway && isLoaded;
}

} // namespace

int main(int argc, char **argv)
{
    const auto attempt = argc >= 3 ? kAttempts.find(argv[1]) : kAttempts.end();
    if (attempt == kAttempts.end() || !takeAway({argv + 3, argv + argc}))
        return 2;
    file = argv[2];
    stray = ::dup2(STDIN_FILENO, 50);
    const auto &[run, processorTime, wallTime] = attempt->second;
    const ConfinementLimits limits{qint64(1) << 30, processorTime, wallTime, qint64(1) << 20};
    const ConfinedWork work{QStringLiteral("it"), prepare, [run = run]() -> Result<QByteArray> {
                                return QByteArray::fromStdString(run());
                            }};
    const Result<QByteArray> answer = runConfined(work, limits);
    std::puts(answer ? answer->constData()
                     : QByteArray::number(int(answer.error().kind)).constData());
}
