// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#include "ui/inspector/QuietButton.h"

#include "ui/inspector/InspectorLook.h"

#include <QPainter>

namespace lorva {

namespace {

constexpr int kHeight = spacing::k20;

QFont wordFont()
{
    return interfaceFont(InterfaceSize::caption, InterfaceWeight::medium);
}

} // namespace

QuietButton::QuietButton(const QString &text, QWidget *parent)
    : FocusRinged(parent)
{
    setText(text);
    setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
    setAttribute(Qt::WA_Hover);
    setFocusPolicy(Qt::TabFocus);
}

QSize QuietButton::sizeHint() const
{
    return {QFontMetrics(wordFont()).horizontalAdvance(text()) + 2 * kSideRoom, kHeight};
}

void QuietButton::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    if (hasFocusRing())
        drawFocusRing(painter, QRectF(rect()).adjusted(2, 2, -2, -2), 4);
    painter.setFont(wordFont());
    painter.setPen(underMouse() || isDown() ? inspectorInk() : inspectorQuiet());
    painter.drawText(rect(), int(Qt::AlignCenter) | int(Qt::TextSingleLine), text());
}

} // namespace lorva
