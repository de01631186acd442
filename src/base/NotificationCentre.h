// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>
#include <QHash>
#include <QPointer>

#include <functional>
#include <memory>
#include <vector>

namespace lorva {

/// Tells whoever wants to know that something named has happened, without poster and observer
/// knowing each other. The names belong to the modules that post them.
///
/// Thread: main. Callbacks run within post(), in the order in which they were registered.
class NotificationCentre
{
public:
    /// Gets the object that the notice is about, which may be null. It serves to tell senders
    /// apart.
    using Callback = std::function<void(const void *sender)>;

    /// The one of the program.
    static NotificationCentre &shared();

    NotificationCentre() = default;
    NotificationCentre(const NotificationCentre &) = delete;
    NotificationCentre &operator=(const NotificationCentre &) = delete;

    /// Calls `callback` at every post of `name` for as long as `guard` lives.
    void observe(const QByteArray &name, QObject *guard, Callback callback);
    /// Ends all observing of `name` by `guard`, also when called from a callback.
    void stopObserving(const QByteArray &name, const QObject *guard);
    /// Observers that are added meanwhile hear of the next post only.
    void post(const QByteArray &name, const void *sender = nullptr);

private:
    struct Observer
    {
        QPointer<QObject> guard;
        Callback callback;
    };

    void dropDead(const QByteArray &name);

    /// Shared, so that an observer that goes during a post stays in memory until its turn is over.
    QHash<QByteArray, std::vector<std::shared_ptr<Observer>>> m_observers;
};

} // namespace lorva
