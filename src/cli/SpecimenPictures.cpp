// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#include "cli/SpecimenPage.h"

#include "text/GlyphPainter.h"

#include <QBuffer>
#include <QImage>
#include <QPageSize>
#include <QPainter>
#include <QPdfWriter>
#include <QSvgGenerator>

namespace lorva::cli {

namespace {

constexpr int kPointsPerInch = 72;
/// Stands in the document until the text has been made fit for XML.
constexpr char kTitlePlace[] = "lorva-specimen-title";

tl::unexpected<Error> notEncoded()
{
    return failure(ErrorKind::ioFailure, QStringLiteral("the picture cannot be encoded"));
}

bool paintPage(QPaintDevice &device, const SpecimenPage &page)
{
    QPainter painter;
    if (!painter.begin(&device))
        return false;
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setRenderHint(QPainter::LosslessImageRendering);
    if (page.background.alpha() > 0)
        painter.fillRect(QRect(QPoint(0, 0), page.size), page.background);
    GlyphPainter::paint(painter, page.layout, page.origin, page.color);
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
QByteArray tidySvg(const QByteArray &svg, const SpecimenPage &page)
{
    QByteArray tidy;
    for (const QByteArray &line : svg.split('\n')) {
        if (!line.startsWith("font-family="))
            tidy += line + '\n';
    }
    replaceBetween(tidy, "<svg width=\"", "\"", QByteArray::number(page.size.width()));
    replaceBetween(tidy, " height=\"", "\"", QByteArray::number(page.size.height()));
    tidy.replace(kTitlePlace, page.title.toHtmlEscaped().toUtf8());
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

} // namespace

Result<QByteArray> pngPicture(const SpecimenPage &page)
{
    QImage image(page.size,
                 page.background.alpha() < 255 ? QImage::Format_ARGB32_Premultiplied
                                               : QImage::Format_RGB32);
    if (image.isNull())
        return failure(ErrorKind::tooLarge, QStringLiteral("the picture does not fit into memory"));
    image.fill(page.background);
    GlyphPainter::paint(image, page.layout, page.origin, page.color);
    QByteArray png;
    QBuffer buffer(&png);
    if (!buffer.open(QIODevice::WriteOnly) || !image.save(&buffer, "PNG"))
        return notEncoded();
    return png;
}

Result<QByteArray> svgPicture(const SpecimenPage &page)
{
    QByteArray svg;
    QBuffer buffer(&svg);
    QSvgGenerator document;
    document.setOutputDevice(&buffer);
    document.setTitle(QLatin1String(kTitlePlace));
    document.setDescription({});
    document.setSize(page.size);
    document.setViewBox(QRect(QPoint(0, 0), page.size));
    if (!buffer.open(QIODevice::WriteOnly) || !paintPage(document, page))
        return notEncoded();
    return tidySvg(svg, page);
}

Result<QByteArray> pdfPicture(const SpecimenPage &page)
{
    QByteArray pdf;
    QBuffer buffer(&pdf);
    if (!buffer.open(QIODevice::WriteOnly))
        return notEncoded();
    {
        QPdfWriter document(&buffer);
        document.setTitle(page.title);
        document.setCreator(QStringLiteral("lorvactl"));
        document.setResolution(kPointsPerInch);
        document.setPageSize(QPageSize(QSizeF(page.size), QPageSize::Point,
                                       QStringLiteral("Specimen"), QPageSize::ExactMatch));
        document.setPageMargins({});
        if (!paintPage(document, page))
            return notEncoded();
    }
    return withoutTime(std::move(pdf));
}

} // namespace lorva::cli
