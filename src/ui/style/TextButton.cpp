// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#include "ui/style/TextButton.h"

#include "ui/style/ControlColors.h"
#include "ui/style/Palette.h"
#include "ui/style/Style.h"

#include <QFontMetrics>
#include <QPainter>

namespace lorva {

namespace {

constexpr int kHeight = 28;
constexpr int kPadding = 14;
constexpr int kMinimumWidth = 64;
constexpr double kRadius = 7;
constexpr double kPlainAlpha = 0.075;
constexpr double kHoverAlpha = 0.12;
constexpr double kPressedAlpha = 0.19;
constexpr double kDisabledOpacity = 0.4;
/// The focus ring and the gap before it.
constexpr double kFocusInset = 3;

QFont buttonFont()
{
    return interfaceFont(InterfaceSize::body, InterfaceWeight::medium);
}

} // namespace

TextButton::TextButton(const QString &text, Kind kind, QWidget *parent)
    : FocusRinged(text, parent)
    , m_kind(kind)
{
    setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Fixed);
    setAttribute(Qt::WA_Hover);
    setFont(buttonFont());
    // The dialogs decide which button Return presses.
    setAutoDefault(false);
}

QSize TextButton::sizeHint() const
{
    const int textWidth = QFontMetrics(buttonFont()).size(Qt::TextShowMnemonic, text()).width();
    return QSize(std::max(textWidth + 2 * kPadding, kMinimumWidth), kHeight);
}

QColor TextButton::fillColor() const
{
    const NeutralColors neutral = neutralColors(isDarkDesktop());
    const bool isHovered = isEnabled() && underMouse();
    if (m_kind == Kind::plain) {
        const double alpha = isDown() ? kPressedAlpha : isHovered ? kHoverAlpha : kPlainAlpha;
        return withAlpha(neutral.text, alpha);
    }
    const QColor strong = m_kind == Kind::destructive ? QColor(0xc9, 0x17, 0x1e) : accentColor();
    const double shade = isDown() ? 0.16 : isHovered ? 0.08 : 0.0;
    return blended(withAlpha(Qt::black, shade), strong);
}

void TextButton::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    if (!isEnabled())
        painter.setOpacity(kDisabledOpacity);
    QRectF box(rect());
    double radius = kRadius;
    if (hasFocusRing()) {
        drawFocusRing(painter, box.adjusted(2, 2, -2, -2), kRadius - 2);
        // On a button in the accent's own colour only the gap tells the ring from the fill.
        box.adjust(kFocusInset, kFocusInset, -kFocusInset, -kFocusInset);
        radius = kRadius - kFocusInset;
    }
    const QColor fill = fillColor();
    painter.setPen(Qt::NoPen);
    painter.setBrush(fill);
    painter.drawRoundedRect(box, radius, radius);
    painter.setPen(m_kind == Kind::plain ? neutralColors(isDarkDesktop()).text
                                         : contrastingNeutral(fill));
    painter.setFont(buttonFont());
    const QRect room = rect().adjusted(spacing::k8, 0, -spacing::k8, 0);
    const QString shown =
        QFontMetrics(buttonFont())
            .elidedText(text(), Qt::ElideRight, room.width(), Qt::TextShowMnemonic);
    painter.drawText(room, Qt::AlignCenter | Qt::TextHideMnemonic, shown);
}

} // namespace lorva
