// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#pragma once

#include "platform/SingleInstance.h"

#include <QDBusConnection>
#include <QObject>

#include <atomic>
#include <future>
#include <memory>
#include <thread>

namespace lorva {

/// One process per login, by a name on the session bus.
///
/// The name is "vantrel.lorva", the object /vantrel/lorva. It speaks org.freedesktop.Application,
/// by which desktops start programs, and vantrel.lorva.Instance, by which we hand a start over.
/// Claiming runs on a thread of its own, besides whatever the start does meanwhile. Without a bus,
/// with one that hangs, and with a running process that hangs, this process is alone.
class DBusSingleInstance final : public SingleInstance
{
public:
    DBusSingleInstance();
    /// Waits for the claiming thread.
    ~DBusSingleInstance() override;

    void beginClaim(const ProgramStart &start) override;
    /// Also keeps the toolkit from a bus that hangs: it would wait for it half a minute.
    Claim claim() override;
    void release() override;

private:
    Claim runClaim(const ProgramStart &start, QThread *mainThread);
    bool connectAndExport(const QByteArray &address, QThread *mainThread);

    std::thread m_thread;
    std::future<Claim> m_outcome;
    std::atomic<bool> m_busHangs = false;
    // The thread's until claim() has its outcome, then the main thread's.
    QDBusConnection m_connection{QString()};
    /// What the bus knows as /vantrel/lorva.
    std::unique_ptr<QObject> m_object;
};

/// True in a process that the bus has started for a call that waits for it, as far as its
/// environment tells; what it starts itself is not told so. Before any thread runs.
bool takeStartedByBus();

/// What this process's environment says of the start: the activation token, Wayland's before X11's.
QByteArray activationTokenFromEnvironment();

} // namespace lorva
