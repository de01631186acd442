// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>

#include <chrono>

namespace lorva {

/// Whether the session bus of the address (as in DBUS_SESSION_BUS_ADDRESS: one or several, of unix
/// sockets) greets a client within `patience`.
///
/// D-Bus libraries wait half a minute for a bus that hangs, and the toolkit would wait with them.
/// False for an empty address. Thread: any.
bool sessionBusAnswers(const QByteArray &address, std::chrono::milliseconds patience);

/// The address of this login's session bus: the environment's, else the socket in the runtime
/// folder; empty without either. Never starts a bus.
QByteArray sessionBusAddress();

} // namespace lorva
