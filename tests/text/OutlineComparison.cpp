// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#include "text/OutlineComparison.h"

#include "text/GlyphPainter.h"

#include <QPainter>

#include <gtest/gtest.h>

namespace lorva::test {

namespace {

constexpr double kShare = 0.008;
/// A speck has too little ink for a share of it to mean anything.
constexpr double kLeastInkPixels = 20;

QImage canvas(QSize size)
{
    QImage image(size, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    return image;
}

/// Glyph by glyph, as hb-view's cairo adds the coverage of each.
QImage picture(const ReferenceLine &line, double scale, QSize size, QPointF origin)
{
    QImage image = canvas(size);
    QPainter painter(&image);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setCompositionMode(QPainter::CompositionMode_Plus);
    for (const ReferenceLine::Glyph &glyph : line.glyphs) {
        QPainterPath outline =
            QTransform::fromScale(scale, scale).map(glyph.outline.translated(glyph.position));
        outline.setFillRule(Qt::WindingFill);
        painter.fillPath(outline.translated(origin), Qt::black);
    }
    return image;
}

QImage picture(const TextLayout &layout, QSize size, QPointF baseline)
{
    QImage image = canvas(size);
    GlyphPainter::paint(image, layout, baseline - QPointF(0, layout.lines().front().origin.y()),
                        Qt::black);
    return image;
}

QRectF inkOf(const ReferenceLine &line, double scale)
{
    QRectF ink;
    for (const ReferenceLine::Glyph &glyph : line.glyphs)
        ink |= glyph.outline.controlPointRect().translated(glyph.position);
    return QRectF(ink.topLeft() * scale, ink.size() * scale);
}

TextLayoutOptions optionsOf(const ReferenceRequest &request)
{
    TextLayoutOptions options;
    options.language = request.language.toLatin1();
    options.alignment = TextAlignment::left;
    if (!request.direction.isEmpty())
        options.direction =
            request.direction == u"rtl" ? TextDirection::rightToLeft : TextDirection::leftToRight;
    return options;
}

} // namespace

CoverageDifference compareLine(const TextLayout &layout, const ReferenceLine &reference,
                               double pixelsPerUnit)
{
    const QPointF toBaseline(0, -layout.lines().front().origin.y());
    const QRectF ink = inkOf(reference, pixelsPerUnit) | layout.inkBounds().translated(toBaseline);
    const QRect box = ink.toAlignedRect().adjusted(-2, -2, 2, 2);
    if (qint64(box.width()) * box.height() > 40'000'000)
        return {1, 0, 1};
    return compareCoverage(picture(layout, box.size(), -box.topLeft()),
                           picture(reference, pixelsPerUnit, box.size(), -box.topLeft()));
}

bool isSamePicture(const CoverageDifference &difference)
{
    return difference.differentBlocks == 0
        && (difference.share <= kShare || difference.inkPixels < kLeastInkPixels);
}

void expectSameLine(const TextLayout &layout, const ReferenceLine &reference, double pixelsPerUnit,
                    const QString &text)
{
    ASSERT_EQ(layout.lines().size(), 1u) << qUtf8Printable(text);
    const CoverageDifference difference = compareLine(layout, reference, pixelsPerUnit);
    EXPECT_TRUE(isSamePicture(difference))
        << qUtf8Printable(text) << ": " << difference.share * 100 << " % of the ink differ, and "
        << difference.differentBlocks << " blocks";
}

void expectSamePictures(const ReferenceRequest &request, const Font &font)
{
    SCOPED_TRACE(qUtf8Printable(request.font.displayText()));
    const int unitsPerEm = font.face()->metrics().unitsPerEm;
    const ReferencePicture reference = referencePicture(request, unitsPerEm);
    ASSERT_EQ(reference.lines.size(), size_t(request.lines.size()));
    const double pixelsPerUnit = font.pointSize() / unitsPerEm;
    for (qsizetype i = 0; i < request.lines.size(); ++i)
        expectSameLine(TextLayout(request.lines[i], font, optionsOf(request)),
                       reference.lines[size_t(i)], pixelsPerUnit, request.lines[i]);
}

} // namespace lorva::test
