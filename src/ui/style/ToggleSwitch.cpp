// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#include "ui/style/ToggleSwitch.h"

#include "ui/style/ControlColors.h"
#include "ui/style/Palette.h"

#include <QPainter>

namespace lorva {

namespace {

constexpr double kWidth = 30;
constexpr double kHeight = 18;
/// For the focus ring.
constexpr double kRoom = 3;
constexpr double kKnobInset = 2.5;
constexpr double kDisabledOpacity = 0.4;
/// Of the track: the knob's place tells the state, too.
constexpr double kOffAlpha = 0.28;
constexpr double kPressedAlpha = 0.42;

} // namespace

ToggleSwitch::ToggleSwitch(const QString &label, QWidget *parent)
    : FocusRinged(parent)
{
    setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
    setCheckable(true);
    setAttribute(Qt::WA_Hover);
    setFocusPolicy(Qt::TabFocus);
    setAccessibleName(label);
}

QSize ToggleSwitch::sizeHint() const
{
    return QSize(int(kWidth + 2 * kRoom), int(kHeight + 2 * kRoom));
}

void ToggleSwitch::paintEvent(QPaintEvent *)
{
    const NeutralColors neutral = neutralColors(isDarkDesktop());
    const ControlColors colors = ControlColors::from(neutral.text, neutral.ground);
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    if (!isEnabled())
        painter.setOpacity(kDisabledOpacity);
    const QRectF track((width() - kWidth) / 2, (height() - kHeight) / 2, kWidth, kHeight);
    painter.setPen(Qt::NoPen);
    painter.setBrush(isChecked() ? colors.ink
                                 : withAlpha(colors.ink, isDown() ? kPressedAlpha : kOffAlpha));
    painter.drawRoundedRect(track, kHeight / 2, kHeight / 2);
    const double side = kHeight - 2 * kKnobInset;
    const bool isAtRight = isChecked() != isRightToLeft();
    const double x = isAtRight ? track.right() - kKnobInset - side : track.left() + kKnobInset;
    painter.setBrush(neutral.ground);
    painter.drawEllipse(QRectF(x, track.top() + kKnobInset, side, side));
    if (hasFocusRing())
        drawFocusRing(painter, track.adjusted(-1, -1, 1, 1), kHeight / 2 + 1);
}

} // namespace lorva
