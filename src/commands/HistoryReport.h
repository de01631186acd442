// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#pragma once

#include "commands/Report.h"
#include "install/ActivationHistory.h"

namespace lorva {

/// What was switched on and off, the newest first as given, in words and local times. Thread: any.
Report historyReport(const std::vector<ActivationHistoryEntry> &entries);

} // namespace lorva
