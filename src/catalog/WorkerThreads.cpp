// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#include "catalog/WorkerThreads.h"

#include "platform/ThreadPriority.h"

#include <algorithm>

#include <pthread.h>

namespace lorva {

namespace {

/// The system refuses longer names whole.
constexpr qsizetype kLongestThreadName = 15;

} // namespace

WorkerThreads::WorkerThreads(int most, const QByteArray &name, Priority priority)
    : m_most(size_t(std::max(most, 1)))
    , m_name(name.mid(name.lastIndexOf('.') + 1).left(kLongestThreadName))
    , m_priority(priority)
{
}

WorkerThreads::~WorkerThreads()
{
    std::vector<std::jthread> threads;
    {
        const std::lock_guard lock(m_lock);
        threads.swap(m_threads);
    }
    for (std::jthread &thread : threads)
        thread.request_stop();
    for (std::jthread &thread : threads)
        thread.join();
}

void WorkerThreads::push(std::function<void()> task)
{
    const std::lock_guard lock(m_lock);
    m_pending.push_back(std::move(task));
    if (m_idle < m_pending.size() && m_threads.size() < m_most)
        m_threads.emplace_back([this](const std::stop_token &stop) { run(stop); });
    m_changed.notify_one();
}

void WorkerThreads::begin() const
{
    if (!m_name.isEmpty())
        ::pthread_setname_np(::pthread_self(), m_name.constData());
    if (m_priority == Priority::low)
        lowerThisThreadsPriority();
}

void WorkerThreads::run(const std::stop_token &stop)
{
    begin();
    std::unique_lock lock(m_lock);
    while (!stop.stop_requested()) {
        ++m_idle;
        m_changed.wait(lock, stop, [this] { return !m_pending.empty(); });
        --m_idle;
        if (stop.stop_requested() || m_pending.empty())
            return;
        std::function<void()> task = std::move(m_pending.back());
        m_pending.pop_back();
        lock.unlock();
        task();
        // Gone before the lock is taken: what the task holds may be slow to let go.
        task = nullptr;
        lock.lock();
    }
}

} // namespace lorva
