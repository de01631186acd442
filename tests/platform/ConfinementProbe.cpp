// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT

// ConfinementProbe ATTEMPT FILE: tries in a confined process what its name says, and prints what
// came of it: "done", the system's refusal, or the number of the error's kind.
#include "platform/Confinement.h"

#include <atomic>
#include <cerrno>
#include <csignal>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <map>
#include <new>
#include <string>
#include <thread>
#include <vector>

#include <fcntl.h>
#include <linux/sched.h>
#include <poll.h>
#include <sys/mman.h>
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
    std::chrono::seconds processorTime{60};
    std::chrono::seconds wallTime{300};
};

std::string file;
int kept = -1;
int stray = -1;

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

Result<void> openFile()
{
    kept = ::open(file.c_str(), O_RDONLY);
    return kept >= 0 ? Result<void>()
                     : failure(ErrorKind::notFound, QStringLiteral("there is no such file"));
}

} // namespace

int main(int argc, char **argv)
{
    const auto attempt = argc == 3 ? kAttempts.find(argv[1]) : kAttempts.end();
    if (attempt == kAttempts.end())
        return 2;
    file = argv[2];
    stray = ::dup2(STDIN_FILENO, 50);
    const auto &[run, processorTime, wallTime] = attempt->second;
    const ConfinementLimits limits{qint64(1) << 30, processorTime, wallTime, qint64(1) << 20};
    const ConfinedWork work{QStringLiteral("it"), openFile, [run = run]() -> Result<QByteArray> {
                                return QByteArray::fromStdString(run());
                            }};
    const Result<QByteArray> answer = runConfined(work, limits);
    std::puts(answer ? answer->constData()
                     : QByteArray::number(int(answer.error().kind)).constData());
}
