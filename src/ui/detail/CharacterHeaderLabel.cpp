// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#include "ui/detail/CharacterHeaderLabel.h"

#include "ui/style/Hairline.h"
#include "ui/style/Palette.h"
#include "ui/style/Style.h"

#include <QLocale>
#include <QPainter>

namespace lorva {

namespace {

constexpr double kTextAlpha = 0.5;

} // namespace

CharacterHeaderLabel::CharacterHeaderLabel(QWidget *parent)
    : QWidget(parent)
{
    setObjectName(QStringLiteral("CharacterHeader"));
    setAttribute(Qt::WA_TransparentForMouseEvents);
}

void CharacterHeaderLabel::setText(const QString &text)
{
    const QString shown = locale().toUpper(text);
    if (shown == m_text)
        return;
    m_text = shown;
    setAccessibleName(text);
    update();
}

void CharacterHeaderLabel::setColors(const QColor &foreground, const QColor &lineColor)
{
    m_foreground = foreground;
    m_lineColor = lineColor;
    update();
}

void CharacterHeaderLabel::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    painter.setFont(interfaceFont(InterfaceSize::caption, InterfaceWeight::semibold));
    painter.setPen(withAlpha(m_foreground, kTextAlpha));
    const QRect room = rect().adjusted(0, 0, 0, -spacing::k8);
    painter.drawText(room, int(Qt::AlignLeading | Qt::AlignVCenter | Qt::TextSingleLine), m_text);
    drawHairline(painter, rect(), Qt::BottomEdge, m_lineColor);
}

} // namespace lorva
