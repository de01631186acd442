// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#include "ui/detail/SpecimenPage.h"

#include "text/GlyphPainter.h"
#include "ui/style/Hairline.h"
#include "ui/style/Style.h"

#include <QFontMetricsF>
#include <QPaintEngine>
#include <QPainterPath>

#include <algorithm>
#include <cmath>
#include <memory>

namespace lorva {

namespace {

constexpr int kPngPixelsPerPoint = 2;
/// Where there are no device pixels.
constexpr double kRuleWidth = 0.5;

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

/// Not beyond what is refused anyhow; null for an empty page.
QSize fileSize(const QSizeF &size)
{
    if (!(size.width() > 0) || !(size.height() > 0))
        return {};
    const auto whole = [](double side) {
        return int(std::ceil(std::min(side, kLongestFileSide + 1.0)));
    };
    return {whole(size.width()), whole(size.height())};
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

PictureContent pictureOf(const SpecimenPage &page, const QColor &background)
{
    const auto placed =
        std::make_shared<const SpecimenPage>(page.size.isEmpty() ? page : withMargins(page));
    PictureContent content;
    content.size = fileSize(placed->size);
    content.pixelsPerPoint = kPngPixelsPerPoint;
    content.background = background;
    content.title = placed->title;
    content.creator = QStringLiteral("Lorva");
    content.onImage = [placed](QImage &image) { paintPixels(image, *placed); };
    content.onPage = [placed](QPainter &painter) { paintPage(painter, *placed); };
    return content;
}

Result<void> writePage(const SpecimenPage &page, const QColor &background, const FilePath &target)
{
    return writePicture(pictureOf(page, background), target);
}

} // namespace lorva
