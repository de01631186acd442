// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#pragma once

#include "base/FilePath.h"
#include "base/Result.h"
#include "platform/Confinement.h"

#include <optional>

namespace lorva::cli {

/// Sides of a thumbnail in pixels. File managers ask for 128 to 1024.
inline constexpr int kLeastThumbnailSide = 16;
inline constexpr int kMostThumbnailSide = 2048;

/// What a thumbnail may cost. File managers ask for one of every font in a folder, downloads
/// included, without anybody having opened it.
inline constexpr ConfinementLimits kThumbnailLimits{
    // Measured, 0.2 GB of addresses do for the largest CJK and emoji fonts at hand, libraries
    // included. A face may take kMaxFaceBytes more, and each of a few threads a stack and a heap.
    qint64(768) << 20,
    // The slowest fonts at hand take a hundredth.
    std::chrono::seconds(5),
    // Slow volumes may think about it; nobody waits longer for a picture.
    std::chrono::seconds(20),
    // The pixels of the largest.
    qint64(4) * kMostThumbnailSide *kMostThumbnailSide,
};

struct ThumbnailRequest
{
    FilePath font;
    FilePath picture;
    /// Of a collection; absent: the first that can be drawn.
    std::optional<int> faceIndex;
    int sidePx = 256;
};

/// Draws letters of the font on a square sheet and writes it as a PNG, whole or not at all. The
/// font is read in a confined process, of which nothing but pixels is taken. Fails as
/// FontFile::open() and runConfined() do, with unsupported for a font that has nothing to show, and
/// for a picture that cannot be written or would take the place of a font; the detail names the
/// file.
Result<void> writeThumbnail(const ThumbnailRequest &request);

} // namespace lorva::cli
