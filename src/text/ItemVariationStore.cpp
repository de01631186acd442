// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#include "text/ItemVariationStore.h"

#include "text/FontLimits.h"

#include <algorithm>

namespace lorva {

namespace {

constexpr quint64 kAxisRegionSize = 6;

/// One axis of a region, by the rules of OpenType "Algorithm for Interpolation of Instance Values".
float axisScalar(const TableView &axis, int coordinate)
{
    const int start = axis.i16(0);
    const int peak = axis.i16(2);
    const int end = axis.i16(4);
    if (start > peak || peak > end || (start < 0 && end > 0) || peak == 0 || coordinate == peak)
        return 1;
    if (coordinate <= start || coordinate >= end)
        return 0;
    return coordinate < peak ? float(coordinate - start) / float(peak - start)
                             : float(end - coordinate) / float(end - peak);
}

/// One row of OpenType "ItemVariationData": some wide deltas, then narrow ones.
struct DeltaRow
{
    TableView table;
    quint64 at = 0;
    int wideCount = 0;
    int wideSize = 2;

    int narrowSize() const { return wideSize / 2; }
    quint64 size(int count) const
    {
        return quint64(wideCount) * quint64(wideSize)
            + quint64(count - wideCount) * quint64(narrowSize());
    }
    double delta(int column) const
    {
        const bool isWide = column < wideCount;
        const quint64 where = at + size(std::max(column, wideCount))
            - (isWide ? quint64(wideCount - column) * quint64(wideSize) : 0);
        switch (isWide ? wideSize : narrowSize()) {
        case 4:
            return qint32(table.u32(where));
        case 2:
            return table.i16(where);
        default:
            return qint8(table.u16(where - 1) & 0xFF);
        }
    }
};

} // namespace

ItemVariationStore::ItemVariationStore(TableView table)
{
    const quint32 regionsAt = table.u32(2);
    const TableView regions = table.from(regionsAt);
    const quint64 axisCount = regions.u16(0);
    const quint64 regionCount = std::min<quint64>(regions.u16(2), kMaxVariationRegions);
    if (table.u16(0) != 1 || regionsAt == 0 || axisCount > kMaxVariationAxes
        || !regions.has(4, regionCount * axisCount * kAxisRegionSize))
        return;
    m_table = table;
    m_regions = regions.from(4);
    m_axisCount = quint16(axisCount);
    m_regionCount = quint16(regionCount);
    m_dataCount = table.u16(6);
}

std::vector<float> ItemVariationStore::regionScalars(std::span<const int> normalizedF2Dot14) const
{
    std::vector<float> scalars(m_regionCount, 1.0F);
    quint64 at = 0;
    for (float &scalar : scalars) {
        for (size_t axis = 0; axis < m_axisCount; ++axis, at += kAxisRegionSize)
            scalar *= axisScalar(m_regions.from(at),
                                 axis < normalizedF2Dot14.size() ? normalizedF2Dot14[axis] : 0);
    }
    return scalars;
}

/// Empty when there is none.
TableView ItemVariationStore::dataOf(quint16 outer) const
{
    const quint32 at = outer < m_dataCount ? m_table.u32(8 + 4 * quint64(outer)) : 0;
    return at == 0 ? TableView() : m_table.from(at);
}

int ItemVariationStore::columnCount(quint16 outer) const
{
    return std::min<int>(dataOf(outer).u16(4), kMaxVariationRegions);
}

double ItemVariationStore::delta(DeltaSetIndex index, std::span<const float> regionScalars) const
{
    constexpr quint16 kLongWords = 0x8000;
    const TableView data = dataOf(index.outer);
    const int columns = std::min<int>(data.u16(4), kMaxVariationRegions);
    const quint16 wide = data.u16(2);
    DeltaRow row{data, 0, wide & ~kLongWords, (wide & kLongWords) != 0 ? 4 : 2};
    if (index.inner >= data.u16(0) || row.wideCount > data.u16(4)
        || data.u16(4) > kMaxVariationRegions)
        return 0;
    row.at = 6 + 2 * quint64(columns) + row.size(columns) * index.inner;
    if (!data.has(row.at, row.size(columns)))
        return 0;
    double sum = 0;
    for (int column = 0; column < columns; ++column) {
        const quint16 region = data.u16(6 + 2 * quint64(column));
        if (region < regionScalars.size() && regionScalars[region] != 0)
            sum += double(regionScalars[region]) * row.delta(column);
    }
    return sum;
}

double ItemVariationStore::delta(quint16 outer, quint16 inner,
                                 std::span<const int> normalizedF2Dot14) const
{
    return delta({outer, inner}, regionScalars(normalizedF2Dot14));
}

DeltaSetIndexMap::DeltaSetIndexMap(TableView table)
{
    const quint16 start = table.u16(0);
    const int format = start >> 8;
    if (format > 1)
        return;
    m_entries = table.from(format == 0 ? 4 : 6);
    m_count = format == 0 ? table.u16(2) : table.u32(2);
    m_entrySize = ((start >> 4) & 3) + 1;
    m_innerBits = (start & 0xF) + 1;
    if (!m_entries.has(0, quint64(m_count) * quint64(m_entrySize)))
        m_count = 0;
}

DeltaSetIndex DeltaSetIndexMap::map(quint32 index) const
{
    if (m_count == 0)
        return {quint16(index >> 16), quint16(index & 0xFFFF)};
    quint64 entry = 0;
    const QByteArrayView bytes = m_entries.bytes(
        quint64(std::min(index, m_count - 1)) * quint64(m_entrySize), quint64(m_entrySize));
    for (const char byte : bytes)
        entry = (entry << 8) | quint8(byte);
    return {quint16(entry >> m_innerBits), quint16(entry & ((quint64(1) << m_innerBits) - 1))};
}

} // namespace lorva
