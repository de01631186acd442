// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#pragma once

#include "base/FilePath.h"
#include "base/Result.h"

namespace lorva::cli {

/// A slip of the hand must not cost anyone a font: fails for a path with a font's extension, and
/// for one that leads to a font, whatever its name.
Result<void> refuseFontFile(const FilePath &output);

} // namespace lorva::cli
