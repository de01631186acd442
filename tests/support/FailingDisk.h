// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#pragma once

namespace lorva::test {

/// While one lives, reads at a position of a file fail with EIO, as those of a dying disk or a
/// network that is gone do.
class FailingDisk
{
public:
    FailingDisk();
    ~FailingDisk();
    FailingDisk(const FailingDisk &) = delete;
    FailingDisk &operator=(const FailingDisk &) = delete;
};

} // namespace lorva::test
