// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#pragma once

#include "cli/DoctorChecks.h"

namespace lorva::cli {

// What the doctor looks at of fonts that are switched on; each as DoctorCheck::run.

/// The books against the disk, what a run has left, and whether one goes on.
void checkActivation(Examined &examined, Findings &findings);
/// What programs in sandboxes cannot see.
void checkSandbox(Examined &examined, Findings &findings);
/// Watched folders that are away, lie in one another, or whose changes nobody notices.
void checkWatchedFolders(Examined &examined, Findings &findings);

} // namespace lorva::cli
