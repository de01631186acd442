// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT

#include "platform/linux/ProcessMemory.h"

#if defined(__GLIBC__)
#include <malloc.h>
#endif

namespace lorva {

void keepMemoryTogether()
{
#if defined(__GLIBC__)
    // With 10,000 families this saves 15 MB at rest and 20 after a look through all of them, and
    // costs 10 ms of a start on two cores: small blocks do not come from the heap but from each
    // thread's own store.
    mallopt(M_ARENA_MAX, 1);
#endif
}

} // namespace lorva
