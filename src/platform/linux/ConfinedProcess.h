// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#pragma once

#include "platform/Confinement.h"

#include <sys/types.h>

namespace lorva {

// The side of runConfined() that works. An answer begins with one of these.
inline constexpr char kAnswerMark = 'A';
/// The ErrorKind as a byte follows, then the detail in UTF-8.
inline constexpr char kErrorMark = 'E';
/// No words about a font are longer.
inline constexpr qsizetype kMostDetailBytes = 1024;
/// What the process ends with when it ran out of memory.
inline constexpr int kOutOfMemoryExit = 3;

/// What is told when there is none to be had, with the reason from errno.
tl::unexpected<Error> noProcess();

/// Limits this process, works, writes the outcome to the descriptor, and ends without a look back:
/// what the copied process would do at its end is for the original to do.
[[noreturn]] void workConfined(const ConfinedWork &work, const ConfinementLimits &limits,
                               int answer, pid_t parent);

} // namespace lorva
