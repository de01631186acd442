// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#include "catalog/MainThreadQueue.h"

#include <QPointer>

namespace lorva {

MainThreadQueue::MainThreadQueue(QObject *parent)
    : QObject(parent)
{
    connect(this, &MainThreadQueue::posted, this, &MainThreadQueue::drain, Qt::QueuedConnection);
}

void MainThreadQueue::post(std::function<void()> work)
{
    {
        const std::lock_guard lock(m_lock);
        m_waiting.push_back(std::move(work));
        if (std::exchange(m_isScheduled, true))
            return;
    }
    Q_EMIT posted();
}

std::function<void()> MainThreadQueue::takeFirst()
{
    const std::lock_guard lock(m_lock);
    if (m_waiting.empty())
        return {};
    std::function<void()> work = std::move(m_waiting.front());
    m_waiting.pop_front();
    return work;
}

void MainThreadQueue::drain()
{
    size_t count = 0;
    {
        const std::lock_guard lock(m_lock);
        m_isScheduled = false;
        count = m_waiting.size();
    }
    // Only what waited at the start, so that input and painting get their turn between the trips;
    // and one by one, so that a nested event loop goes on with the rest.
    const QPointer<MainThreadQueue> guard(this);
    for (; count > 0; --count) {
        const std::function<void()> work = takeFirst();
        if (!work)
            return;
        work();
        if (!guard)
            return;
    }
}

} // namespace lorva
