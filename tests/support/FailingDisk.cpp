// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#include "support/FailingDisk.h"

#include <atomic>
#include <cerrno>
#include <limits>

#include <sys/syscall.h>
#include <unistd.h>

namespace {

constexpr long long kHealthy = std::numeric_limits<long long>::max();
std::atomic<long long> failsFrom = kHealthy;

} // namespace

namespace lorva::test {

FailingDisk::FailingDisk(long long fromByte)
{
    failsFrom = fromByte;
}

FailingDisk::~FailingDisk()
{
    failsFrom = kHealthy;
}

} // namespace lorva::test

/// A program's own function comes before that of the C library, for the whole process.
// NOLINTNEXTLINE(readability-inconsistent-declaration-parameter-name): the library's are reserved
extern "C" ssize_t pread(int file, void *bytes, size_t length, off_t offset)
{
    if (offset >= failsFrom) {
        errno = EIO;
        return -1;
    }
    return ::syscall(SYS_pread64, file, bytes, length, offset);
}
