// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#pragma once

#include "commands/Alert.h"
#include "platform/UpdaterController.h"

namespace lorva {

// What the user is told about newer releases. Thread: any.

/// For `newer` the first button opens the release's page.
Alert updateAlert(const UpdateOutcome &outcome, const QString &runningVersion);
/// The user asked, but this build cannot look: `reason` is what starting failed with; absent where
/// no address was built in.
Alert noUpdatesAlert(const std::optional<Error> &reason);

} // namespace lorva
