// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#pragma once

#include "base/Result.h"

namespace lorva {

/// Looks for newer releases of the program. Thread: main.
class UpdaterController
{
public:
    virtual ~UpdaterController() = default;
    /// From here on it may look by itself. Called once.
    virtual Result<void> start() = 0;
    /// Whether the user can ask for a look now; never before start().
    virtual bool canCheckForUpdates() const = 0;
    /// The user asks for a look, and sees what comes of it.
    virtual void checkForUpdates() = 0;
};

/// For a build whose updates come from elsewhere, such as a distribution's packages.
class AbsentUpdaterController final : public UpdaterController
{
public:
    Result<void> start() override { return {}; }
    bool canCheckForUpdates() const override { return false; }
    void checkForUpdates() override { }
};

} // namespace lorva
