// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#include "ui/style/DeviceSpace.h"

#include <cmath>

namespace lorva {

DeviceSpace::DeviceSpace(QPainter &painter)
    : m_painter(painter)
    , m_toDevice(painter.deviceTransform())
{
    const QTransform worldToDevice = painter.worldTransform().inverted() * m_toDevice;
    m_identityWorld = worldToDevice.inverted();
}

double DeviceSpace::ratio() const
{
    return std::hypot(m_toDevice.m11(), m_toDevice.m12());
}

QPoint DeviceSpace::deviceCorner(QPointF point) const
{
    return m_toDevice.map(point).toPoint();
}

QRect DeviceSpace::deviceRect(const QRectF &rect) const
{
    const QPoint topLeft = deviceCorner(rect.topLeft());
    const QPoint bottomRight = deviceCorner(rect.bottomRight());
    return QRect(topLeft, QSize(bottomRight.x() - topLeft.x(), bottomRight.y() - topLeft.y()));
}

void DeviceSpace::fillRect(const QRect &devicePx, const QColor &color) const
{
    const QTransform world = m_painter.worldTransform();
    m_painter.setWorldTransform(m_identityWorld);
    m_painter.fillRect(devicePx, color);
    m_painter.setWorldTransform(world);
}

void DeviceSpace::drawImage(QPointF origin, QPoint offsetPx, const QImage &image) const
{
    if (image.isNull())
        return;
    const QTransform world = m_painter.worldTransform();
    m_painter.setWorldTransform(m_identityWorld);
    // A target rectangle instead of a changed ratio: changing it would copy the pixels.
    m_painter.drawImage(QRectF(deviceCorner(origin) + offsetPx, QSizeF(image.size())), image,
                        QRectF(image.rect()));
    m_painter.setWorldTransform(world);
}

} // namespace lorva
