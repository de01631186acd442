// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QObject>

#include <deque>
#include <functional>
#include <mutex>

namespace lorva {

/// Hands work over to the thread that it lives on, in order, many pieces per trip of the event
/// loop.
///
/// What still waits when it is destroyed is dropped. Its owner stops everything that posts first.
class MainThreadQueue final : public QObject
{
    Q_OBJECT
public:
    explicit MainThreadQueue(QObject *parent = nullptr);

    /// Thread: any.
    void post(std::function<void()> work);

Q_SIGNALS:
    /// Thread: whichever posts.
    void posted();

private:
    void drain();
    std::function<void()> takeFirst();

    std::mutex m_lock;
    std::deque<std::function<void()>> m_waiting;
    bool m_isScheduled = false;
};

} // namespace lorva
