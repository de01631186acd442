// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#include "catalog/FontVariants.h"

#include <algorithm>
#include <tuple>

namespace lorva {

std::vector<FontVariant> variantsOf(const FontFamilyRecord &family)
{
    if (family.styles.empty())
        return {};
    FontVariant variant{QStringLiteral("Regular"), family.familyName, family.styles};
    sortStyles(variant.styles);
    return {std::move(variant)};
}

void sortStyles(std::vector<FontStyleRecord> &styles)
{
    std::stable_sort(styles.begin(), styles.end(), [](const auto &a, const auto &b) {
        return std::tie(a.weight, a.isItalic, a.label) < std::tie(b.weight, b.isItalic, b.label);
    });
}

} // namespace lorva
