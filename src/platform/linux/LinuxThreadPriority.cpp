// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#include "platform/ThreadPriority.h"

#include <tuple>

#include <sys/resource.h>
#include <unistd.h>

namespace lorva {

void lowerThisThreadsPriority()
{
    constexpr int kNice = 10;
    // On Linux a thread has a nice value of its own.
    std::ignore = ::setpriority(PRIO_PROCESS, id_t(::gettid()), kNice);
}

} // namespace lorva
