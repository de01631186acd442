// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#include "ui/style/PointSlider.h"

#include "ui/style/ControlColors.h"
#include "ui/style/Palette.h"

#include <QMouseEvent>
#include <QPainter>
#include <QStyle>

namespace lorva {

namespace {

constexpr int kTrackLength = 104;
constexpr double kTrackThickness = 3;
constexpr double kKnob = 14;
/// Room for the knob's focus ring.
constexpr int kHeight = 20;
constexpr double kTrackAlpha = 0.18;
constexpr double kSideRoom = (kHeight - kKnob) / 2 + kKnob / 2;

} // namespace

PointSlider::PointSlider(QWidget *parent)
    : QSlider(Qt::Horizontal, parent)
{
    setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
    // Dragging must not take the keyboard away from the specimens.
    setFocusPolicy(Qt::TabFocus);
}

void PointSlider::setColors(const QColor &foreground, const QColor &background)
{
    m_foreground = foreground;
    m_background = background;
    update();
}

QSize PointSlider::sizeHint() const
{
    return QSize(kTrackLength + int(2 * kSideRoom), kHeight);
}

QRectF PointSlider::trackRect() const
{
    return QRectF(kSideRoom, (height() - kTrackThickness) / 2, width() - 2 * kSideRoom,
                  kTrackThickness);
}

bool PointSlider::isMirrored() const
{
    return isRightToLeft() != invertedAppearance();
}

QRectF PointSlider::knobRect() const
{
    const QRectF track = trackRect();
    const double span = double(maximum()) - minimum();
    double share = span > 0 ? (double(sliderPosition()) - minimum()) / span : 0.0;
    if (isMirrored())
        share = 1.0 - share;
    const QPointF center(track.left() + share * track.width(), height() / 2.0);
    return QRectF(center.x() - kKnob / 2, center.y() - kKnob / 2, kKnob, kKnob);
}

int PointSlider::valueAt(double x) const
{
    const QRectF track = trackRect();
    return QStyle::sliderValueFromPosition(minimum(), maximum(), qRound((x - track.left()) * 8),
                                           qRound(track.width() * 8), isMirrored());
}

void PointSlider::paintEvent(QPaintEvent *)
{
    const ControlColors colors = ControlColors::from(m_foreground, m_background);
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    painter.setBrush(withAlpha(colors.ink, kTrackAlpha));
    painter.drawRoundedRect(trackRect(), kTrackThickness / 2, kTrackThickness / 2);
    if (!isEnabled())
        painter.setOpacity(0.4);
    drawRaised(painter, knobRect(), kKnob / 2, colors);
    if (hasFocus() && m_showsFocus)
        drawFocusRing(painter, knobRect(), kKnob / 2);
}

void PointSlider::mousePressEvent(QMouseEvent *event)
{
    if (event->button() != Qt::LeftButton) {
        event->ignore();
        return;
    }
    setSliderDown(true);
    setSliderPosition(valueAt(event->position().x()));
    event->accept();
}

void PointSlider::mouseMoveEvent(QMouseEvent *event)
{
    if (!isSliderDown()) {
        event->ignore();
        return;
    }
    setSliderPosition(valueAt(event->position().x()));
    event->accept();
}

void PointSlider::mouseReleaseEvent(QMouseEvent *event)
{
    if (event->button() != Qt::LeftButton) {
        event->ignore();
        return;
    }
    setSliderDown(false);
    event->accept();
}

void PointSlider::focusInEvent(QFocusEvent *event)
{
    m_showsFocus = event->reason() != Qt::MouseFocusReason;
    QSlider::focusInEvent(event);
}

} // namespace lorva
