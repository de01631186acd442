// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#include "base/NotificationCentre.h"

#include "base/MainThread.h"

namespace lorva {

NotificationCentre &NotificationCentre::shared()
{
    static NotificationCentre centre;
    return centre;
}

void NotificationCentre::observe(const QByteArray &name, QObject *guard, Callback callback)
{
    LORVA_ASSERT_MAIN_THREAD();
    dropDead(name);
    m_observers[name].push_back(std::make_shared<Observer>(Observer{guard, std::move(callback)}));
}

void NotificationCentre::stopObserving(const QByteArray &name, const QObject *guard)
{
    LORVA_ASSERT_MAIN_THREAD();
    for (const auto &observer : m_observers.value(name)) {
        if (observer->guard == guard)
            observer->guard.clear();
    }
    dropDead(name);
}

void NotificationCentre::post(const QByteArray &name, const void *sender)
{
    LORVA_ASSERT_MAIN_THREAD();
    const std::vector<std::shared_ptr<Observer>> observers = m_observers.value(name);
    for (const std::shared_ptr<Observer> &observer : observers) {
        if (observer->guard)
            observer->callback(sender);
    }
}

void NotificationCentre::dropDead(const QByteArray &name)
{
    const auto found = m_observers.find(name);
    if (found == m_observers.end())
        return;
    std::erase_if(*found, [](const auto &observer) { return !observer->guard; });
    if (found->empty())
        m_observers.erase(found);
}

} // namespace lorva
