// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QDeadlineTimer>
#include <QEventLoop>
#include <QTimer>

#include <functional>

namespace lorva::test {

/// Runs the event loop until `condition` holds; false when it still does not after a long while.
/// The condition is looked at after every round of events, so nothing waits longer than it must.
inline bool waitUntil(const std::function<bool()> &condition)
{
    QDeadlineTimer deadline(std::chrono::seconds(60));
    QTimer wakeUp;
    wakeUp.start(std::chrono::milliseconds(2));
    QEventLoop loop;
    while (!condition()) {
        if (deadline.hasExpired())
            return false;
        loop.processEvents(QEventLoop::AllEvents | QEventLoop::WaitForMoreEvents);
    }
    return true;
}

} // namespace lorva::test
