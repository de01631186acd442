// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#include "text/color/GlyphLibraries.h"

#include "text/color/SvgLibrary.h"
#include "text/OpenedFile.h"

namespace lorva {

void loadGlyphLibraries(const OpenedFile &file)
{
    // More than the table directory of any real font.
    constexpr quint64 kBeginning = 4096;
    if (file.bytes(0, std::min(kBeginning, file.size())).contains("SVG "))
        SvgLibrary::shared();
}

} // namespace lorva
