// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QElapsedTimer>
#include <QTimer>

#include <chrono>
#include <functional>

namespace lorva {

/// Where an animation gets its time from. Thread: main.
class FrameClock
{
public:
    virtual ~FrameClock() = default;
    /// Calls `tick` for every frame, with the time since the one before, until stop().
    virtual void start(std::function<void(std::chrono::nanoseconds)> tick) = 0;
    /// Also from within `tick`.
    virtual void stop() = 0;
};

/// Sixty frames a second.
class TimerFrameClock final : public FrameClock
{
public:
    TimerFrameClock();
    void start(std::function<void(std::chrono::nanoseconds)> tick) override;
    void stop() override;

private:
    QTimer m_timer;
    QElapsedTimer m_sinceFrame;
    std::function<void(std::chrono::nanoseconds)> m_tick;
};

} // namespace lorva
