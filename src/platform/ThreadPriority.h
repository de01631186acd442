// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#pragma once

namespace lorva {

/// Makes the calling thread, until it ends, give way to threads that somebody waits for. Threads
/// that it starts afterwards inherit that. Where the system refuses, nothing changes.
void lowerThisThreadsPriority();

} // namespace lorva
