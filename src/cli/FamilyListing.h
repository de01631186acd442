// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#pragma once

#include "catalog/CatalogTypes.h"

namespace lorva::cli {

/// The fonts of this machine and those below `folders`, for a command that leaves no trace.
FontCatalogResult scanLibrary(const std::vector<FilePath> &folders);

/// As a reader looks names up; names that only differ in case keep one order by their characters.
void sortByName(std::vector<FontFamilyRecord> &families);
/// One line each: the name, a tab, the styles.
void printFamilies(const std::vector<FontFamilyRecord> &families);

} // namespace lorva::cli
