// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#include "platform/linux/SystemCallFilter.h"

#include <seccomp.h>

#include <algorithm>
#include <cerrno>
#include <cstdint>
#include <iterator>
#include <memory>
#include <span>
#include <type_traits>

#include <fcntl.h>
#include <sched.h>
#include <sys/mman.h>
#include <unistd.h>

namespace lorva {

namespace {

struct FilterRelease
{
    void operator()(scmp_filter_ctx filter) const { seccomp_release(filter); }
};
using Filter = std::unique_ptr<std::remove_pointer_t<scmp_filter_ctx>, FilterRelease>;

/// Memory, threads among ourselves, time, and use of what is open already. What is in none of the
/// lists is refused with ENOSYS: the C library has another way for what is new, and the rest is not
/// worth dying for.
constexpr int kAllowed[]{
    SCMP_SYS(brk),
    SCMP_SYS(munmap),
    SCMP_SYS(mremap),
    SCMP_SYS(madvise),
    SCMP_SYS(membarrier),
    SCMP_SYS(futex),
    SCMP_SYS(futex_time64),
    SCMP_SYS(set_robust_list),
    SCMP_SYS(get_robust_list),
    SCMP_SYS(rseq),
    SCMP_SYS(set_tid_address),
    SCMP_SYS(sched_yield),
    SCMP_SYS(sched_getaffinity),
    SCMP_SYS(nanosleep),
    SCMP_SYS(clock_nanosleep),
    SCMP_SYS(clock_nanosleep_time64),
    SCMP_SYS(clock_gettime),
    SCMP_SYS(clock_gettime64),
    SCMP_SYS(clock_getres),
    SCMP_SYS(gettimeofday),
    SCMP_SYS(time),
    SCMP_SYS(restart_syscall),
    SCMP_SYS(rt_sigaction),
    SCMP_SYS(rt_sigprocmask),
    SCMP_SYS(rt_sigreturn),
    SCMP_SYS(sigreturn),
    SCMP_SYS(sigaltstack),
    SCMP_SYS(getpid),
    SCMP_SYS(gettid),
    SCMP_SYS(getuid),
    SCMP_SYS(geteuid),
    SCMP_SYS(getgid),
    SCMP_SYS(getegid),
    SCMP_SYS(getrlimit),
    SCMP_SYS(ugetrlimit),
    SCMP_SYS(getrusage),
    SCMP_SYS(sysinfo),
    SCMP_SYS(uname),
    SCMP_SYS(getrandom),
    SCMP_SYS(read),
    SCMP_SYS(readv),
    SCMP_SYS(pread64),
    SCMP_SYS(preadv),
    SCMP_SYS(lseek),
    SCMP_SYS(_llseek),
    SCMP_SYS(write),
    SCMP_SYS(writev),
    SCMP_SYS(close),
    SCMP_SYS(eventfd2),
    SCMP_SYS(pipe2),
    SCMP_SYS(poll),
    SCMP_SYS(ppoll),
    SCMP_SYS(fstat),
    SCMP_SYS(fstat64),
    SCMP_SYS(newfstatat),
    SCMP_SYS(fstatat64),
    SCMP_SYS(stat),
    SCMP_SYS(stat64),
    SCMP_SYS(statx),
    SCMP_SYS(exit),
    SCMP_SYS(exit_group),
};

/// What drawing never does, and whoever has taken over the process would do next.
constexpr int kFatal[]{
    // Files.
    SCMP_SYS(creat),
    SCMP_SYS(truncate),
    SCMP_SYS(truncate64),
    SCMP_SYS(ftruncate),
    SCMP_SYS(ftruncate64),
    SCMP_SYS(fallocate),
    SCMP_SYS(rename),
    SCMP_SYS(renameat),
    SCMP_SYS(renameat2),
    SCMP_SYS(link),
    SCMP_SYS(linkat),
    SCMP_SYS(symlink),
    SCMP_SYS(symlinkat),
    SCMP_SYS(unlink),
    SCMP_SYS(unlinkat),
    SCMP_SYS(mkdir),
    SCMP_SYS(mkdirat),
    SCMP_SYS(rmdir),
    SCMP_SYS(mknod),
    SCMP_SYS(mknodat),
    SCMP_SYS(chmod),
    SCMP_SYS(fchmod),
    SCMP_SYS(fchmodat),
    SCMP_SYS(chown),
    SCMP_SYS(fchown),
    SCMP_SYS(lchown),
    SCMP_SYS(fchownat),
    SCMP_SYS(setxattr),
    SCMP_SYS(lsetxattr),
    SCMP_SYS(fsetxattr),
    SCMP_SYS(utimensat),
    SCMP_SYS(mount),
    SCMP_SYS(umount2),
    SCMP_SYS(chroot),
    SCMP_SYS(pivot_root),
    // The network and other programs.
    SCMP_SYS(socket),
    SCMP_SYS(socketpair),
    SCMP_SYS(socketcall),
    SCMP_SYS(connect),
    SCMP_SYS(bind),
    SCMP_SYS(listen),
    SCMP_SYS(accept),
    SCMP_SYS(accept4),
    SCMP_SYS(sendto),
    SCMP_SYS(sendmsg),
    SCMP_SYS(shmget),
    SCMP_SYS(msgget),
    SCMP_SYS(mq_open),
    // Processes.
    SCMP_SYS(execve),
    SCMP_SYS(execveat),
    SCMP_SYS(fork),
    SCMP_SYS(vfork),
    SCMP_SYS(ptrace),
    SCMP_SYS(process_vm_readv),
    SCMP_SYS(process_vm_writev),
    SCMP_SYS(kill),
    SCMP_SYS(tkill),
    SCMP_SYS(rt_sigqueueinfo),
    SCMP_SYS(rt_tgsigqueueinfo),
    SCMP_SYS(pidfd_open),
    SCMP_SYS(pidfd_send_signal),
    SCMP_SYS(pidfd_getfd),
    SCMP_SYS(setns),
    SCMP_SYS(unshare),
    // Ways around the filter, and into the kernel.
    SCMP_SYS(io_uring_setup),
    SCMP_SYS(bpf),
    SCMP_SYS(userfaultfd),
    SCMP_SYS(perf_event_open),
    SCMP_SYS(keyctl),
    SCMP_SYS(add_key),
    SCMP_SYS(init_module),
    SCMP_SYS(finit_module),
    SCMP_SYS(kexec_load),
};

constexpr uint32_t kStop = SCMP_ACT_KILL_PROCESS;

#if defined(__s390__)
constexpr unsigned kCloneFlags = 1;
#else
constexpr unsigned kCloneFlags = 0;
#endif

/// Any of these in the flags of an opening, and it is not just for reading.
constexpr int kOpenToChange[]{O_WRONLY, O_RDWR, O_CREAT, O_TRUNC};

scmp_arg_cmp bits(unsigned argument, scmp_datum_t mask, scmp_datum_t value)
{
    return scmp_arg_cmp{argument, SCMP_CMP_MASKED_EQ, mask, value};
}

bool add(const Filter &filter, uint32_t action, int call, std::span<const scmp_arg_cmp> when = {})
{
    const int code =
        seccomp_rule_add_array(filter.get(), action, call, unsigned(when.size()), when.data());
    // Calls that this machine's architecture does not have need no rule.
    return code == 0 || code == -EDOM;
}

bool addEach(const Filter &filter, uint32_t action, std::span<const int> calls)
{
    return std::all_of(calls.begin(), calls.end(),
                       [&](int call) { return add(filter, action, call); });
}

bool addWhen(const Filter &filter, uint32_t action, int call, scmp_arg_cmp when)
{
    return add(filter, action, call, std::span(&when, 1));
}

bool addOpening(const Filter &filter, int call, unsigned flagsArgument)
{
    scmp_datum_t any = 0;
    for (const int flag : kOpenToChange) {
        any |= scmp_datum_t(flag);
        if (!addWhen(filter, kStop, call, bits(flagsArgument, flag, flag)))
            return false;
    }
    return addWhen(filter, SCMP_ACT_ERRNO(EACCES), call, bits(flagsArgument, any, 0));
}

/// A new thread is one of ours, a new process is not. Of clone3() the flags lie in memory, where no
/// filter can look; refused, the C library takes clone().
bool addThreads(const Filter &filter)
{
    return addWhen(filter, SCMP_ACT_ALLOW, SCMP_SYS(clone),
                   bits(kCloneFlags, CLONE_THREAD, CLONE_THREAD))
        && addWhen(filter, kStop, SCMP_SYS(clone), bits(kCloneFlags, CLONE_THREAD, 0));
}

/// Memory that holds data. Code is there already.
bool addMappings(const Filter &filter)
{
    constexpr int kMappings[]{SCMP_SYS(mmap), SCMP_SYS(mmap2), SCMP_SYS(mprotect)};
    return std::all_of(std::begin(kMappings), std::end(kMappings), [&](int call) {
        return addWhen(filter, SCMP_ACT_ALLOW, call, bits(2, PROT_EXEC, 0))
            && addWhen(filter, SCMP_ACT_ERRNO(EACCES), call, bits(2, PROT_EXEC, PROT_EXEC));
    });
}

/// abort() signals its own process; limits are read and never set.
bool addOwnAffairs(const Filter &filter)
{
    const auto self = scmp_datum_t(::getpid());
    return addWhen(filter, SCMP_ACT_ALLOW, SCMP_SYS(tgkill), {0, SCMP_CMP_EQ, self, 0})
        && addWhen(filter, kStop, SCMP_SYS(tgkill), {0, SCMP_CMP_NE, self, 0})
        && addWhen(filter, SCMP_ACT_ALLOW, SCMP_SYS(prlimit64), {2, SCMP_CMP_EQ, 0, 0});
}

} // namespace

bool installSystemCallFilter()
{
    const Filter filter(seccomp_init(SCMP_ACT_ERRNO(ENOSYS)));
    // Threads that were there before as well.
    return filter && seccomp_attr_set(filter.get(), SCMP_FLTATR_CTL_TSYNC, 1) == 0
        && seccomp_attr_set(filter.get(), SCMP_FLTATR_ACT_BADARCH, kStop) == 0
        && addEach(filter, SCMP_ACT_ALLOW, kAllowed) && addEach(filter, kStop, kFatal)
        && addOpening(filter, SCMP_SYS(open), 1) && addOpening(filter, SCMP_SYS(openat), 2)
        && addThreads(filter) && addMappings(filter) && addOwnAffairs(filter)
        && seccomp_load(filter.get()) == 0;
}

} // namespace lorva
