// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#pragma once

#include "catalog/CatalogTypes.h"

#include <optional>

namespace lorva {

/// What tells whether a file is still the one that was read.
struct FileFingerprint
{
    qint64 fileSize = 0;
    FileTime modified = 0;
    bool operator==(const FileFingerprint &) const = default;
};

/// Nothing when the file cannot be looked at. Thread: any.
std::optional<FileFingerprint> fingerprintOf(const FilePath &path);

} // namespace lorva
