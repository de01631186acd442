// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#pragma once

#include "text/color/ColrVariations.h"

#include <QTransform>

#include <algorithm>

namespace lorva {

/// The fields of one paint of OpenType `COLR`, varied.
///
/// Borrows the table's bytes and its variations. Fields are counted in bytes from the record's
/// start, and `index` counts those of them that vary.
class ColrRecord
{
public:
    ColrRecord(TableView table, quint64 at, ColrVariations &variations, bool varies,
               quint64 variationField)
        : m_table(table)
        , m_at(at)
        , m_variations(variations)
        , m_base(varies ? table.u32(at + variationField) : ColrVariations::kNone)
    {
    }

    quint64 at() const { return m_at; }
    bool varies() const { return m_base != ColrVariations::kNone; }
    quint16 u16(quint64 field) const { return m_table.u16(m_at + field); }
    double word(quint64 field, quint32 index) const
    {
        return m_table.i16(m_at + field) + delta(index);
    }
    double unsignedWord(quint64 field, quint32 index) const
    {
        return std::max(0.0, m_table.u16(m_at + field) + delta(index));
    }
    double f2dot14(quint64 field, quint32 index) const { return word(field, index) / 16384; }
    double fixed(quint64 field, quint32 index) const
    {
        return m_table.fixed(m_at + field) + delta(index) / 65536;
    }

private:
    double delta(quint32 index) const
    {
        const quint64 sum = quint64(m_base) + index;
        return varies() && sum < ColrVariations::kNone ? m_variations.delta(quint32(sum)) : 0;
    }

    const TableView m_table;
    const quint64 m_at;
    ColrVariations &m_variations;
    const quint32 m_base;
};

/// What a paint of formats 14 to 31 does to its child: in font units, y up.
QTransform colrTransform(quint8 format, const ColrRecord &record);
/// OpenType `COLR` "Affine2x3".
QTransform colrAffine(const ColrRecord &record);
/// False for numbers that no type needs and that would overflow further on.
bool isUsable(const QTransform &transform);

} // namespace lorva
