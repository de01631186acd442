// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#include "text/color/GlyphLibraries.h"

#include "text/color/SvgLibrary.h"
#include "text/OpenedFile.h"

#include <algorithm>
#include <iterator>

namespace lorva {

namespace {

/// Whether the file begins with anything but the table directory of its one face.
bool hasDirectoriesElsewhere(QByteArrayView beginning)
{
    constexpr QByteArrayView kPlain[]{{"\0\1\0\0", 4}, "OTTO", "true", "typ1"};
    return std::none_of(std::begin(kPlain), std::end(kPlain),
                        [&](QByteArrayView version) { return beginning.startsWith(version); });
}

} // namespace

void loadGlyphLibraries(const OpenedFile &file)
{
    // More than the table directory of any real font.
    constexpr quint64 kBeginning = 4096;
    const QByteArray beginning = file.bytes(0, std::min(kBeginning, file.size()));
    if (hasDirectoriesElsewhere(beginning) || beginning.contains("SVG "))
        SvgLibrary::shared();
}

} // namespace lorva
