// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#include "platform/FreeMemory.h"

#include <cstdlib>

// Only the GNU C library has it, and only there is it needed.
#ifdef __GLIBC__
#include <malloc.h>
#endif

namespace lorva {

void returnFreeMemory()
{
#ifdef __GLIBC__
    ::malloc_trim(0);
#endif
}

} // namespace lorva
