// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#include "platform/MemoryPreferenceStore.h"

namespace lorva {

PreferenceStoreStatus MemoryPreferenceStore::status() const
{
    PreferenceStoreStatus status;
    for (const auto &[key, row] : m_rows)
        status.entries.push_back(entryOf(key, row));
    return status;
}

std::optional<PreferenceRow> MemoryPreferenceStore::row(const QString &key) const
{
    const auto found = m_rows.find(key);
    return found == m_rows.end() ? std::nullopt : std::optional(found->second);
}

void MemoryPreferenceStore::setRow(const QString &key, const std::optional<PreferenceRow> &row)
{
    if (row)
        m_rows.insert_or_assign(key, *row);
    else
        m_rows.erase(key);
}

} // namespace lorva
