// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT

// cache_saving_probe parse|snapshot FILE: saves two libraries in turn until it is killed.
#include "CacheSupport.h"
#include "catalog/CacheSaver.h"

#include <string_view>

#include <unistd.h>

int main(int count, char **arguments)
{
    using namespace lorva;
    if (count != 3)
        return 2;
    // Nobody is left to kill it when the test itself has ended early.
    ::alarm(120);
    const FilePath file{QByteArray(arguments[2])};
    const bool isSnapshot = std::string_view(arguments[1]) == "snapshot";
    for (int seed = 1;; seed = 3 - seed) {
        if (isSnapshot)
            CatalogCache(file).save(test::sampleSnapshot(seed, 200));
        else
            CacheSaver(file).save(test::sampleCache(seed, 200));
    }
}
