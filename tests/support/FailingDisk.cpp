// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#include "support/FailingDisk.h"

#include <atomic>
#include <cerrno>

#include <sys/syscall.h>
#include <unistd.h>

namespace {

std::atomic<bool> isFailing = false;

} // namespace

namespace lorva::test {

FailingDisk::FailingDisk()
{
    isFailing = true;
}

FailingDisk::~FailingDisk()
{
    isFailing = false;
}

} // namespace lorva::test

/// A program's own function comes before that of the C library, for the whole process.
extern "C" ssize_t pread(int file, void *bytes, size_t length, off_t offset)
{
    if (isFailing) {
        errno = EIO;
        return -1;
    }
    return ::syscall(SYS_pread64, file, bytes, length, offset);
}
