// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#include "FaultyCalls.h"

#include <atomic>
#include <cerrno>
#include <cstdarg>
#include <cstdio>
#include <cstring>

#include <fcntl.h>
#include <sys/stat.h>
#include <sys/syscall.h>
#include <unistd.h>

namespace {

std::atomic<bool> isArmed = false;
std::atomic<int> calls = 0;
int faultyCall = 0;
int faultCode = 0;
char rootPath[PATH_MAX];
std::atomic<bool> isHung = false;
char hungPath[PATH_MAX];

bool isBelowRoot(const char *path)
{
    return std::strncmp(path, rootPath, std::strlen(rootPath)) == 0;
}

bool isBelowRoot(int folder, const char *path)
{
    if (path[0] == '/')
        return isBelowRoot(path);
    char link[64];
    char target[PATH_MAX];
    std::snprintf(link, sizeof link, "/proc/self/fd/%d", folder);
    const ssize_t length =
        folder == AT_FDCWD ? -1 : ::syscall(SYS_readlink, link, target, sizeof target - 1);
    if (length < 0)
        return false;
    target[length] = 0;
    return isBelowRoot(target);
}

/// What is no file (a socket, an event counter) is none of ours.
bool isBelowRoot(int file)
{
    struct stat info;
    return ::fstat(file, &info) == 0 && (S_ISREG(info.st_mode) || S_ISDIR(info.st_mode))
        && isBelowRoot(file, "");
}

/// True when this call is the one that goes wrong, with errno set.
bool goesWrong()
{
    if (calls.fetch_add(1) + 1 != faultyCall)
        return false;
    if (faultCode == lorva::test::FaultyCalls::kDeath)
        ::syscall(SYS_exit_group, 137);
    errno = faultCode;
    return true;
}

template <class... Where>
bool goesWrong(Where... where)
{
    return isArmed && isBelowRoot(where...) && goesWrong();
}

} // namespace

namespace lorva::test {

FaultyCalls::FaultyCalls(const FilePath &root, int faulty, int code)
{
    std::snprintf(rootPath, sizeof rootPath, "%s", root.c_str());
    faultyCall = faulty;
    faultCode = code;
    calls = 0;
    isArmed = true;
}

FaultyCalls::~FaultyCalls()
{
    isArmed = false;
}

int FaultyCalls::count()
{
    return calls;
}

HungFile::HungFile(const FilePath &file)
{
    std::snprintf(hungPath, sizeof hungPath, "%s", file.c_str());
    isHung = true;
}

HungFile::~HungFile()
{
    isHung = false;
    isHung.notify_all();
}

} // namespace lorva::test

// NOLINTBEGIN(readability-inconsistent-declaration-parameter-name, cert-dcl50-cpp): the library's
extern "C" {

#define CALL(number, ...) static_cast<int>(::syscall(number, __VA_ARGS__))

int stat(const char *path, struct stat *info)
{
    if (isHung && std::strcmp(path, hungPath) == 0)
        isHung.wait(true);
    return CALL(SYS_newfstatat, AT_FDCWD, path, info, 0);
}

int openat(int folder, const char *path, int flags, ...)
{
    va_list arguments;
    va_start(arguments, flags);
    const int mode = va_arg(arguments, int);
    va_end(arguments);
    return goesWrong(folder, path) ? -1 : CALL(SYS_openat, folder, path, flags, mode);
}

int open(const char *path, int flags, ...)
{
    va_list arguments;
    va_start(arguments, flags);
    const int mode = va_arg(arguments, int);
    va_end(arguments);
    return openat(AT_FDCWD, path, flags, mode);
}

int open64(const char *path, int flags, ...)
{
    va_list arguments;
    va_start(arguments, flags);
    const int mode = va_arg(arguments, int);
    va_end(arguments);
    return openat(AT_FDCWD, path, flags, mode);
}

int openat64(int folder, const char *path, int flags, ...)
{
    va_list arguments;
    va_start(arguments, flags);
    const int mode = va_arg(arguments, int);
    va_end(arguments);
    return openat(folder, path, flags, mode);
}

ssize_t write(int file, const void *bytes, size_t length)
{
    return goesWrong(file) ? -1 : ::syscall(SYS_write, file, bytes, length);
}

ssize_t pwrite64(int file, const void *bytes, size_t length, off64_t offset)
{
    return goesWrong(file) ? -1 : ::syscall(SYS_pwrite64, file, bytes, length, offset);
}

ssize_t pwrite(int file, const void *bytes, size_t length, off_t offset)
{
    return pwrite64(file, bytes, length, offset);
}

ssize_t copy_file_range(int from, off64_t *fromOffset, int to, off64_t *toOffset, size_t length,
                        unsigned flags)
{
    if (goesWrong(to))
        return -1;
    return ::syscall(SYS_copy_file_range, from, fromOffset, to, toOffset, length, flags);
}

int fsync(int file)
{
    return goesWrong(file) ? -1 : CALL(SYS_fsync, file);
}

int fdatasync(int file)
{
    return goesWrong(file) ? -1 : CALL(SYS_fdatasync, file);
}

int ftruncate64(int file, off64_t length)
{
    return goesWrong(file) ? -1 : CALL(SYS_ftruncate, file, length);
}

int ftruncate(int file, off_t length)
{
    return ftruncate64(file, length);
}

int renameat2(int fromFolder, const char *from, int toFolder, const char *to, unsigned flags)
{
    if (goesWrong(toFolder, to))
        return -1;
    return CALL(SYS_renameat2, fromFolder, from, toFolder, to, flags);
}

int renameat(int fromFolder, const char *from, int toFolder, const char *to)
{
    return renameat2(fromFolder, from, toFolder, to, 0);
}

int rename(const char *from, const char *to)
{
    return renameat2(AT_FDCWD, from, AT_FDCWD, to, 0);
}

int linkat(int fromFolder, const char *from, int toFolder, const char *to, int flags)
{
    if (goesWrong(toFolder, to))
        return -1;
    return CALL(SYS_linkat, fromFolder, from, toFolder, to, flags);
}

int link(const char *from, const char *to)
{
    return linkat(AT_FDCWD, from, AT_FDCWD, to, 0);
}

int symlinkat(const char *target, int folder, const char *path)
{
    return goesWrong(folder, path) ? -1 : CALL(SYS_symlinkat, target, folder, path);
}

int symlink(const char *target, const char *path)
{
    return symlinkat(target, AT_FDCWD, path);
}

int unlinkat(int folder, const char *path, int flags)
{
    return goesWrong(folder, path) ? -1 : CALL(SYS_unlinkat, folder, path, flags);
}

int unlink(const char *path)
{
    return unlinkat(AT_FDCWD, path, 0);
}

int mkdirat(int folder, const char *path, mode_t mode)
{
    return goesWrong(folder, path) ? -1 : CALL(SYS_mkdirat, folder, path, mode);
}

int mkdir(const char *path, mode_t mode)
{
    return mkdirat(AT_FDCWD, path, mode);
}

int utimensat(int folder, const char *path, const timespec times[2], int flags)
{
    return goesWrong(folder, path) ? -1 : CALL(SYS_utimensat, folder, path, times, flags);
}

int futimens(int file, const timespec times[2])
{
    return goesWrong(file) ? -1 : CALL(SYS_utimensat, file, nullptr, times, 0);
}

} // extern "C"
// NOLINTEND(readability-inconsistent-declaration-parameter-name, cert-dcl50-cpp)
