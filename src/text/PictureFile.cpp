// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#include "text/PictureFile.h"

#include "base/AtomicFile.h"
#include "text/FontFile.h"

#include <QBuffer>
#include <QCoreApplication>
#include <QImage>
#include <QPageSize>
#include <QPainter>
#include <QPdfWriter>
#include <QSvgGenerator>

#include <algorithm>

namespace lorva {

namespace {

constexpr int kPointsPerInch = 72;
/// Stands in the document until the text has been made fit for XML.
constexpr char kTitlePlace[] = "lorva-specimen-title";

struct Texts
{
    Q_DECLARE_TR_FUNCTIONS(PictureFile)
};

Result<void> checkSize(const PictureContent &content, PictureFormat format)
{
    const QSize size = content.size;
    if (size.isEmpty())
        return failure(ErrorKind::invalidValue, Texts::tr("There is nothing to export"));
    if (std::max(size.width(), size.height()) > kLongestFileSide)
        return failure(ErrorKind::tooLarge, Texts::tr("The page is too large for a file"));
    const double pixels =
        double(size.width()) * size.height() * content.pixelsPerPoint * content.pixelsPerPoint;
    if (format == PictureFormat::png && pixels > kMostFilePixels)
        return failure(ErrorKind::tooLarge,
                       Texts::tr("The page is too large for a PNG; a PDF or SVG can hold it"));
    return {};
}

tl::unexpected<Error> notEncoded()
{
    return failure(ErrorKind::ioFailure, Texts::tr("the picture cannot be encoded"));
}

QString fitForXml(QString text)
{
    for (QChar &c : text) {
        if (c.category() == QChar::Other_Control || c.unicode() >= 0xFFFE)
            c = u' ';
    }
    return text;
}

bool paintPage(QPaintDevice &device, const PictureContent &content)
{
    QPainter painter;
    if (!painter.begin(&device))
        return false;
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setRenderHint(QPainter::LosslessImageRendering);
    if (content.background.alpha() > 0)
        painter.fillRect(QRect(QPoint(0, 0), content.size), content.background);
    content.onPage(painter);
    return painter.end();
}

/// Replaces what stands between the first `before` and the next `after`.
void replaceBetween(QByteArray &bytes, const char *before, const char *after,
                    const QByteArray &text)
{
    const qsizetype found = bytes.indexOf(before);
    const qsizetype start = found + qsizetype(qstrlen(before));
    const qsizetype end = found < 0 ? -1 : bytes.indexOf(after, start);
    if (end >= 0)
        bytes.replace(start, end - start, text);
}

/// The toolkit's document with a size in pixels and without attributes of text, which it has none
/// of: those that Qt 6.4 writes are not even valid.
QByteArray tidySvg(const QByteArray &svg, const PictureContent &content)
{
    QByteArray tidy;
    for (const QByteArray &line : svg.split('\n')) {
        if (!line.startsWith("font-family="))
            tidy += line + '\n';
    }
    replaceBetween(tidy, "<svg width=\"", "\"", QByteArray::number(content.size.width()));
    replaceBetween(tidy, " height=\"", "\"", QByteArray::number(content.size.height()));
    tidy.replace(kTitlePlace, fitForXml(content.title).toHtmlEscaped().toUtf8());
    return tidy.trimmed() + '\n';
}

/// A number of ten digits, as cross-reference tables hold them.
QByteArray tenDigits(qsizetype number)
{
    return QByteArray::number(number).rightJustified(10, '0');
}

/// Without the time of writing, so that the same page gives the same bytes. The table at the end
/// that tells where each object begins follows.
QByteArray withoutTime(QByteArray pdf)
{
    const qsizetype at = pdf.indexOf("/CreationDate (");
    const qsizetype lineEnd = at < 0 ? -1 : pdf.indexOf('\n', at);
    const qsizetype table = pdf.lastIndexOf("\nxref\n") + 1;
    if (lineEnd < 0 || table <= lineEnd)
        return pdf;
    const qsizetype removed = lineEnd + 1 - at;
    const qsizetype trailer = pdf.indexOf("trailer", table);
    constexpr qsizetype kEntrySize = 20;
    const qsizetype firstEntry = pdf.indexOf('\n', table + 5) + 1;
    for (qsizetype entry = firstEntry; entry + kEntrySize <= trailer; entry += kEntrySize) {
        const qsizetype offset = pdf.mid(entry, 10).toLongLong();
        if (offset > at)
            pdf.replace(entry, 10, tenDigits(offset - removed));
    }
    replaceBetween(pdf, "startxref\n", "\n", QByteArray::number(table - removed));
    return pdf.remove(at, removed);
}

Result<QByteArray> pngBytes(const PictureContent &content)
{
    QImage image(content.size * content.pixelsPerPoint,
                 content.background.alpha() < 255 ? QImage::Format_ARGB32_Premultiplied
                                                  : QImage::Format_RGB32);
    if (image.isNull())
        return failure(ErrorKind::tooLarge, Texts::tr("the picture does not fit into memory"));
    image.setDevicePixelRatio(content.pixelsPerPoint);
    image.fill(content.background);
    content.onImage(image);
    QByteArray png;
    QBuffer buffer(&png);
    if (!buffer.open(QIODevice::WriteOnly) || !image.save(&buffer, "PNG"))
        return notEncoded();
    return png;
}

Result<QByteArray> svgBytes(const PictureContent &content)
{
    QByteArray svg;
    QBuffer buffer(&svg);
    QSvgGenerator document;
    document.setOutputDevice(&buffer);
    document.setTitle(QLatin1String(kTitlePlace));
    document.setDescription({});
    document.setSize(content.size);
    document.setViewBox(QRect(QPoint(0, 0), content.size));
    if (!buffer.open(QIODevice::WriteOnly) || !paintPage(document, content))
        return notEncoded();
    return tidySvg(svg, content);
}

Result<QByteArray> pdfBytes(const PictureContent &content)
{
    QByteArray pdf;
    QBuffer buffer(&pdf);
    if (!buffer.open(QIODevice::WriteOnly))
        return notEncoded();
    {
        QPdfWriter document(&buffer);
        document.setTitle(content.title);
        document.setCreator(content.creator);
        document.setResolution(kPointsPerInch);
        document.setPageSize(QPageSize(QSizeF(content.size), QPageSize::Point,
                                       QStringLiteral("Specimen"), QPageSize::ExactMatch));
        document.setPageMargins({});
        if (!paintPage(document, content))
            return notEncoded();
    }
    return withoutTime(std::move(pdf));
}

} // namespace

Result<PictureFormat> pictureFormat(const FilePath &file)
{
    const QByteArray name = file.fileName().toLower();
    if (name.endsWith(".png"))
        return PictureFormat::png;
    if (name.endsWith(".svg"))
        return PictureFormat::svg;
    if (name.endsWith(".pdf"))
        return PictureFormat::pdf;
    return failure(
        ErrorKind::usage,
        Texts::tr("%1: the name of a picture ends in .png, .svg or .pdf").arg(file.displayText()));
}

Result<QByteArray> encodedPicture(const PictureContent &content, PictureFormat format)
{
    switch (format) {
    case PictureFormat::png:
        return pngBytes(content);
    case PictureFormat::svg:
        return svgBytes(content);
    case PictureFormat::pdf:
        break;
    }
    return pdfBytes(content);
}

Result<void> writePicture(const PictureContent &content, const FilePath &target)
{
    const Result<PictureFormat> format = pictureFormat(target);
    if (!format)
        return tl::unexpected(format.error());
    if (Result<void> checked = refuseFontContent(target); !checked)
        return checked;
    if (Result<void> checked = checkSize(content, *format); !checked)
        return checked;
    const Result<QByteArray> bytes = encodedPicture(content, *format);
    if (!bytes)
        return tl::unexpected(bytes.error());
    return writeFileAtomically(target, *bytes);
}

tl::unexpected<Error> fontFileRefused(const FilePath &output)
{
    return failure(ErrorKind::invalidValue,
                   Texts::tr("%1: refusing to write over a font file").arg(output.displayText()));
}

Result<void> refuseFontContent(const FilePath &output)
{
    if (FontFile::open(output))
        return fontFileRefused(output);
    return {};
}

} // namespace lorva
