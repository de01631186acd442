// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#include "text/color/ColrRenderer.h"

#include "text/color/ColrBlend.h"
#include "text/color/ColrShader.h"
#include "text/FontLimits.h"

#include <QPainter>

#include <algorithm>

namespace lorva {

namespace {

/// A pixel of a gradient costs as much as so many of one colour.
constexpr qint64 kGradientCost = 4;
/// Small pictures may cost as much as one of so many pixels.
constexpr qint64 kLeastBudgetPixels = 4096;
/// Where the rasteriser is still exact and quick.
constexpr double kFurthestPixel = 1e6;

qint64 area(const QRect &rect)
{
    return rect.isEmpty() ? 0 : qint64(rect.width()) * rect.height();
}

/// The pixels that a shape touches; empty where it is too far away to be drawn.
QRect touchedPixels(const QRectF &box)
{
    const double reach = std::max(
        {std::abs(box.left()), std::abs(box.right()), std::abs(box.top()), std::abs(box.bottom())});
    return reach <= kFurthestPixel ? box.toAlignedRect() : QRect();
}

QBrush brushOf(const QImage &shaded, QPoint corner)
{
    QBrush brush(shaded);
    brush.setTransform(QTransform::fromTranslate(corner.x(), corner.y()));
    return brush;
}

/// Leaves of the image what `path` covers.
void maskWith(const QPainterPath &path, QImage &image, QPoint corner)
{
    QImage mask(image.size(), QImage::Format_ARGB32_Premultiplied);
    mask.fill(Qt::transparent);
    {
        QPainter painter(&mask);
        painter.setRenderHint(QPainter::Antialiasing);
        painter.translate(-corner);
        painter.fillPath(path, Qt::black);
    }
    QPainter painter(&image);
    painter.setCompositionMode(QPainter::CompositionMode_DestinationIn);
    painter.drawImage(0, 0, mask);
}

} // namespace

QImage ColrRenderer::render(const ColrPaint &paint, const QTransform &unitsToDevice,
                            const QRect &devicePx)
{
    m_budget = std::max(kLeastBudgetPixels, area(devicePx)) * kMaxPaintsPerPixel;
    m_isBeyondLimits = false;
    m_layerPixels = 0;
    m_painted = 0;
    Canvas canvas = layer(devicePx);
    draw(paint, unitsToDevice, canvas);
    return m_isBeyondLimits ? QImage() : canvas.image;
}

void ColrRenderer::draw(const ColrPaint &paint, const QTransform &transform, Canvas &canvas)
{
    if (m_isBeyondLimits)
        return;
    switch (paint.kind) {
    case ColrPaint::Kind::nothing:
        return;
    case ColrPaint::Kind::solid:
    case ColrPaint::Kind::gradient:
        return drawEverywhere(paint, transform, canvas);
    case ColrPaint::Kind::layers:
        for (const ColrPaint &layer : paint.children)
            draw(layer, transform, canvas);
        return;
    case ColrPaint::Kind::transform:
        return draw(paint.children[0], paint.transform * transform, canvas);
    case ColrPaint::Kind::glyph:
        return drawGlyph(paint, transform, canvas);
    case ColrPaint::Kind::box:
        return drawBox(paint, transform, canvas);
    case ColrPaint::Kind::composite:
        return drawComposite(paint, transform, canvas);
    }
}

void ColrRenderer::drawEverywhere(const ColrPaint &fill, const QTransform &transform,
                                  Canvas &canvas)
{
    QPainterPath all;
    all.addRect(canvas.rect());
    fillPath(all, {&fill, {}}, transform, canvas);
}

void ColrRenderer::drawGlyph(const ColrPaint &paint, const QTransform &transform, Canvas &canvas)
{
    const QPainterPath path = transform.map(m_outlines.outline(paint.glyph));
    if (!spend(path.elementCount()))
        return;
    if (const ColrFill fill = plainFillOf(paint); fill.paint)
        fillPath(path, fill, transform, canvas);
    else
        drawWithin(path, paint.children[0], transform, canvas);
}

void ColrRenderer::drawBox(const ColrPaint &paint, const QTransform &transform, Canvas &canvas)
{
    const ColrExtent extent = extentOf(paint.children[0], {}, m_outlines);
    if (!extent.isUnbounded && paint.box.contains(extent.box))
        return draw(paint.children[0], transform, canvas);
    QPainterPath path;
    path.addRect(paint.box);
    drawWithin(transform.map(path), paint.children[0], transform, canvas);
}

void ColrRenderer::drawWithin(const QPainterPath &path, const ColrPaint &content,
                              const QTransform &transform, Canvas &canvas)
{
    Canvas inner = layer(touchedPixels(path.controlPointRect()) & canvas.rect());
    if (inner.image.isNull())
        return;
    draw(content, transform, inner);
    maskWith(path, inner.image, inner.corner);
    QPainter(&canvas.image).drawImage(inner.corner - canvas.corner, inner.image);
    release(inner);
}

void ColrRenderer::drawComposite(const ColrPaint &paint, const QTransform &transform,
                                 Canvas &canvas)
{
    const ColrPaint &backdropPaint = paint.children[0];
    const ColrPaint &sourcePaint = paint.children[1];
    if (paint.mode == ColrComposite::sourceOver) {
        draw(backdropPaint, transform, canvas);
        return draw(sourcePaint, transform, canvas);
    }
    Canvas backdrop = layer(canvas.rect());
    Canvas source = layer(canvas.rect());
    if (!backdrop.image.isNull() && !source.image.isNull()) {
        draw(backdropPaint, transform, backdrop);
        draw(sourcePaint, transform, source);
        compose(backdrop.image, source.image, paint.mode);
        QPainter(&canvas.image).drawImage(0, 0, backdrop.image);
    }
    release(source);
    release(backdrop);
}

void ColrRenderer::fillPath(const QPainterPath &path, const ColrFill &fill,
                            const QTransform &transform, Canvas &canvas)
{
    const QRect touched = touchedPixels(path.controlPointRect()) & canvas.rect();
    const ColrPaint &paint = *fill.paint;
    const bool isSolid = paint.kind == ColrPaint::Kind::solid;
    if (touched.isEmpty() || !spend(area(touched) * (isSolid ? 1 : kGradientCost)))
        return;
    QPainter painter(&canvas.image);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.translate(-canvas.corner);
    if (isSolid)
        return painter.fillPath(path, paint.color.with(m_foreground));
    const QImage shaded = shade(*paint.gradient, fill.transform * transform, touched, m_foreground);
    painter.fillPath(path, brushOf(shaded, touched.topLeft()));
}

ColrRenderer::Canvas ColrRenderer::layer(const QRect &rect)
{
    const qint64 pixels = area(rect);
    if (pixels == 0 || !spend(pixels * 2))
        return {};
    m_layerPixels += pixels;
    if (m_layerPixels > kMaxColorLayerPixels) {
        m_isBeyondLimits = true;
        return {};
    }
    Canvas canvas{QImage(rect.size(), QImage::Format_ARGB32_Premultiplied), rect.topLeft()};
    canvas.image.fill(Qt::transparent);
    return canvas;
}

void ColrRenderer::release(const Canvas &canvas)
{
    m_layerPixels -= area(canvas.rect());
}

bool ColrRenderer::spend(qint64 pixels)
{
    m_painted += pixels;
    m_isBeyondLimits = m_isBeyondLimits || m_painted > m_budget;
    return !m_isBeyondLimits;
}

} // namespace lorva
