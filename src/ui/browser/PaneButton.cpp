// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT

#include "ui/browser/PaneButton.h"

#include "ui/style/ControlColors.h"
#include "ui/style/Palette.h"
#include "ui/style/Style.h"

#include <QPainter>

namespace lorva {

namespace {

constexpr int kHeight = 28;
constexpr double kRadius = 7;
constexpr double kRestingAlpha = 0.08;
constexpr double kHoverAlpha = 0.13;
constexpr double kPressedAlpha = 0.2;

} // namespace

PaneButton::PaneButton(const QString &text, QWidget *parent)
    : FocusRinged(text, parent)
{
    setFont(interfaceFont(InterfaceSize::body, InterfaceWeight::medium));
    setAttribute(Qt::WA_Hover);
}

void PaneButton::setColors(const QColor &foreground, const QColor &background)
{
    m_foreground = foreground;
    m_background = background;
    update();
}

QSize PaneButton::sizeHint() const
{
    return {fontMetrics().horizontalAdvance(text()) + 2 * spacing::k16, kHeight};
}

void PaneButton::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    const QColor ink = controlColor(m_foreground, m_background);
    const double alpha = isDown() ? kPressedAlpha : underMouse() ? kHoverAlpha : kRestingAlpha;
    painter.setPen(Qt::NoPen);
    painter.setBrush(withAlpha(ink, alpha));
    painter.drawRoundedRect(rect(), kRadius, kRadius);
    painter.setFont(font());
    painter.setPen(ink);
    painter.drawText(rect(), Qt::AlignCenter, text());
    if (hasFocusRing())
        drawFocusRing(painter, QRectF(rect()).adjusted(2, 2, -2, -2), kRadius - 2);
}

} // namespace lorva
