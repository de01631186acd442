// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#pragma once

#include "model/records/FontRecords.h"
#include "model/records/GroupingRecords.h"

#include <span>
#include <vector>

namespace lorva {

/// Whether the names alone, or only Chinese, Japanese and Korean words in them, say the category.
enum class ClassifierPass { full, cjkOnly };

/// `categories` with each family of none added to the one that its name speaks for, if any. Members
/// of every category come out sorted by name as the user's language sorts, ignoring case. Thread:
/// any.
std::vector<FontStyleCategoryRecord> classify(std::span<const FontFamilyRecord> families,
                                              std::vector<FontStyleCategoryRecord> categories,
                                              ClassifierPass pass);

bool isSansName(const QString &familyName);
bool isMingName(const QString &lowerCasedName);

} // namespace lorva
