// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>

#include <condition_variable>
#include <functional>
#include <mutex>
#include <stop_token>
#include <thread>
#include <vector>

namespace lorva {

/// A few threads that take the newest task first: what was asked for last is what the user looks at
/// now.
///
/// Owns: its threads, started when first needed; the system knows them by the part of the name
/// behind its last dot, of which it keeps 15 bytes. Its destructor drops what waits and waits for
/// what runs. Thread: push() any; tasks run on the workers, at most `most` at once.
class WorkerThreads
{
public:
    enum class Priority {
        usual,
        /// Gives way to threads that somebody waits for, and so do threads that tasks start.
        low
    };

    explicit WorkerThreads(int most, const QByteArray &name = {},
                           Priority priority = Priority::usual);
    ~WorkerThreads();
    WorkerThreads(const WorkerThreads &) = delete;
    WorkerThreads &operator=(const WorkerThreads &) = delete;

    void push(std::function<void()> task);

private:
    void begin() const;
    void run(const std::stop_token &stop);

    const size_t m_most;
    const QByteArray m_name;
    const Priority m_priority;
    std::mutex m_lock;
    std::condition_variable_any m_changed;
    std::vector<std::function<void()>> m_pending;
    size_t m_idle = 0;
    std::vector<std::jthread> m_threads;
};

} // namespace lorva
