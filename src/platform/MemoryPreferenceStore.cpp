// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#include "platform/MemoryPreferenceStore.h"

namespace lorva {

std::optional<PreferenceValue> MemoryPreferenceStore::value(const QString &key) const
{
    const auto found = m_values.constFind(key);
    return found == m_values.cend() ? std::nullopt : std::optional(*found);
}

void MemoryPreferenceStore::setValue(const QString &key,
                                     const std::optional<PreferenceValue> &value)
{
    if (value)
        m_values.insert(key, *value);
    else
        m_values.remove(key);
}

} // namespace lorva
