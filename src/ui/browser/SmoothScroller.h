// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QVariantAnimation>

class QKeyEvent;
class QScrollBar;
class QWheelEvent;

namespace lorva {

/// Moves a scroll bar: at once, or in a short glide where a step of it would be a jump.
///
/// Who moves the bar otherwise in the meantime wins: the glide ends. With reduced motion there is
/// none. Thread: main. Units: points, those of the bar.
class SmoothScroller final : public QObject
{
    Q_OBJECT
public:
    static constexpr int kGlideMilliseconds = 160;

    explicit SmoothScroller(QScrollBar *bar);

    /// Distances that come while it glides add up.
    void glideBy(double distance);
    void glideTo(double target);
    void moveBy(double distance);
    void stop() { m_glide.stop(); }
    /// A notch of a wheel glides by `notchDistance`; a finger on a touchpad moves the content
    /// exactly as far as it moves.
    void wheel(const QWheelEvent &event, double notchDistance);
    /// The keys that scroll a page: arrows, Page Up and Down, Space, Home and End. False: it is
    /// another one.
    bool key(const QKeyEvent &event);

private:
    void step(const QVariant &value);

    QScrollBar *m_bar;
    QVariantAnimation m_glide;
    double m_target = 0;
    int m_lastValue = 0;
    /// What fingers moved and whole points did not take yet.
    double m_rest = 0;
};

} // namespace lorva
