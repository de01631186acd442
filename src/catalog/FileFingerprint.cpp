// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#include "catalog/FileFingerprint.h"

#include <sys/stat.h>

namespace lorva {

std::optional<FileFingerprint> fingerprintOf(const FilePath &path)
{
    // 2001-01-01 00:00 UTC in seconds since 1970.
    constexpr qint64 kReferenceDate = 978307200;
    struct stat info;
    if (::stat(path.c_str(), &info) != 0)
        return std::nullopt;
    const FileTime modified =
        double(info.st_mtim.tv_sec - kReferenceDate) + double(info.st_mtim.tv_nsec) * 1e-9;
    return FileFingerprint{info.st_size, modified};
}

} // namespace lorva
