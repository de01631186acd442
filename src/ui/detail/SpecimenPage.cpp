// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#include "ui/detail/SpecimenPage.h"

#include "base/AtomicFile.h"
#include "text/GlyphPainter.h"
#include "text/PictureFile.h"
#include "ui/style/Hairline.h"
#include "ui/style/Style.h"

#include <QCoreApplication>
#include <QFontMetricsF>
#include <QPaintEngine>
#include <QPainterPath>

#include <cmath>

namespace lorva {

namespace {

constexpr int kPngPixelsPerPoint = 2;
/// Where there are no device pixels.
constexpr double kRuleWidth = 0.5;

QString text(const char *source)
{
    return QCoreApplication::translate("SpecimenPage", source);
}

bool hasPixels(const QPainter &painter)
{
    return painter.paintEngine() && painter.paintEngine()->type() == QPaintEngine::Raster;
}

/// Where a text of that width and font begins, on its baseline.
QPointF captionOrigin(const SpecimenPage::Caption &caption, double width, const QFontMetricsF &font)
{
    const QRectF &rect = caption.rect;
    double x = rect.left();
    if (caption.alignment & Qt::AlignRight)
        x = rect.right() - width;
    else if (caption.alignment & Qt::AlignHCenter)
        x = rect.center().x() - width / 2;
    return {x, rect.center().y() + (font.ascent() - font.descent()) / 2};
}

void paintCaption(QPainter &painter, const SpecimenPage::Caption &caption)
{
    const QFont font =
        interfaceFont(InterfaceSize(caption.size), InterfaceWeight::regular, Figures::tabular);
    const QFontMetricsF metrics(font);
    const QString shown =
        metrics.elidedText(caption.text, Qt::ElideRight, std::ceil(caption.rect.width()));
    const QPointF origin = captionOrigin(caption, metrics.horizontalAdvance(shown), metrics);
    if (hasPixels(painter)) {
        painter.setFont(font);
        painter.setPen(caption.color);
        painter.drawText(QPointF(std::round(origin.x()), std::round(origin.y())), shown);
        return;
    }
    QPainterPath outlines;
    outlines.setFillRule(Qt::WindingFill);
    outlines.addText(origin, font, shown);
    painter.fillPath(outlines, caption.color);
}

void paintRule(QPainter &painter, const SpecimenPage::Rule &rule)
{
    if (hasPixels(painter)) {
        drawHairline(painter, rule.rect, Qt::BottomEdge, rule.color);
        return;
    }
    painter.fillRect(
        QRectF(rule.rect.left(), rule.rect.bottom() - kRuleWidth, rule.rect.width(), kRuleWidth),
        rule.color);
}

void paintPictures(QPainter &painter, const SpecimenPage &page)
{
    painter.setRenderHint(QPainter::SmoothPixmapTransform);
    for (const SpecimenPage::Picture &picture : page.pictures) {
        if (!picture.image.isNull() && !picture.rect.isEmpty())
            painter.drawImage(picture.rect, picture.image, QRectF(picture.image.rect()));
    }
}

/// As paintPage(), with letters that stand on pixel edges.
void paintPixels(QImage &image, const SpecimenPage &page)
{
    {
        QPainter painter(&image);
        paintPageFurniture(painter, page);
        paintPictures(painter, page);
    }
    for (const SpecimenPage::Text &text : page.texts)
        GlyphPainter::paint(image, text.layout, text.origin, text.color);
}

SpecimenPage withMargins(SpecimenPage page)
{
    const QPointF by(kFileMargin, kFileMargin);
    const auto moveRects = [by](auto &parts) {
        for (auto &part : parts)
            part.rect.translate(by);
    };
    for (SpecimenPage::Text &text : page.texts)
        text.origin += by;
    moveRects(page.captions);
    moveRects(page.pictures);
    moveRects(page.rules);
    moveRects(page.dots);
    page.size += QSizeF(2 * kFileMargin, 2 * kFileMargin);
    return page;
}

Result<QSize> fileSize(const SpecimenPage &page, PictureFormat format)
{
    const QSizeF size = page.size;
    if (!(size.width() > 0) || !(size.height() > 0))
        return failure(ErrorKind::invalidValue, text("There is nothing to export"));
    const double pixels = size.width() * size.height() * kPngPixelsPerPoint * kPngPixelsPerPoint;
    const bool isTooLarge = std::max(size.width(), size.height()) > kLongestFileSide;
    if (isTooLarge)
        return failure(ErrorKind::tooLarge, text("The page is too large for a file"));
    if (format == PictureFormat::png && pixels > kMostFilePixels)
        return failure(ErrorKind::tooLarge,
                       text("The page is too large for a PNG; a PDF or SVG can hold it"));
    return QSize(int(std::ceil(size.width())), int(std::ceil(size.height())));
}

} // namespace

void paintPageFurniture(QPainter &painter, const SpecimenPage &page)
{
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    for (const SpecimenPage::Rule &rule : page.rules)
        paintRule(painter, rule);
    painter.setPen(Qt::NoPen);
    for (const SpecimenPage::Dot &dot : page.dots) {
        painter.setBrush(dot.color);
        painter.drawEllipse(dot.rect);
    }
    for (const SpecimenPage::Caption &caption : page.captions)
        paintCaption(painter, caption);
    painter.restore();
}

void paintPage(QPainter &painter, const SpecimenPage &page)
{
    paintPageFurniture(painter, page);
    painter.save();
    paintPictures(painter, page);
    for (const SpecimenPage::Text &text : page.texts)
        GlyphPainter::paint(painter, text.layout, text.origin, text.color);
    painter.restore();
}

Result<void> writePage(const SpecimenPage &page, const QColor &background, const FilePath &target)
{
    const Result<PictureFormat> format = pictureFormat(target);
    if (!format)
        return tl::unexpected(format.error());
    if (Result<void> checked = refuseFontContent(target); !checked)
        return checked;
    const bool isEmpty = page.size.isEmpty();
    const SpecimenPage placed = isEmpty ? page : withMargins(page);
    const Result<QSize> size = fileSize(placed, *format);
    if (!size)
        return tl::unexpected(size.error());
    PictureContent content;
    content.size = *size;
    content.pixelsPerPoint = kPngPixelsPerPoint;
    content.background = background;
    content.title = placed.title;
    content.creator = QStringLiteral("Lorva");
    content.onImage = [&placed](QImage &image) { paintPixels(image, placed); };
    content.onPage = [&placed](QPainter &painter) { paintPage(painter, placed); };
    const Result<QByteArray> bytes = encodedPicture(content, *format);
    if (!bytes)
        return tl::unexpected(bytes.error());
    return writeFileAtomically(target, *bytes);
}

} // namespace lorva
