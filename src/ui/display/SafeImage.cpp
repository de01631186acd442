// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#include "ui/display/SafeImage.h"

#include "ui/display/JpegScan.h"
#include "ui/display/SafeSvg.h"

#include <QBuffer>
#include <QCoreApplication>
#include <QImageReader>

#include <mutex>

namespace lorva {

namespace {

struct Texts
{
    Q_DECLARE_TR_FUNCTIONS(SafeImage)
};

/// More than any camera's picture or any screenshot; beyond it a file is a mistake or an attack.
constexpr qsizetype kMostBytes = 200'000'000;
/// Reading takes time in proportion to these, however small the result: a poster at print
/// resolution is still read, a bomb is not.
constexpr qint64 kMostPixels = 256'000'000;
/// What a decoder may hold at once where the format cannot be read row by row; four bytes a pixel
/// make it 128 megapixels. The toolkit's own bound would refuse pictures of 64.
constexpr int kMostDecodedMegabytes = 512;
/// Beyond it the work is that of an attack: a progressive picture has about ten scans.
constexpr qint64 kMostProgressivePixels = 120'000'000;
constexpr qint64 kMostScannedPixels = 1'200'000'000;

void setDecoderLimits()
{
    static std::once_flag once;
    std::call_once(once, [] { QImageReader::setAllocationLimit(kMostDecodedMegabytes); });
}

tl::unexpected<Error> tooLarge()
{
    return failure(ErrorKind::tooLarge, Texts::tr("The picture has too many pixels to be read"));
}

tl::unexpected<Error> damaged()
{
    return failure(ErrorKind::malformed, Texts::tr("The picture is damaged and cannot be read"));
}

tl::unexpected<Error> noPicture()
{
    return failure(ErrorKind::unsupported,
                   Texts::tr("This is no picture in a format that can be read (PNG, JPEG, "
                             "GIF, WebP, BMP or SVG)"));
}

/// By the first bytes, so that no other decoder of the desktop is ever asked; empty for none of
/// ours.
QByteArray formatOf(const QByteArray &bytes)
{
    if (bytes.startsWith("\x89PNG\r\n\x1a\n"))
        return "png";
    if (bytes.startsWith("\xff\xd8\xff"))
        return "jpeg";
    if (bytes.startsWith("GIF87a") || bytes.startsWith("GIF89a"))
        return "gif";
    if (bytes.startsWith("RIFF") && bytes.mid(8, 4) == "WEBP")
        return "webp";
    if (bytes.startsWith("BM") && bytes.size() > 26)
        return "bmp";
    return {};
}

qint64 pixelsOf(QSize size)
{
    return qint64(size.width()) * size.height();
}

Result<void> checkWork(const QByteArray &format, const QByteArray &bytes, QSize size)
{
    if (size.isEmpty())
        return damaged();
    if (pixelsOf(size) > kMostPixels)
        return tooLarge();
    if (format != "jpeg")
        return {};
    const JpegScan scan = scanJpeg(bytes);
    // All of its coefficients are held in memory, and every scan goes over all of them.
    const bool isTooMuch = pixelsOf(size) > kMostProgressivePixels
        || pixelsOf(size) * scan.scanCount > kMostScannedPixels;
    if (scan.isProgressive && isTooMuch)
        return tooLarge();
    return {};
}

QImage bounded(QImage image, int maximumSidePx)
{
    if (std::max(image.width(), image.height()) > maximumSidePx)
        image = image.scaled(maximumSidePx, maximumSidePx, Qt::KeepAspectRatio,
                             Qt::SmoothTransformation);
    return std::move(image).convertToFormat(QImage::Format_ARGB32_Premultiplied);
}

QSize boundedSize(QSize size, int maximumSidePx)
{
    if (std::max(size.width(), size.height()) <= maximumSidePx)
        return size;
    // A picture of 100,000 by 1 still has a height.
    return size.scaled(maximumSidePx, maximumSidePx, Qt::KeepAspectRatio).expandedTo({1, 1});
}

Result<QImage> readPixels(const QByteArray &format, const QByteArray &bytes, int maximumSidePx)
{
    QBuffer buffer;
    buffer.setData(bytes);
    buffer.open(QIODevice::ReadOnly);
    QImageReader reader(&buffer, format);
    reader.setAutoDetectImageFormat(false);
    if (!QImageReader::supportedImageFormats().contains(format))
        return failure(ErrorKind::unsupported,
                       Texts::tr("Pictures in this format need an addition to the desktop’s "
                                 "toolkit that is not installed"));
    const QSize size = reader.size();
    if (const Result<void> allowed = checkWork(format, bytes, size); !allowed)
        return tl::unexpected(allowed.error());
    reader.setAutoTransform(true);
    if (const QSize wanted = boundedSize(size, maximumSidePx); wanted != size)
        reader.setScaledSize(wanted);
    QImage image = reader.read();
    if (image.isNull())
        return pixelsOf(size) * 4 > qint64(kMostDecodedMegabytes) * 1024 * 1024 ? tooLarge()
                                                                                : damaged();
    return bounded(std::move(image), maximumSidePx);
}

} // namespace

Result<QImage> readSafeImage(const QByteArray &bytes, int maximumSidePx)
{
    setDecoderLimits();
    if (bytes.size() > kMostBytes)
        return failure(ErrorKind::tooLarge,
                       Texts::tr("The file is too large to be read as a picture"));
    if (maximumSidePx < 1)
        return failure(ErrorKind::invalidValue, Texts::tr("no room for a picture"));
    if (const QByteArray format = formatOf(bytes); !format.isEmpty())
        return readPixels(format, bytes, maximumSidePx);
    if (isSvg(bytes))
        return readSafeSvg(bytes, maximumSidePx);
    return noPicture();
}

QByteArray safeImageExtension(const QByteArray &bytes)
{
    const QByteArray format = formatOf(bytes);
    if (format == "jpeg")
        return "jpg";
    return format.isEmpty() && isSvg(bytes) ? QByteArray("svg") : format;
}

Result<QImage> readSafePixels(const QByteArray &bytes, int maximumSidePx)
{
    setDecoderLimits();
    const QByteArray format = formatOf(bytes);
    return format.isEmpty() ? noPicture() : readPixels(format, bytes, maximumSidePx);
}

} // namespace lorva
