// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#pragma once

namespace lorva {

/// Gives memory that was freed, but kept for later, back to the system: after a large library was
/// read and sorted, a quarter of the process would else stay idle. Takes up to a tenth of a second,
/// in which other threads go on. Thread: a worker.
void returnFreeMemory();

} // namespace lorva
