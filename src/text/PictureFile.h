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

/// Sides of a picture in a file: what PDF takes. Points.
inline constexpr int kLongestFileSide = 14400;
/// A PNG beyond this is refused: it would take a quarter of a gigabyte to make.
inline constexpr double kMostFilePixels = 64e6;

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

/// Writes it as the ending of the file's name says. The file is replaced at once or not at all, and
/// a font file not at all. Fails with usage for another ending, tooLarge, invalidValue for an empty
/// picture or a font file, and what writing gives; the detail is fit to be shown. Thread: any.
Result<void> writePicture(const PictureContent &content, const FilePath &target);

/// Fails with invalidValue for what holds a font, whatever its name: a slip of the hand must not
/// cost anyone a font.
Result<void> refuseFontContent(const FilePath &output);
/// That failure.
tl::unexpected<Error> fontFileRefused(const FilePath &output);

} // namespace lorva
