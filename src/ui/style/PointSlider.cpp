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
/// How near the pointer must come to a stop for the knob to stick to it, in points.
constexpr double kStickiness = 3.5;
/// A knob that differs this much from its ground needs no edge.
constexpr double kSeenContrast = 3.0;
constexpr double kSideRoom = (kHeight - kKnob) / 2 + kKnob / 2;

} // namespace

PointSlider::PointSlider(QWidget *parent)
    : FocusRinged(Qt::Horizontal, parent)
{
    setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
    // Dragging must not take the keyboard away from the specimens.
    setFocusPolicy(Qt::TabFocus);
    connect(this, &QAbstractSlider::actionTriggered, this, [this](int action) {
        if (m_stop <= 0)
            return;
        if (action == SliderSingleStepAdd || action == SliderPageStepAdd)
            setSliderPosition(nextStop(1));
        else if (action == SliderSingleStepSub || action == SliderPageStepSub)
            setSliderPosition(nextStop(-1));
    });
}

void PointSlider::setStops(int step, int stop)
{
    m_step = std::max(step, 1);
    m_stop = stop;
    setSingleStep(stop);
    setPageStep(stop);
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
    const auto exact = [&](double at) {
        return QStyle::sliderValueFromPosition(minimum(), maximum(),
                                               qRound((at - track.left()) * 8),
                                               qRound(track.width() * 8), isMirrored());
    };
    const int value = exact(x);
    if (m_stop > 0) {
        const int stop = qRound(double(value) / m_stop) * m_stop;
        const int reach = std::abs(exact(x + kStickiness) - value);
        if (std::abs(stop - value) <= reach)
            return stop;
    }
    return qRound(double(value) / m_step) * m_step;
}

/// From the value, which the action has not changed yet.
int PointSlider::nextStop(int direction) const
{
    const int below = (value() / m_stop) * m_stop;
    if (direction > 0)
        return below + m_stop;
    return value() > below ? below : below - m_stop;
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
    if (contrastRatio(colors.raised, blended(m_background, Qt::white)) < kSeenContrast) {
        painter.setPen(QPen(colors.edge, 1));
        painter.setBrush(Qt::NoBrush);
        painter.drawEllipse(knobRect().adjusted(0.5, 0.5, -0.5, -0.5));
    }
    if (hasFocusRing())
        drawFocusRing(painter, knobRect(), kKnob / 2);
}

void PointSlider::mousePressEvent(QMouseEvent *event)
{
    if (event->button() != Qt::LeftButton) {
        event->ignore();
        return;
    }
    const double x = event->position().x();
    const QRectF knob = knobRect();
    m_grip = knob.contains(event->position()) ? x - knob.center().x() : 0;
    setSliderDown(true);
    if (m_grip == 0)
        setSliderPosition(valueAt(x));
    event->accept();
}

void PointSlider::mouseMoveEvent(QMouseEvent *event)
{
    if (!isSliderDown()) {
        event->ignore();
        return;
    }
    setSliderPosition(valueAt(event->position().x() - m_grip));
    event->accept();
}

void PointSlider::mouseDoubleClickEvent(QMouseEvent *event)
{
    if (event->button() == Qt::LeftButton && m_defaultValue
        && knobRect().contains(event->position())) {
        setValue(*m_defaultValue);
        event->accept();
        return;
    }
    mousePressEvent(event);
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

} // namespace lorva
