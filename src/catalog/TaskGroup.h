// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#pragma once

#include <algorithm>
#include <atomic>
#include <condition_variable>
#include <deque>
#include <functional>
#include <mutex>
#include <stop_token>
#include <thread>
#include <utility>
#include <vector>

namespace lorva {

/// Runs `count` tasks on at most `workers` threads, handing them out in order, and merges what they
/// give on the calling thread as they finish, in any order.
///
/// `work` gets a task's number and shares nothing with the others; so no lock is needed around what
/// `merge` changes. Returns when all is merged, or, once `stop` is requested, when the tasks under
/// way are; false in that case.
template <class Output>
bool runTaskGroup(size_t count, int workers, const std::stop_token &stop,
                  const std::function<Output(size_t)> &work,
                  const std::function<void(size_t, Output)> &merge)
{
    std::mutex mutex;
    std::condition_variable changed;
    std::deque<std::pair<size_t, Output>> finished;
    size_t running = std::min(count, size_t(std::max(workers, 1)));
    std::atomic<size_t> next = 0;

    const auto runWorker = [&] {
        while (!stop.stop_requested()) {
            const size_t task = next.fetch_add(1);
            if (task >= count)
                break;
            Output output = work(task);
            const std::lock_guard lock(mutex);
            finished.emplace_back(task, std::move(output));
            changed.notify_one();
        }
        const std::lock_guard lock(mutex);
        --running;
        changed.notify_one();
    };

    std::vector<std::jthread> threads;
    for (size_t i = running; i > 0; --i)
        threads.emplace_back(runWorker);

    for (std::unique_lock lock(mutex); running > 0 || !finished.empty();) {
        changed.wait(lock, [&] { return running == 0 || !finished.empty(); });
        if (finished.empty())
            continue;
        auto [task, output] = std::move(finished.front());
        finished.pop_front();
        lock.unlock();
        merge(task, std::move(output));
        lock.lock();
    }
    return !stop.stop_requested();
}

} // namespace lorva
