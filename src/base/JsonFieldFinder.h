// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#pragma once

#include "base/JsonReader.h"

#include <span>
#include <utility>

namespace lorva {

/// Finds which field an object's key names. Keys mostly come in the order in which they are listed,
/// so the search begins behind the one found before.
class FieldFinder
{
public:
    explicit FieldFinder(std::span<const JsonField> fields)
        : m_fields(fields)
    {
    }

    /// The index of the field, or the number of fields for an unknown key.
    template <class Matches>
    size_t find(Matches &&matches)
    {
        for (size_t step = 0; step < m_fields.size(); ++step) {
            const size_t index = (m_next + step) % m_fields.size();
            if (matches(m_fields[index].name)) {
                m_next = index + 1;
                return index;
            }
        }
        return m_fields.size();
    }

    /// False when the field was seen before.
    bool markSeen(size_t index)
    {
        const quint32 bit = 1U << index;
        return !(std::exchange(m_seen, m_seen | bit) & bit);
    }

    const JsonField *firstMissing() const
    {
        for (size_t index = 0; index < m_fields.size(); ++index) {
            if (m_fields[index].isRequired && !(m_seen & (1U << index)))
                return &m_fields[index];
        }
        return nullptr;
    }

private:
    std::span<const JsonField> m_fields;
    size_t m_next = 0;
    quint32 m_seen = 0;
};

} // namespace lorva
