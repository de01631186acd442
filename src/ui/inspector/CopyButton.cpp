// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#include "ui/inspector/CopyButton.h"

#include "ui/inspector/InspectorLook.h"

#include <QPainter>
#include <QPainterPath>

namespace lorva {

CopyButton::CopyButton(const QString &label, QWidget *parent)
    : FocusRinged(parent)
{
    setAccessibleName(label);
    setToolTip(label);
    setAttribute(Qt::WA_Hover);
    // The value has a key for it.
    setFocusPolicy(Qt::NoFocus);
}

void CopyButton::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    // It may lie over the end of the value.
    painter.setPen(Qt::NoPen);
    painter.setBrush(inspectorGround());
    painter.drawRoundedRect(rect(), 4, 4);
    if (underMouse())
        drawHover(painter, rect(), 4, inspectorInk(), isDown());
    const QColor ink = underMouse() ? inspectorInk() : inspectorQuiet();
    painter.setPen(QPen(ink, 1.1));
    painter.setBrush(Qt::NoBrush);
    const QRectF front(4.5, 6.5, 6.5, 7.5);
    painter.drawRoundedRect(front, 1.5, 1.5);
    // What shows of the sheet behind it.
    QPainterPath behind(QPointF(7.2, 4.2));
    behind.lineTo(12.0, 4.2);
    behind.quadTo(13.5, 4.2, 13.5, 5.7);
    behind.lineTo(13.5, 11.4);
    painter.drawPath(behind);
}

} // namespace lorva
