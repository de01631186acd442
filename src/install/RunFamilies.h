// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#pragma once

#include "install/InstallationRuns.h"

namespace lorva {

// What runs over files mean for families. Thread: any.

/// The files of each family; names that occur twice are one family.
using FilesOfFamilies = std::map<QString, std::vector<FilePath>>;
FilesOfFamilies filesByFamily(const std::vector<FontFamilyRecord> &families);

/// Notes the method of the families that an activation has dealt with a file of. One that it did
/// not come to keeps what the books say of it.
void setMethods(const FilesOfFamilies &families, InstallMethod method, InstallationResult &result);

/// Removes the methods of the families that a de-activation has been through, and says in its
/// outcome what they were. One with files left is still active by its method.
void removeMethods(const FilesOfFamilies &families, const ActivationBooks &books,
                   InstallationResult &result);

} // namespace lorva
