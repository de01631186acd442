// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#pragma once

#include "base/FilePath.h"
#include "base/Result.h"

namespace lorva::bench {

/// How many faces each family of a generated library has.
inline constexpr int kFacesPerFamily = 10;

/// Fills `folder` with the fonts of a large studio: small real font files, the same bytes for the
/// same number of families.
///
/// Six families of ten are ten static files, two are one variable font with named instances, two
/// are one collection; forty at a time lie in the folder of a foundry. Most are Latin, one in ten
/// is Japanese, Korean or Chinese. A folder that holds the same library already is left alone, one
/// that holds another generated library is emptied first. Fails with invalidValue when the folder
/// holds anything else, with the system's error when it cannot be written. Thread: any.
Result<void> generateLibrary(const FilePath &folder, int families);

} // namespace lorva::bench
