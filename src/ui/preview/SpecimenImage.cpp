// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#include "ui/preview/SpecimenImage.h"

#include "catalog/VariableWeight.h"
#include "text/GlyphPainter.h"
#include "ui/preview/PreviewText.h"

#include <cmath>

namespace lorva {

namespace {

/// Antialiasing reaches this far beyond the outlines.
constexpr int kInkOutsetDevicePx = 2;

bool hasLogo(const FontPreviewConfiguration &configuration)
{
    return configuration.logoImage.has_value();
}

TextLayoutOptions layoutOptions(const FontPreviewConfiguration &configuration, double width,
                                double inset)
{
    TextLayoutOptions options;
    options.width = std::max(1.0, width - 2 * kSpecimenMargin);
    options.alignment = configuration.alignment;
    options.lineBreakMode =
        configuration.singleLine ? LineBreakMode::truncateTail : LineBreakMode::wordWrap;
    options.maximumLines = configuration.singleLine ? 1 : 0;
    options.firstLineInset = inset;
    return options;
}

/// The line box, which stands in for the ink of a text that has none.
QRectF layoutBox(const TextLayout &layout)
{
    return QRectF(QPointF(0, 0), layout.size());
}

/// A line that stands alone in the middle is centred on its ink; side bearings, which differ from
/// font to font, would push it off. Wrapped and truncated lines fill their measure and stay where
/// they are.
bool isCenteredOnInk(const FontPreviewConfiguration &configuration, const TextLayout &layout)
{
    return configuration.alignment == TextAlignment::center && layout.lines().size() == 1
        && !layout.isTruncated();
}

QPointF specimenOrigin(const FontPreviewConfiguration &configuration, const TextLayout &layout,
                       const QRectF &ink, const SpecimenCanvas &canvas)
{
    const QRectF box = ink.isEmpty() ? layoutBox(layout) : ink;
    double x = kSpecimenMargin;
    if (isCenteredOnInk(configuration, layout))
        x = canvas.size.width() / 2.0 - box.center().x();
    const double baseline = layout.lines().empty() ? 0.0 : layout.lines().front().origin.y();
    // A baseline between two pixel rows would blur every bar of the line.
    const double y = canvas.size.height() / 2.0 - box.center().y();
    return QPointF(x, snappedToPixel(y + baseline, canvas.devicePixelRatio) - baseline);
}

/// The whole device pixels of the view that the ink touches.
QRect inkDeviceRect(const QRectF &ink, const SpecimenCanvas &canvas)
{
    const double ratio = canvas.devicePixelRatio;
    const QRect view(0, 0, int(std::ceil(canvas.size.width() * ratio)),
                     int(std::ceil(canvas.size.height() * ratio)));
    const QRectF devicePx(ink.topLeft() * ratio, ink.size() * ratio);
    // Cut in floating point first: the ink of a hostile font may lie beyond the range of int.
    const QRectF cut = devicePx.intersected(QRectF(view).adjusted(-8, -8, 8, 8));
    if (cut.isEmpty())
        return {};
    constexpr int outset = kInkOutsetDevicePx;
    return cut.toAlignedRect().adjusted(-outset, -outset, outset, outset).intersected(view);
}

/// A variable face stands for every weight of its axis, a static one for its own.
Font weighted(const Font &font, const FontPreviewConfiguration &configuration)
{
    if (!configuration.weight || font.isStandIn())
        return font;
    const std::optional<VariableWeight> variable = weightOf(*font.face(), {});
    return variable ? withWeight(font, weightWithin(variable->axis, *configuration.weight)) : font;
}

} // namespace

Specimen layOutSpecimen(const FontPreviewConfiguration &configuration, const Font &face,
                        const SpecimenCanvas &canvas)
{
    Specimen specimen;
    if (face.isNull())
        return specimen;
    const Font font = weighted(face, configuration);
    specimen.text = specimenText(configuration.text, font, configuration.primaryScript);

    QSizeF logo;
    if (hasLogo(configuration))
        logo = logoSize(configuration.logoImage->size(), font.capHeight(),
                        configuration.logoSizeRatio);
    const double inset =
        hasLogo(configuration) ? logoInset(logo, configuration.logoSpacing, font.pointSize()) : 0.0;
    const QString text = configuration.singleLine
        ? lineExcerpt(specimen.text, canvas.size.width(), font.pointSize())
        : specimen.text;
    specimen.layout =
        TextLayout(text, font, layoutOptions(configuration, canvas.size.width(), inset));

    QRectF ink = specimen.layout.inkBounds();
    if (hasLogo(configuration) && !specimen.layout.lines().empty()) {
        specimen.logoRect =
            logoRectInLayout(specimen.layout.lines().front(), logo, font.capHeight());
        ink = ink.united(specimen.logoRect);
    }
    specimen.origin = specimenOrigin(configuration, specimen.layout, ink, canvas);
    if (!specimen.logoRect.isNull())
        specimen.logoRect.translate(specimen.origin);
    if (!ink.isNull())
        specimen.inkBounds = ink.translated(specimen.origin);
    return specimen;
}

SpecimenImage paintSpecimen(const Specimen &specimen, const FontPreviewConfiguration &configuration,
                            const SpecimenCanvas &canvas)
{
    const QRect devicePx = inkDeviceRect(specimen.inkBounds, canvas);
    if (devicePx.isEmpty())
        return {};
    QImage image(devicePx.size(), QImage::Format_ARGB32_Premultiplied);
    if (image.isNull())
        return {};
    image.fill(Qt::transparent);
    image.setDevicePixelRatio(canvas.devicePixelRatio);
    const QPointF corner = QPointF(devicePx.topLeft()) / canvas.devicePixelRatio;
    if (hasLogo(configuration))
        paintLogo(image, *configuration.logoImage, specimen.logoRect.translated(-corner),
                  configuration.textColor);
    GlyphPainter::paint(image, specimen.layout, specimen.origin - corner, configuration.textColor);
    return {image, devicePx.topLeft()};
}

} // namespace lorva
