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
    /// Those that the face lacks, ascending; none where it supports the language.
    std::vector<char32_t> missing;
    bool operator==(const LanguageCoverage &) const = default;
};

/// A face that lacks more of a language does not nearly support it.
inline constexpr size_t kMostMissing = 20;

/// The languages that a face with these characters supports whole, then those that it nearly does:
/// at most a tenth of whose characters, and at most kMostMissing of them, are missing; both in the
/// given order. Thread: any; about a millisecond.
std::vector<LanguageCoverage> languageCoverage(const std::vector<Orthography> &orthographies,
                                               const CharacterSet &characters);

} // namespace lorva
