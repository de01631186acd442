// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#pragma once

#include "install/ActivationHistory.h"
#include "install/InstallationOutcome.h"

namespace lorva {

/// Adds what became of `files` to the history in `historyFile`, under the present time. `entry`
/// says what was done with which families. Files that the run had nothing to do with are left out,
/// and a run without others is not taken in. What cannot be written is only logged. Thread: any, by
/// whoever holds the run lock.
void addToHistory(ActivationHistoryEntry entry, const std::vector<FilePath> &files,
                  const InstallationOutcome &outcome, const FilePath &historyFile);

} // namespace lorva
