// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#pragma once

#include "platform/PlatformFolders.h"

#include <functional>

namespace lorva {

/// Gives the value of an environment variable; empty when it is not set.
using EnvironmentReader = std::function<QByteArray(const char *name)>;

/// Reads this process's environment.
QByteArray processEnvironment(const char *name);

/// The user's folders after the XDG base directory rules: a value that is not absolute is ignored.
///
/// Never fails: without a usable HOME the account's entry decides, and without one the root folder.
/// Nothing is created. Thread: any that does not race with setenv().
PlatformFolders xdgFolders(const EnvironmentReader &environment = processEnvironment);

} // namespace lorva
