// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#include "text/GlyphPainter.h"

#include "text/GlyphOutlines.h"

#include <QPainter>

namespace lorva {

namespace {

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
    painter.translate(origin);
    const QRectF visible = pointBounds(image).translated(-origin);
    forEachLineOutline(layout, [&](const QPainterPath &outline) {
        if (outline.controlPointRect().intersects(visible))
            painter.fillPath(outline, color);
    });
}

QPainterPath GlyphPainter::path(const TextLayout &layout)
{
    QPainterPath path;
    path.setFillRule(Qt::WindingFill);
    forEachLineOutline(layout, [&](const QPainterPath &outline) { path.addPath(outline); });
    return path;
}

} // namespace lorva
