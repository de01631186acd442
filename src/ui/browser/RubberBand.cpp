// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT

#include "ui/browser/RubberBand.h"

#include "ui/style/Hairline.h"
#include "ui/style/Palette.h"

#include <QPainter>

namespace lorva {

namespace {

constexpr double kFillAlpha = 0.06;
constexpr double kEdgeAlpha = 0.5;

} // namespace

RubberBand::RubberBand(QWidget *parent)
    : QWidget(parent)
{
    setObjectName(QStringLiteral("RubberBand"));
    setAttribute(Qt::WA_TransparentForMouseEvents);
    hide();
}

void RubberBand::setForeground(const QColor &foreground)
{
    m_foreground = foreground;
    update();
}

void RubberBand::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    painter.fillRect(rect(), withAlpha(m_foreground, kFillAlpha));
    for (const Qt::Edge edge : {Qt::TopEdge, Qt::BottomEdge, Qt::LeftEdge, Qt::RightEdge})
        drawHairline(painter, rect(), edge, withAlpha(m_foreground, kEdgeAlpha));
}

} // namespace lorva
