// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QColor>
#include <QImage>
#include <QPainter>
#include <QTransform>

namespace lorva {

/// A painter's device pixels, for what must fall on them exactly: hairlines and finished images. At
/// a device-pixel ratio of 1.5 a widget may begin in the middle of a pixel, and anything placed in
/// points would be smeared over two.
///
/// Valid while the painter's transform stays as it is. Thread: the painter's.
class DeviceSpace
{
public:
    explicit DeviceSpace(QPainter &painter);

    /// Device pixels per point.
    double ratio() const;
    /// The pixel corner nearest to a point of the painter's space.
    QPoint deviceCorner(QPointF point) const;
    /// The rectangle between the pixel corners nearest to the rectangle's own; neighbours stay
    /// neighbours.
    QRect deviceRect(const QRectF &rect) const;

    void fillRect(const QRect &devicePx, const QColor &color) const;
    /// Draws the image pixel by pixel, whatever its own ratio, `offsetPx` from the corner nearest
    /// to `origin`.
    void drawImage(QPointF origin, QPoint offsetPx, const QImage &image) const;

private:
    QPainter &m_painter;
    QTransform m_toDevice;
    /// The world transform under which the painter takes device pixels.
    QTransform m_identityWorld;
};

} // namespace lorva
