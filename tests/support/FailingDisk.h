// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#pragma once

namespace lorva::test {

/// While one lives, reads from this position of a file on fail with EIO, as those of a dying disk
/// or of a network that is gone do.
class FailingDisk
{
public:
    explicit FailingDisk(long long fromByte);
    ~FailingDisk();
    FailingDisk(const FailingDisk &) = delete;
    FailingDisk &operator=(const FailingDisk &) = delete;
};

} // namespace lorva::test
