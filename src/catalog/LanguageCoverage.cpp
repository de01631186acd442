// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#include "catalog/LanguageCoverage.h"

namespace lorva {

std::vector<LanguageCoverage> languageCoverage(const std::vector<Orthography> &,
                                               const CharacterSet &)
{
    return {};
}

} // namespace lorva
