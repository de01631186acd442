// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#pragma once

#include "base/FilePath.h"
#include "base/Result.h"

namespace lorva {

/// The kind that stands for the system's error number `code`.
ErrorKind errorKindOf(int code);

/// "cannot `action` `path`: the system's reason".
[[nodiscard]] tl::unexpected<Error> systemFailure(int code, const char *action,
                                                  const FilePath &path);

} // namespace lorva
