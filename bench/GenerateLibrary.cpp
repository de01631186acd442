// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT

// lorva_generate_library DIR FAMILIES
#include "bench/LibraryGenerator.h"

#include <cstdio>

int main(int count, char **arguments)
{
    using namespace lorva;
    bool isNumber = false;
    const int families = count == 3 ? QByteArray(arguments[2]).toInt(&isNumber) : 0;
    if (!isNumber || families < 1 || families > 100000) {
        std::fputs("usage: lorva_generate_library DIR FAMILIES (1 to 100000)\n", stderr);
        return 2;
    }
    const auto done = bench::generateLibrary(FilePath::absolute(arguments[1]), families);
    if (done)
        return 0;
    std::fprintf(stderr, "lorva_generate_library: %s\n", qUtf8Printable(done.error().detail));
    return 1;
}
