// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT

#include "ui/browser/SmoothScroller.h"

#include "ui/style/ReducedMotion.h"

#include <QGuiApplication>
#include <QKeyEvent>
#include <QScrollBar>
#include <QWheelEvent>

#include <algorithm>
#include <cmath>

namespace lorva {

namespace {

/// What a wheel reports for one notch, in eighths of a degree.
constexpr int kNotchAngle = 120;
/// For an arrow key, in single steps of the bar.
constexpr int kStepsOfArrow = 3;

/// X11 hands on what the device counts, in units of its own.
bool hasPointsOf(const QWheelEvent &event)
{
    return !event.pixelDelta().isNull() && QGuiApplication::platformName() != QLatin1String("xcb");
}

} // namespace

SmoothScroller::SmoothScroller(QScrollBar *bar)
    : QObject(bar)
    , m_bar(bar)
{
    m_glide.setDuration(kGlideMilliseconds);
    m_glide.setEasingCurve(QEasingCurve::OutCubic);
    connect(&m_glide, &QVariantAnimation::valueChanged, this, &SmoothScroller::step);
}

void SmoothScroller::glideBy(double distance)
{
    const bool isGliding = m_glide.state() == QAbstractAnimation::Running;
    glideTo((isGliding ? m_target : m_bar->value()) + distance);
}

void SmoothScroller::glideTo(double target)
{
    m_glide.stop();
    m_target = std::clamp<double>(target, m_bar->minimum(), m_bar->maximum());
    if (prefersReducedMotion(m_bar)) {
        m_bar->setValue(int(std::lround(m_target)));
        return;
    }
    m_lastValue = m_bar->value();
    m_glide.setStartValue(double(m_bar->value()));
    m_glide.setEndValue(m_target);
    m_glide.start();
}

void SmoothScroller::moveBy(double distance)
{
    m_glide.stop();
    m_rest += distance;
    const double whole = std::trunc(m_rest);
    m_rest -= whole;
    m_bar->setValue(m_bar->value() + int(whole));
}

bool SmoothScroller::key(const QKeyEvent &event)
{
    const auto modifiers = event.modifiers() & ~Qt::KeypadModifier;
    const bool turnsBack = event.key() == Qt::Key_Space && modifiers == Qt::ShiftModifier;
    if (modifiers != Qt::NoModifier && !turnsBack)
        return false;
    switch (event.key()) {
    case Qt::Key_Up:
        glideBy(-m_bar->singleStep() * kStepsOfArrow);
        return true;
    case Qt::Key_Down:
        glideBy(m_bar->singleStep() * kStepsOfArrow);
        return true;
    case Qt::Key_PageUp:
        glideBy(-m_bar->pageStep());
        return true;
    case Qt::Key_PageDown:
    case Qt::Key_Space:
        glideBy(turnsBack ? -m_bar->pageStep() : m_bar->pageStep());
        return true;
    case Qt::Key_Home:
        glideTo(m_bar->minimum());
        return true;
    case Qt::Key_End:
        glideTo(m_bar->maximum());
        return true;
    default:
        return false;
    }
}

void SmoothScroller::step(const QVariant &value)
{
    if (m_bar->value() != m_lastValue) {
        m_glide.stop();
        return;
    }
    m_bar->setValue(int(std::lround(value.toDouble())));
    m_lastValue = m_bar->value();
}

void SmoothScroller::wheel(const QWheelEvent &event, double notchDistance)
{
    if (hasPointsOf(event)) {
        moveBy(-event.pixelDelta().y());
        return;
    }
    const int angle = event.angleDelta().y();
    const double distance = -notchDistance * angle / kNotchAngle;
    // Touchpads report fractions of a notch, often: a glide for each would lag behind the finger.
    if (angle % kNotchAngle == 0)
        glideBy(distance);
    else
        moveBy(distance);
}

} // namespace lorva
