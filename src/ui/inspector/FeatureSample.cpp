// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#include "ui/inspector/FeatureSample.h"

#include "text/FontFeatures.h"
#include "text/GlyphPainter.h"

#include <algorithm>
#include <cmath>

namespace lorva {

namespace {

constexpr int kMostClusters = 8;
constexpr double kSize = 28;
constexpr double kLeastSize = 11;
/// Antialiasing reaches beyond the outlines.
constexpr double kOutset = 1;
/// A hostile font may tell any height for its ink.
constexpr double kMostHeight = 120;

TextLayout setWith(const QString &text, const Font &font, double size, FeatureSetting feature)
{
    return {text, font.withPointSize(size).withFeatures({feature})};
}

double baselineOf(const TextLayout &layout)
{
    return layout.lines().empty() ? 0 : layout.lines().front().origin.y();
}

/// The ink, measured from the baseline.
QRectF inkOf(const TextLayout &layout)
{
    return layout.inkBounds().translated(0, -baselineOf(layout));
}

QImage paintOn(const TextLayout &layout, const QRectF &ink, double top, double height,
               const QColor &color, const FeatureSampleLook &look)
{
    const double width = std::min(ink.width(), look.widthPt) + 2 * kOutset;
    const QSizeF size = QSizeF(width, height) * look.devicePixelRatio;
    QImage image(int(std::ceil(size.width())), int(std::ceil(size.height())),
                 QImage::Format_ARGB32_Premultiplied);
    image.setDevicePixelRatio(look.devicePixelRatio);
    image.fill(Qt::transparent);
    GlyphPainter::paint(image, layout, QPointF(kOutset - ink.left(), -top - baselineOf(layout)),
                        color);
    return image;
}

struct Layouts
{
    TextLayout before;
    TextLayout after;
    QRectF beforeInk;
    QRectF afterInk;
    double width() const { return beforeInk.width() + afterInk.width(); }
};

Layouts layOut(const QString &text, const Font &font, FontTag tag, double size)
{
    Layouts layouts;
    layouts.before = setWith(text, font, size, {tag, 0});
    layouts.after = setWith(text, font, size, {tag, 1});
    layouts.beforeInk = inkOf(layouts.before);
    layouts.afterInk = inkOf(layouts.after);
    return layouts;
}

} // namespace

FeatureSampleImages paintFeatureSample(const Font &font, FontTag tag, const FeatureSampleLook &look)
{
    FeatureSampleImages sample;
    if (font.isNull() || tag == 0)
        return sample;
    sample.text = featureSample(*font.face(), tag, kMostClusters);
    if (sample.text.isEmpty())
        return sample;
    Layouts layouts = layOut(sample.text, font, tag, kSize);
    const double room = look.widthPt - 4 * kOutset;
    if (layouts.width() > room)
        layouts =
            layOut(sample.text, font, tag, std::max(kLeastSize, kSize * room / layouts.width()));
    const QRectF both = layouts.beforeInk.united(layouts.afterInk);
    if (both.isEmpty())
        return sample;
    const double top = std::max(std::floor(both.top()) - kOutset, -kMostHeight);
    const double height = std::min(std::ceil(both.bottom()) + kOutset - top, kMostHeight);
    sample.before = paintOn(layouts.before, layouts.beforeInk, top, height, look.before, look);
    sample.after = paintOn(layouts.after, layouts.afterInk, top, height, look.after, look);
    return sample;
}

} // namespace lorva
