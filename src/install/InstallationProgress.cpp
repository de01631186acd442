// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#include "install/InstallationProgress.h"

#include <QTimerEvent>

#include <algorithm>
#include <chrono>
#include <utility>

namespace lorva {

namespace {

constexpr std::chrono::milliseconds kPause{34};

} // namespace

InstallationProgress::InstallationProgress(int total, Tell tell)
    : m_total(total)
    , m_tell(std::move(tell))
    , m_counter(std::make_shared<std::atomic<int>>(0))
{
}

void InstallationProgress::begin()
{
    m_timer = startTimer(kPause);
    tellWhatIsNew();
}

void InstallationProgress::end()
{
    if (m_timer == 0)
        return;
    killTimer(std::exchange(m_timer, 0));
    tellWhatIsNew();
}

void InstallationProgress::timerEvent(QTimerEvent *event)
{
    if (event->timerId() == m_timer)
        tellWhatIsNew();
}

void InstallationProgress::tellWhatIsNew()
{
    const int done = std::min(m_counter->load(std::memory_order_relaxed), m_total);
    if (std::exchange(m_told, done) == done)
        return;
    const Tell tell = m_tell;
    tell(done, m_total);
}

} // namespace lorva
