// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#pragma once

#include "base/FilePath.h"

#include <vector>

namespace lorva {

/// Which file systems are mounted where, by the kernel's own list: asking it waits for no disk and
/// no network. A value. Thread: any.
class MountTable
{
public:
    /// What is mounted now; empty when the system does not tell.
    static MountTable current();
    /// proc(5), /proc/pid/mountinfo. Lines that are none are left out.
    static MountTable parse(const QByteArray &mountInfo);

    /// The path, by its letters (links are not followed), is on a file system that others change
    /// without this kernel's knowing; or on one that is not yet mounted.
    bool isRemote(const FilePath &path) const;

    static constexpr char kMountInfoPath[] = "/proc/self/mountinfo";

private:
    struct Mount
    {
        FilePath point;
        bool isRemote = false;
    };
    std::vector<Mount> m_mounts;
};

} // namespace lorva
