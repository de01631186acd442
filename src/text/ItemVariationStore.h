// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#pragma once

#include "text/TableView.h"

#include <span>
#include <vector>

namespace lorva {

/// Where a value's deltas stand in an ItemVariationStore.
struct DeltaSetIndex
{
    quint16 outer = 0xFFFF;
    quint16 inner = 0xFFFF;
    bool operator==(const DeltaSetIndex &) const = default;
};

/// OpenType "Item Variation Store": by how much values move on the axes of a variable face.
///
/// Borrows the table's bytes. Normalised coordinates count in F2DOT14 (16384 is 1), as
/// hb_font_get_var_coords_normalized() gives them; missing ones are 0. Thread: any. Hostile tables:
/// what lies outside the table or beyond kMaxVariationRegions gives no delta.
class ItemVariationStore
{
public:
    ItemVariationStore() = default;
    explicit ItemVariationStore(TableView table);

    /// How strongly each region takes part at these coordinates, 0 … 1: made once and handed to
    /// every delta().
    std::vector<float> regionScalars(std::span<const int> normalizedF2Dot14) const;
    double delta(DeltaSetIndex index, std::span<const float> regionScalars) const;

    /// How many regions a delta() of this set looks at.
    int columnCount(quint16 outer) const;

    double delta(quint16 outer, quint16 inner, std::span<const int> normalizedF2Dot14) const;

private:
    TableView dataOf(quint16 outer) const;

    TableView m_table;
    TableView m_regions;
    quint16 m_axisCount = 0;
    quint16 m_regionCount = 0;
    quint16 m_dataCount = 0;
};

/// OpenType "DeltaSetIndexMap". Borrows the table's bytes. Thread: any.
class DeltaSetIndexMap
{
public:
    DeltaSetIndexMap() = default;
    explicit DeltaSetIndexMap(TableView table);

    /// False without a map: then map() splits the index as it stands.
    bool isEmpty() const { return m_count == 0; }
    /// An index beyond the map's end counts as its last one.
    DeltaSetIndex map(quint32 index) const;

private:
    TableView m_entries;
    quint32 m_count = 0;
    int m_entrySize = 1;
    int m_innerBits = 1;
};

} // namespace lorva
