// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#pragma once

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
/// Owns: its threads, started when first needed. Its destructor drops what waits and waits for what
/// runs. Thread: push() any; tasks run on the workers, at most `most` at once.
class WorkerThreads
{
public:
    explicit WorkerThreads(int most);
    ~WorkerThreads();
    WorkerThreads(const WorkerThreads &) = delete;
    WorkerThreads &operator=(const WorkerThreads &) = delete;

    void push(std::function<void()> task);

private:
    void run(const std::stop_token &stop);

    const size_t m_most;
    std::mutex m_lock;
    std::condition_variable_any m_changed;
    std::vector<std::function<void()>> m_pending;
    size_t m_idle = 0;
    std::vector<std::jthread> m_threads;
};

} // namespace lorva
