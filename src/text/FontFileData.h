// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#pragma once

#include "text/FontFile.h"
#include "text/OpenedFile.h"
#include "text/SfntDirectory.h"

#include <mutex>

namespace lorva {

/// What a FontFile and its faces share: where the file is, how it was, and how to read it again.
struct FontFile::Data
{
    FilePath path;
    FileIdentity identity;
    std::vector<FaceLocation> locations;

    /// The opening that a scope keeps, else a new one. Fails as OpenedFile::open(), and with
    /// malformed when the file is no longer the one that was first opened.
    Result<std::shared_ptr<const OpenedFile>> reopen() const;
    /// Lets every reopen() share `opening` for as long as the caller holds it.
    void keepOpen(const std::shared_ptr<const OpenedFile> &opening) const;

private:
    mutable std::mutex m_mutex;
    mutable std::weak_ptr<const OpenedFile> m_opening;
};

} // namespace lorva
