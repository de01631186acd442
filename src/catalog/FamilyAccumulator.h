// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#pragma once

#include "catalog/CatalogTypes.h"

#include <span>

namespace lorva {

/// One family while its faces are gathered.
struct FamilyAccumulator
{
    /// Ids of the styles already taken.
    QSet<QString> seen;
    /// In the order taken.
    std::vector<FontStyleRecord> styles;

    /// Takes the style unless one of its id was taken before: the first face met wins.
    void add(const FontStyleRecord &style);
};

/// Gathers the faces of files, told in file order, into families.
class FamilyGrouping
{
public:
    void add(std::span<const ParsedEntry> entries);

    using Identities = QHash<QString, FamilyScriptIdentity>;
    /// The families in the order of first appearance; leaves the grouping empty.
    std::vector<FontFamilyRecord> take(const Identities &identities);

private:
    QHash<QString, qsizetype> m_indexOfFamily;
    std::vector<std::pair<QString, FamilyAccumulator>> m_families;
};

} // namespace lorva
