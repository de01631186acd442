// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#pragma once

#include "text/Font.h"

#include <QStringList>

#include <map>

namespace lorva::test {

/// Every character that the face maps, rising.
std::vector<char32_t> mappedCharacters(const Font &font);

/// For each of the scripts that the face has most letters of, a line of letters and marks spread
/// over all that it has; by direction, true for right to left.
std::map<bool, QStringList> scriptSamples(const Font &font, size_t scriptsPerDirection);

} // namespace lorva::test
