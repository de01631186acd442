// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#pragma once

#include "base/FilePath.h"
#include "base/Result.h"

#include <chrono>
#include <stop_token>

namespace lorva {

/// Holds a lock file, so that of all processes only one does what it stands for.
///
/// The lock ends with the object or the process; the file stays, empty. Where the file system has
/// no locks, every process gets it. Thread: any; movable.
class RunLock
{
public:
    /// Makes the file, with its folders, if it is missing. Waits up to `patience` for other
    /// holders, or until `stop` is requested. Fails with cancelled when they keep it, else as
    /// opening the file does.
    static Result<RunLock> take(const FilePath &file, std::chrono::milliseconds patience,
                                const std::stop_token &stop = {});

    RunLock(RunLock &&other) noexcept;
    RunLock &operator=(RunLock &&other) noexcept;
    ~RunLock();

private:
    explicit RunLock(int descriptor);

    int m_descriptor = -1;
};

} // namespace lorva
