// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#pragma once

#include "base/Result.h"

#include <QByteArray>
#include <QImage>

namespace lorva {

/// Reads an image that a stranger made: PNG, JPEG, GIF, WebP (the first picture of an animation),
/// BMP, SVG. Whatever its size, the result has at most `maximumSidePx` pixels a side, and memory
/// stays in proportion to that where the format allows. SVG: no script runs, nothing is fetched
/// from disk or net, work is bounded. Turned as its orientation says. Premultiplied ARGB.
///
/// Fails with `unsupported` (no image, or a format that we do not read), `malformed` (damaged), or
/// `tooLarge` (bytes, pixels or work beyond what is read at all); the detail is translated and fit
/// to be shown, without a full stop. Thread: any.
Result<QImage> readSafeImage(const QByteArray &bytes, int maximumSidePx);
/// The same without SVG. Thread: any.
Result<QImage> readSafePixels(const QByteArray &bytes, int maximumSidePx);

/// The customary file name extension ("png", "jpg", "svg", …) of what readSafeImage() reads; empty
/// for anything else. Looks at the first bytes only. Thread: any.
QByteArray safeImageExtension(const QByteArray &bytes);

} // namespace lorva
