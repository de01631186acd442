// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>
#include <QString>

namespace lorva {

/// The name of the person whose account this is: the first field of the account's comment, else
/// the login name; empty when neither is known. Asks the system's user database, which may lie in
/// the network. Thread: any.
QString userFullName();

/// What an account's comment ("GECOS") and login name give, on one line and trimmed:
/// "Ada Lovelace,Room 1,," → "Ada Lovelace"; "& Lovelace" of ada → "Ada Lovelace"; ",,," of ada →
/// "ada". Bytes that are no UTF-8 are taken as Latin-1. Thread: any.
QString accountFullName(const QByteArray &comment, const QByteArray &login);

} // namespace lorva
