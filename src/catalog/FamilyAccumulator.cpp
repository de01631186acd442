// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#include "catalog/FamilyAccumulator.h"

namespace lorva {

void FamilyAccumulator::add(const FontStyleRecord &style)
{
    const qsizetype before = seen.size();
    seen.insert(style.id);
    if (seen.size() != before)
        styles.push_back(style);
}

void FamilyGrouping::add(std::span<const ParsedEntry> entries)
{
    for (const ParsedEntry &entry : entries) {
        qsizetype &index = m_indexOfFamily[entry.familyName];
        if (index == 0) {
            m_families.emplace_back(entry.familyName, FamilyAccumulator());
            index = qsizetype(m_families.size());
        }
        m_families[size_t(index - 1)].second.add(entry.style);
    }
}

std::vector<FontFamilyRecord> FamilyGrouping::take(const Identities &identities)
{
    std::vector<FontFamilyRecord> records;
    records.reserve(m_families.size());
    for (auto &[name, accumulator] : m_families) {
        FontFamilyRecord &record = records.emplace_back();
        record.familyName = name;
        record.styles = std::move(accumulator.styles);
        const auto identity = identities.constFind(name);
        if (identity == identities.cend())
            continue;
        record.scripts = identity->scripts;
        record.primaryScript = identity->primary;
        record.alternateNames = identity->alternates;
    }
    m_families.clear();
    m_indexOfFamily.clear();
    return records;
}

} // namespace lorva
