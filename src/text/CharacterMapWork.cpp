// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#include "text/CharacterMapWork.h"

#include "text/FontLimits.h"
#include "text/HeldTable.h"

#include <hb.h>

#include <algorithm>
#include <memory>

namespace lorva {

namespace {

quint64 extent(quint64 first, quint64 last)
{
    constexpr quint64 kLastScalar = 0x10FFFF;
    const quint64 end = std::min(last, kLastScalar);
    return first <= end ? end - first + 1 : 1;
}

/// Format 4: "segment mapping to delta values".
quint64 segmentWork(const TableView &subtable)
{
    const quint64 doubled = subtable.u16(6) & ~1U;
    quint64 work = 0;
    for (quint64 at = 0; at < doubled && subtable.has(14 + at, 2); at += 2)
        work += extent(subtable.u16(16 + doubled + at), subtable.u16(14 + at));
    return work;
}

/// Formats 12 and 13: groups of 32-bit characters.
quint64 groupWork(const TableView &subtable)
{
    const quint64 count = subtable.u32(12);
    quint64 work = 0;
    for (quint64 i = 0; i < count && subtable.has(16 + 12 * i, 12); ++i)
        work += extent(subtable.u32(16 + 12 * i), subtable.u32(20 + 12 * i));
    return work;
}

quint64 subtableWork(const TableView &subtable)
{
    switch (subtable.u16(0)) {
    case 4:
        return segmentWork(subtable);
    case 12:
    case 13:
        return groupWork(subtable);
    default:
        // Each entry of the other formats takes bytes of its own.
        return 0;
    }
}

} // namespace

bool isCharacterMapWorkable(hb_face_t *face)
{
    const HeldTable held(face, fontTag('c', 'm', 'a', 'p'));
    const TableView &cmap = held.view();
    if (cmap.size() > kMaxCharacterMapBytes)
        return false;
    const int count = std::min<int>(cmap.u16(2), kMaxCharacterMaps);
    for (int i = 0; i < count; ++i)
        if (subtableWork(cmap.from(cmap.u32(8 + 8 * quint64(i)))) > kMaxCharacterMapWork)
            return false;
    return true;
}

} // namespace lorva
