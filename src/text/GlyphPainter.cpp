// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#include "text/GlyphPainter.h"

#include "text/GlyphOutlines.h"

#include <QPainter>

#include <cmath>

namespace lorva {

namespace {

/// How far a baseline at `y` points is from the next pixel edge, in points. Flat feet of letters
/// that ended between pixels would be blurred.
double toPixelEdge(double y, double ratio)
{
    return std::round(y * ratio) / ratio - y;
}

QRectF pointBounds(const QImage &image)
{
    return QRectF(QPointF(0, 0), QSizeF(image.size()) / image.devicePixelRatio());
}

} // namespace

void GlyphPainter::paint(QImage &image, const TextLayout &layout, QPointF origin,
                         const QColor &color)
{
    if (image.isNull())
        return;
    QPainter painter(&image);
    painter.setRenderHint(QPainter::Antialiasing);
    const QRectF visible = pointBounds(image);
    forEachOutline(layout, [&](const LayoutLine &line, const QPainterPath &outline) {
        const double baseline = origin.y() + line.origin.y();
        const QPointF at = origin + QPointF(0, toPixelEdge(baseline, image.devicePixelRatio()));
        if (!outline.controlPointRect().translated(at).intersects(visible))
            return;
        painter.resetTransform();
        painter.translate(at);
        painter.fillPath(outline, color);
    });
}

QPainterPath GlyphPainter::path(const TextLayout &layout)
{
    QPainterPath path;
    path.setFillRule(Qt::WindingFill);
    forEachOutline(layout,
                   [&](const LayoutLine &, const QPainterPath &outline) { path.addPath(outline); });
    return path;
}

} // namespace lorva
