// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#pragma once

#include "base/FilePath.h"

#include <vector>

namespace lorva {

/// Gives a damaged preference file, and the log that belongs to it, a name with the date, so that a
/// new one can be made. False when it cannot be renamed. Thread: any.
bool movePreferencesAside(const FilePath &file);

/// What movePreferencesAside() has made of `file`, oldest first.
std::vector<FilePath> preferencesAside(const FilePath &file);

} // namespace lorva
