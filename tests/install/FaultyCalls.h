// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#pragma once

#include "base/FilePath.h"

namespace lorva::test {

/// While one lives, the calls of this process that change what lies below `root`, or open a file
/// there, are counted on all threads, and one of them goes wrong: with an error, or by the death of
/// the process just before it is made. Linked into a program, its functions come before those of
/// the C library.
class FaultyCalls
{
public:
    /// The code that stands for a death.
    static constexpr int kDeath = -1;

    /// The `faulty`th call, from 1 on, fails with `code`; 0: none does.
    FaultyCalls(const FilePath &root, int faulty, int code);
    ~FaultyCalls();
    FaultyCalls(const FaultyCalls &) = delete;
    FaultyCalls &operator=(const FaultyCalls &) = delete;

    /// Calls so far.
    static int count();
};

/// While it lives, stat() of that file does not come back, as on a network volume that is gone. Who
/// asked is let go when it ends.
class HungFile
{
public:
    explicit HungFile(const FilePath &file);
    ~HungFile();
    HungFile(const HungFile &) = delete;
    HungFile &operator=(const HungFile &) = delete;
};

} // namespace lorva::test
