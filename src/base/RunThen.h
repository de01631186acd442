// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QCoreApplication>
#include <QEvent>
#include <QObject>
#include <QThread>
#include <QThreadPool>

#include <atomic>
#include <concepts>
#include <functional>
#include <memory>
#include <mutex>
#include <optional>
#include <stop_token>
#include <type_traits>
#include <utility>

namespace lorva {

/// One piece of work started by runThen(). Copies stand for the same work; letting go of the handle
/// changes nothing. Thread: the guard's.
class RunHandle
{
public:
    RunHandle() = default;
    explicit RunHandle(std::stop_source stop)
        : m_stop(std::move(stop))
    {
    }

    /// Asks the work to stop. `done` is not called any more, even if the work has ended by now.
    void cancel() { m_stop.request_stop(); }
    bool isCancelled() const { return m_stop.stop_requested(); }

private:
    std::stop_source m_stop{std::nostopstate};
};

namespace detail {

/// Qt's queues order what the two threads do, but thread checkers cannot look into Qt: both sides
/// of a hand-over pass here, which they can see.
inline void passOrder()
{
    static std::atomic<unsigned> passed = 0;
    passed.fetch_add(1, std::memory_order_acq_rel);
}

/// What the worker and the guard's thread share. The worker may only touch `receiver` under the
/// lock, and the receiver clears it there before it dies: that is what QFuture::then(context) lacks
/// on Qt 6.4, where a context that dies first takes the program with it.
template <class Outcome>
struct RunState
{
    std::mutex mutex;
    QObject *receiver = nullptr;
    std::optional<Outcome> outcome;
};

/// Lives on the guard's thread as its child and holds `done`, so that what `done` captured dies
/// there too.
template <class Outcome, class Done>
class RunReceiver final : public QObject
{
public:
    RunReceiver(QObject *guard, std::shared_ptr<RunState<Outcome>> state, std::stop_source stop,
                Done done)
        : QObject(guard)
        , m_state(std::move(state))
        , m_stop(std::move(stop))
        , m_done(std::move(done))
    {
        m_state->receiver = this;
    }

    ~RunReceiver() override
    {
        m_stop.request_stop();
        const std::lock_guard lock(m_state->mutex);
        m_state->receiver = nullptr;
    }

protected:
    void customEvent(QEvent *) override
    {
        passOrder();
        if (m_state->outcome)
            deliver();
        else
            deleteLater();
    }

private:
    void deliver()
    {
        // `done` may destroy the guard, so nothing of this object is used after it.
        const bool isWanted = !m_stop.stop_requested();
        Done done = std::move(m_done);
        Outcome outcome = std::move(*m_state->outcome);
        deleteLater();
        if (isWanted)
            done(std::move(outcome));
    }

    const std::shared_ptr<RunState<Outcome>> m_state;
    std::stop_source m_stop;
    Done m_done;
};

template <class Outcome>
void handOver(RunState<Outcome> &state, std::optional<Outcome> outcome)
{
    const std::lock_guard lock(state.mutex);
    if (!state.receiver)
        return;
    state.outcome = std::move(outcome);
    auto *arrival = new QEvent(QEvent::User);
    passOrder();
    QCoreApplication::postEvent(state.receiver, arrival);
}

} // namespace detail

/// Runs `work(std::stop_token)` on `pool` and then `done(result)` on the thread of `guard`, through
/// its event loop, if `guard` still lives then. Destroying the guard, or cancelling the handle,
/// asks the work to stop; work that has not begun by then is not begun.
///
/// Call it on the guard's thread. Values go in and out: `work` must not touch what others change.
template <class Work, class Done>
requires std::invocable<Work &, std::stop_token> RunHandle runThen(QThreadPool &pool,
                                                                   QObject *guard, Work work,
                                                                   Done done)
{
    using Outcome = std::invoke_result_t<Work &, std::stop_token>;
    static_assert(!std::is_void_v<Outcome>, "work gives the value that done takes");
    using Receiver = detail::RunReceiver<Outcome, Done>;
    Q_ASSERT(guard && guard->thread() == QThread::currentThread());

    std::stop_source stop;
    auto state = std::make_shared<detail::RunState<Outcome>>();
    new Receiver(guard, state, stop, std::move(done));
    // The pool copies its functions; the work may hold what cannot be copied.
    auto sharedWork = std::make_shared<Work>(std::move(work));
    // Made before the order is passed, called and freed after it; a pool that is cleared frees it,
    // too.
    auto task = std::make_shared<std::function<void()>>(
        [state, sharedWork, token = stop.get_token()]() mutable {
            std::optional<Outcome> outcome;
            if (!token.stop_requested())
                outcome.emplace((*sharedWork)(token));
            // The inputs die here, before anyone hears of the end.
            sharedWork.reset();
            detail::handOver(*state, std::move(outcome));
        });
    sharedWork.reset();
    std::function<void()> run = [task = std::move(task)]() mutable {
        detail::passOrder();
        const auto owned = std::move(task);
        (*owned)();
    };
    detail::passOrder();
    pool.start(std::move(run));
    return RunHandle(std::move(stop));
}

} // namespace lorva
