// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#pragma once

#include "base/FilePath.h"

#include <vector>

namespace lorva {

/// Knows the folders whose fonts belong to the library. Thread: main.
class WatchedFolderProvider
{
public:
    virtual ~WatchedFolderProvider() = default;
    /// Where the user's folders are now, in the user's order.
    virtual std::vector<FilePath> resolvedFolders() = 0;
};

/// Folders that are given once, for one run.
class GivenFolders final : public WatchedFolderProvider
{
public:
    explicit GivenFolders(std::vector<FilePath> folders)
        : m_folders(std::move(folders))
    {
    }
    std::vector<FilePath> resolvedFolders() override { return m_folders; }

private:
    const std::vector<FilePath> m_folders;
};

} // namespace lorva
