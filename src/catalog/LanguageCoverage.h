// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#pragma once

#include "platform/OrthographyBook.h"
#include "text/CharacterSet.h"

namespace lorva {

/// A language, and what a face lacks of the characters that it is written with.
struct LanguageCoverage
{
    /// BCP 47.
    QByteArray language;
    /// How many it is written with.
    int characters = 0;
    /// How many of them the face lacks,
    int missingCount = 0;
    /// and the lowest of those, at most kMostMissingListed.
    std::vector<char32_t> missing;
    bool operator==(const LanguageCoverage &) const = default;
};

inline constexpr int kMostMissingListed = 100;

/// The languages that a face with these characters supports whole, then those that it nearly does:
/// at most a tenth of whose characters, and at most 20 of them, are missing. Thread: any; some
/// milliseconds for large faces.
std::vector<LanguageCoverage> languageCoverage(const std::vector<Orthography> &orthographies,
                                               const CharacterSet &characters);

} // namespace lorva
