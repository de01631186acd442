// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#pragma once

#include "text/color/ColrOutlines.h"

#include <QImage>

#include <optional>

namespace lorva {

/// Draws the paints of one colour glyph into an image.
///
/// Pixels are shared out by coverage once for each outline, layers are composed whole: neighbouring
/// shapes show no seams but those of the font. Thread: any, one at a time per object. Hostile
/// fonts: gives up beyond kMaxPaintsPerPixel and kMaxColorLayerPixels.
class ColrRenderer
{
public:
    ColrRenderer(ColrOutlines &outlines, const QColor &foreground)
        : m_outlines(outlines)
        , m_foreground(foreground)
    {
    }

    /// The pixels of `devicePx`, ARGB32 premultiplied; null when the limits were met.
    QImage render(const ColrPaint &paint, const QTransform &unitsToDevice, const QRect &devicePx);
    /// Pixels painted so far.
    qint64 pixelsPainted() const { return m_painted; }

private:
    struct Canvas
    {
        QImage image;
        /// Of the image, on the device.
        QPoint corner;
        QRect rect() const { return QRect(corner, image.size()); }
    };

    void draw(const ColrPaint &paint, const QTransform &transform, Canvas &canvas);
    void drawEverywhere(const ColrPaint &fill, const QTransform &transform, Canvas &canvas);
    void drawGlyph(const ColrPaint &paint, const QTransform &transform, Canvas &canvas);
    void drawBox(const ColrPaint &paint, const QTransform &transform, Canvas &canvas);
    void drawComposite(const ColrPaint &paint, const QTransform &transform, Canvas &canvas);
    /// Draws `content` where `path` is.
    void drawWithin(const QPainterPath &path, const ColrPaint &content, const QTransform &transform,
                    Canvas &canvas);
    void fillPath(const QPainterPath &path, const ColrFill &fill, const QTransform &transform,
                  Canvas &canvas);

    /// A transparent canvas; null image beyond the limits.
    Canvas layer(const QRect &rect);
    void release(const Canvas &canvas);
    bool spend(qint64 pixels);

    ColrOutlines &m_outlines;
    const QColor m_foreground;
    qint64 m_painted = 0;
    qint64 m_budget = 0;
    qint64 m_layerPixels = 0;
    bool m_isBeyondLimits = false;
};

} // namespace lorva
