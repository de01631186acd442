// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#pragma once

#include "base/FilePath.h"

#include <chrono>
#include <set>
#include <vector>

namespace lorva {

/// Those of `files` that are no regular files any more, links followed.
///
/// A file that cannot be looked at has not gone, as far as anyone knows: so it is with a volume
/// that does not answer, for which nobody waits longer than `patience`. What hangs is left behind
/// on a thread of its own; while many hang, no further look is taken. Thread: any but the main one.
std::set<FilePath> goneFiles(const std::vector<FilePath> &files,
                             std::chrono::milliseconds patience = std::chrono::seconds(2));

} // namespace lorva
