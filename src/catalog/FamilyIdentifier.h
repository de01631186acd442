// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#pragma once

#include "catalog/CatalogTypes.h"

namespace lorva {

/// What one font file tells about one of its families.
struct FamilyIdentification
{
    QString familyName;
    FamilyScriptIdentity identity;
    /// Empty when the file names none.
    QString manufacturer;
};

/// Finds out which writing scripts families serve.
///
/// Thread: any, several calls at once. Failure: a file that cannot be read tells nothing.
class FamilyIdentifier
{
public:
    virtual ~FamilyIdentifier() = default;

    /// One entry for each distinct family of `file`, judged by its first face; `familyName` is the
    /// family that the file was chosen for.
    virtual std::vector<FamilyIdentification> identify(const FilePath &file,
                                                       const QString &familyName) const = 0;
};

} // namespace lorva
