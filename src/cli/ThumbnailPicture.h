// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#pragma once

#include "base/Result.h"
#include "cli/ThumbnailLetters.h"

#include <QImage>

#include <memory>
#include <optional>

namespace lorva::cli {

/// The letters on a white sheet of that many pixels each way, as large as they can be with air
/// around, and centred by their ink. Four bytes a pixel, without padding. Nothing if the face has
/// no ink for them.
std::optional<QImage> drawnThumbnail(const std::shared_ptr<const FontFace> &face,
                                     const ThumbnailLetters &letters, int sidePx);

/// The bytes of drawnThumbnail() as PNG. Fails with malformed if they are not as many as such a
/// picture has, whatever they may be.
Result<QByteArray> encodedThumbnail(const QByteArray &pixels, int sidePx);

} // namespace lorva::cli
