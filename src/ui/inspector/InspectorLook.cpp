// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#include "ui/inspector/InspectorLook.h"

#include <QPainter>
#include <QStyle>

namespace lorva {

namespace {

QFont fontOf(InspectorLabel::Kind kind)
{
    switch (kind) {
    case InspectorLabel::Kind::caption:
        return interfaceFont(InterfaceSize::caption, InterfaceWeight::semibold);
    case InspectorLabel::Kind::emptyTitle:
        return interfaceFont(InterfaceSize::body, InterfaceWeight::medium);
    case InspectorLabel::Kind::emptyText:
        break;
    }
    return interfaceFont(InterfaceSize::caption);
}

double alphaOf(InspectorLabel::Kind kind)
{
    return kind == InspectorLabel::Kind::emptyText ? 0.4 : 0.55;
}

} // namespace

void drawInspectorLine(QPainter &painter, const QWidget &widget, const QRect &room,
                       const QString &text, Qt::AlignmentFlag side)
{
    const QString line = text.left(kLongestShownName);
    const auto direction =
        line.isRightToLeft() ? Qt::TextForceRightToLeft : Qt::TextForceLeftToRight;
    painter.drawText(
        QStyle::visualRect(widget.layoutDirection(), widget.rect(), room),
        int(QStyle::visualAlignment(widget.layoutDirection(), side)) | int(Qt::AlignVCenter)
            | int(Qt::TextSingleLine) | int(direction),
        painter.fontMetrics().elidedText(line, Qt::ElideRight, room.width(), int(direction)));
}

InspectorLabel::InspectorLabel(const QString &text, Kind kind, QWidget *parent)
    : QLabel(text, parent)
    , m_kind(kind)
{
    setTextFormat(Qt::PlainText);
    setFont(fontOf(kind));
    setWordWrap(kind == Kind::emptyText);
    setMinimumWidth(0);
}

void InspectorLabel::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    painter.setFont(fontOf(m_kind));
    painter.setPen(inspectorQuiet(alphaOf(m_kind)));
    if (m_kind == Kind::caption)
        drawInspectorLine(painter, *this, rect(), text());
    else
        painter.drawText(rect(), int(Qt::AlignHCenter) | int(Qt::AlignTop) | int(Qt::TextWordWrap),
                         text());
}

} // namespace lorva
