// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#pragma once

#include "base/FilePath.h"
#include "base/Result.h"

#include <QColor>
#include <QSize>

#include <functional>

class QImage;
class QPainter;

namespace lorva {

enum class PictureFormat { png, svg, pdf };

/// What a picture file is to show. Units: points.
struct PictureContent
{
    QSize size;
    /// Of a PNG.
    int pixelsPerPoint = 1;
    /// Filled beforehand; what is not opaque leaves the picture transparent.
    QColor background = Qt::white;
    /// Characters that XML has no place for become spaces.
    QString title;
    /// What a PDF says it was made with.
    QString creator;
    /// Paints on pixels, which the outlines may fit themselves to.
    std::function<void(QImage &)> onImage;
    /// Paints on a page without pixels.
    std::function<void(QPainter &)> onPage;
};

/// By the ending of the file's name, in any case: ".png", ".svg" or ".pdf". Fails with usage for
/// another one.
Result<PictureFormat> pictureFormat(const FilePath &file);

/// The bytes of the picture file, the same for the same content. In SVG and PDF what is painted as
/// paths stays paths; one point is one unit there (1/72 inch in a PDF). Fails with tooLarge or
/// ioFailure. Thread: any.
Result<QByteArray> encodedPicture(const PictureContent &content, PictureFormat format);

/// Fails with invalidValue for what holds a font, whatever its name: a slip of the hand must not
/// cost anyone a font.
Result<void> refuseFontContent(const FilePath &output);
/// That failure.
tl::unexpected<Error> fontFileRefused(const FilePath &output);

} // namespace lorva
