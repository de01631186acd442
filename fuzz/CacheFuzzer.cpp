// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT

// Any bytes as a parse cache or a snapshot: what is taken must come back from being written.
//
//     build/fuzz/fuzz/lorva_cache_fuzzer FILE
#include "catalog/CatalogCache.h"
#include "catalog/PersistedCache.h"

#include <cstdlib>

using namespace lorva;

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size)
{
    const QByteArray bytes(reinterpret_cast<const char *>(data), qsizetype(size));
    if (const auto cache = decodePersistedCache(bytes)) {
        if (decodePersistedCache(encodePersistedCache(*cache)) != *cache)
            std::abort();
    }
    if (const auto snapshot = decodeSnapshot(bytes)) {
        if (decodeSnapshot(encodeSnapshot(*snapshot)) != *snapshot)
            std::abort();
    }
    return 0;
}
