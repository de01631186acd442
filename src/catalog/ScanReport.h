// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#pragma once

#include <chrono>

namespace lorva {

/// What one scan did, for those who ask where its time went.
struct ScanReport
{
    using Duration = std::chrono::steady_clock::duration;

    int filesFound = 0;
    int filesRead = 0;
    /// Unchanged since they were read, in this process or an earlier one.
    int filesReused = 0;
    /// New ones; the others were known.
    int familiesIdentified = 0;

    Duration readingCache{};
    /// Finding the files, and looking which of them changed.
    Duration enumerating{};
    Duration scanning{};
    Duration identifying{};
    Duration preparing{};
};

} // namespace lorva
