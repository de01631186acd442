// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#include "ui/style/Hairline.h"

#include "ui/style/DeviceSpace.h"

namespace lorva {

void drawHairline(QPainter &painter, const QRectF &rect, Qt::Edge edge, const QColor &color)
{
    const DeviceSpace device(painter);
    QRect line = device.deviceRect(rect);
    if (line.isEmpty())
        return;
    switch (edge) {
    case Qt::TopEdge:
        line.setHeight(1);
        break;
    case Qt::BottomEdge:
        line.setTop(line.bottom());
        break;
    case Qt::LeftEdge:
        line.setWidth(1);
        break;
    case Qt::RightEdge:
        line.setLeft(line.right());
        break;
    }
    device.fillRect(line, color);
}

} // namespace lorva
