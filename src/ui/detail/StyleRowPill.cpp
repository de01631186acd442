// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#include "ui/detail/StyleRowPill.h"

#include "ui/style/ControlColors.h"
#include "ui/style/Palette.h"
#include "ui/style/Style.h"

#include <QKeyEvent>
#include <QPainter>

#include <algorithm>

namespace lorva {

namespace {

constexpr double kRestingAlpha = 0.08;
constexpr double kHoverAlpha = 0.13;
constexpr double kPressedAlpha = 0.2;
constexpr double kOutlineAlpha = 0.3;
constexpr int kUsualWidth = 100;
constexpr int kWidest = 180;
constexpr int kPadding = spacing::k8;
/// The focus ring and the gap before it.
constexpr double kFocusInset = 3;

QFont pillFont()
{
    return interfaceFont(InterfaceSize::label, InterfaceWeight::medium);
}

} // namespace

int StyleRowPill::commonWidth()
{
    const QFontMetrics metrics(pillFont());
    int width = kUsualWidth;
    for (const QString &word : {tr("Activate…"), tr("De-activate"), tr("Active")})
        width = std::max(width, metrics.horizontalAdvance(word) + 2 * kPadding + 2);
    return std::min(width, kWidest);
}

StyleRowPill::StyleRowPill(QWidget *parent)
    : FocusRinged(parent)
{
    setAttribute(Qt::WA_Hover);
    setFont(pillFont());
}

void StyleRowPill::setStyle(const QString &styleName, bool isActive)
{
    m_isActive = isActive;
    setAccessibleName((isActive ? tr("De-activate %1") : tr("Activate %1")).arg(styleName));
    update();
}

void StyleRowPill::setColors(const QColor &foreground, const QColor &background)
{
    m_foreground = foreground;
    m_background = background;
    update();
}

QString StyleRowPill::shownText() const
{
    if (!m_isActive)
        //: A small button that switches one style of a family on.
        return tr("Activate…");
    //: A small button that switches one style of a family off; "Active" says that it is on.
    return underMouse() || hasFocusRing() ? tr("De-activate") : tr("Active");
}

/// The arrow keys are the row's; Return presses as the space bar does.
void StyleRowPill::keyPressEvent(QKeyEvent *event)
{
    switch (event->key()) {
    case Qt::Key_Return:
    case Qt::Key_Enter:
        click();
        break;
    case Qt::Key_Space:
        QAbstractButton::keyPressEvent(event);
        break;
    default:
        event->ignore();
    }
}

void StyleRowPill::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    const QColor ink = controlColor(m_foreground, m_background);
    QRectF box(rect());
    if (hasFocusRing()) {
        drawFocusRing(painter, box.adjusted(2, 2, -2, -2), kHeight / 2.0 - 2);
        box.adjust(kFocusInset, kFocusInset, -kFocusInset, -kFocusInset);
    }
    const double resting = m_isActive ? 0 : kRestingAlpha;
    const double alpha = isDown() ? kPressedAlpha : underMouse() ? kHoverAlpha : resting;
    painter.setPen(Qt::NoPen);
    painter.setBrush(withAlpha(ink, alpha));
    painter.drawRoundedRect(box, box.height() / 2, box.height() / 2);
    if (m_isActive && !hasFocusRing()) {
        painter.setPen(QPen(withAlpha(ink, kOutlineAlpha), 1));
        painter.setBrush(Qt::NoBrush);
        painter.drawRoundedRect(box.adjusted(0.5, 0.5, -0.5, -0.5), (box.height() - 1) / 2,
                                (box.height() - 1) / 2);
    }
    painter.setPen(ink);
    painter.setFont(font());
    const QString shown =
        fontMetrics().elidedText(shownText(), Qt::ElideRight, width() - 2 * kPadding);
    painter.drawText(rect(), Qt::AlignCenter, shown);
}

} // namespace lorva
