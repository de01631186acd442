// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#pragma once

#include "model/records/GroupingRecords.h"

#include <vector>

namespace lorva {

/// The six style categories that every library has, empty, in the order in which they are shown:
/// "serif", "sans", "display", "mono", "script", "decorative".
std::vector<FontStyleCategoryRecord> defaultStyleCategories();
/// One of the six: it can be filled, but neither renamed nor deleted.
bool isDefaultStyleCategory(const QString &id);

/// Sorts names as the user's language does, ignoring case; equal ones by their characters. Costs
/// little where they are sorted already. Thread: any.
void sortFamilyNames(QStringList &names);
/// Whether sortFamilyNames() would leave them as they are. Thread: any.
bool areFamilyNamesSorted(const QStringList &names);
/// Puts `names` into `sorted`, which sortFamilyNames() has sorted: each to its place. A list that
/// is not sorted is sorted as a whole. Thread: any.
void insertFamilyNames(QStringList &sorted, const QStringList &names);

} // namespace lorva
