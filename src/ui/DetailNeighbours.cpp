// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#include "ui/DetailNeighbours.h"

#include <algorithm>

namespace lorva {

std::optional<QString> detailNeighbour(const FontFamilySubset &families, const QString &name,
                                       int step)
{
    const auto found = std::find_if(families.begin(), families.end(), [&name](const auto &family) {
        return family.familyName == name;
    });
    if (found == families.end())
        return std::nullopt;
    const auto wanted = std::distance(families.begin(), found) + step;
    if (wanted < 0 || size_t(wanted) >= families.size())
        return std::nullopt;
    return families[size_t(wanted)].familyName;
}

} // namespace lorva
