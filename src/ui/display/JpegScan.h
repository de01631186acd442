// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>

namespace lorva {

/// What tells how much work a JPEG file makes, apart from its size in pixels.
struct JpegScan
{
    bool isProgressive = false;
    qint64 scanCount = 0;
};

/// Looks at the markers only; bytes that make no sense end it. Thread: any.
JpegScan scanJpeg(const QByteArray &bytes);

} // namespace lorva
