// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT

#include "model/CatalogActivation.h"

#include <algorithm>

namespace lorva {

bool CatalogActivation::isWatched(const FilePath &file) const
{
    if (m_watched)
        return m_watched->contains(file);
    return std::ranges::any_of(m_watchedFolders,
                               [&](const FilePath &folder) { return file.isInside(folder); });
}

bool CatalogActivation::isActive(const FilePath &file) const
{
    if (!isWatched(file))
        return true;
    const auto holds = [&](const FilePath &folder) { return file.isInside(folder); };
    return holds(m_folders.userFonts) || holds(m_folders.allUsersFonts)
        || std::any_of(m_folders.systemFonts.begin(), m_folders.systemFonts.end(), holds);
}

std::optional<FontFamilyActivation> CatalogActivation::activation(
    const FontFamilyRecord &family) const
{
    int withFile = 0;
    int active = 0;
    for (const FontStyleRecord &style : family.styles) {
        if (!style.fileURL)
            continue;
        ++withFile;
        active += isActive(*style.fileURL) ? 1 : 0;
    }
    if (withFile == 0)
        return std::nullopt;
    if (active == 0)
        return FontFamilyActivation::inactive();
    return FontFamilyActivation::active(std::nullopt, active < withFile);
}

} // namespace lorva
