// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT

#include "ui/onboarding/FrameClock.h"

namespace lorva {

namespace {

constexpr std::chrono::milliseconds kFrame{16};

} // namespace

TimerFrameClock::TimerFrameClock()
{
    m_timer.setTimerType(Qt::PreciseTimer);
    m_timer.setInterval(kFrame);
    QObject::connect(&m_timer, &QTimer::timeout, &m_timer, [this] {
        const std::chrono::nanoseconds passed(m_sinceFrame.nsecsElapsed());
        m_sinceFrame.start();
        // It may stop the clock, and with it lose the function.
        const auto tick = m_tick;
        tick(passed);
    });
}

void TimerFrameClock::start(std::function<void(std::chrono::nanoseconds)> tick)
{
    m_tick = std::move(tick);
    m_sinceFrame.start();
    m_timer.start();
}

void TimerFrameClock::stop()
{
    m_timer.stop();
    m_tick = nullptr;
}

} // namespace lorva
