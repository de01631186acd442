// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT

#include "ui/quiz/FontQuizVeil.h"

#include <QPainter>

namespace lorva {

FontQuizVeil::FontQuizVeil(QWidget *parent)
    : QWidget(parent)
{
    setObjectName(QStringLiteral("FontQuizVeil"));
    setAttribute(Qt::WA_TransparentForMouseEvents);
    setFocusPolicy(Qt::NoFocus);
    hide();
}

void FontQuizVeil::cover(const QPixmap &former, const QColor &ground)
{
    m_former = former;
    m_ground = ground;
    setGeometry(parentWidget()->rect());
    setStrength(1);
    raise();
    show();
}

void FontQuizVeil::setStrength(double strength)
{
    m_strength = strength;
    if (strength <= 0) {
        hide();
        m_former = {};
    }
    update();
}

void FontQuizVeil::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    painter.setOpacity(m_strength);
    if (m_former.isNull())
        painter.fillRect(rect(), m_ground);
    else
        painter.drawPixmap(0, 0, m_former);
}

} // namespace lorva
