// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#include "catalog/LanguageCoverage.h"

#include <algorithm>

namespace lorva {

namespace {

/// What is missing, up to one more than kMostMissing: it does not matter how much more.
std::vector<char32_t> missingOf(const std::vector<char32_t> &wanted,
                                std::span<const CharacterRange> present)
{
    std::vector<char32_t> missing;
    auto range = present.begin();
    for (const char32_t character : wanted) {
        while (range != present.end() && range->last < character)
            ++range;
        if (range != present.end() && range->first <= character)
            continue;
        missing.push_back(character);
        if (missing.size() > kMostMissing)
            break;
    }
    return missing;
}

bool isNearlySupported(const std::vector<char32_t> &missing, size_t characters)
{
    return missing.size() <= kMostMissing && missing.size() * 10 <= characters;
}

} // namespace

std::vector<LanguageCoverage> languageCoverage(const std::vector<Orthography> &orthographies,
                                               const CharacterSet &characters)
{
    std::vector<LanguageCoverage> covered;
    for (const Orthography &orthography : orthographies) {
        const size_t count = orthography.characters.size();
        auto missing = missingOf(orthography.characters, characters.ranges());
        if (count > 0 && isNearlySupported(missing, count))
            covered.push_back({orthography.language, int(count), std::move(missing)});
    }
    std::stable_partition(covered.begin(), covered.end(),
                          [](const LanguageCoverage &each) { return each.missing.empty(); });
    return covered;
}

} // namespace lorva
