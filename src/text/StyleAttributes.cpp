// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#include "text/StyleAttributes.h"

#include "text/FontLimits.h"

#include <algorithm>

namespace lorva {

namespace {

/// OpenType "STAT Header".
struct StyleAttributes
{
    TableView table;
    quint64 axisSize;
    quint64 axisCount;
    TableView axes;
    quint64 valueCount;
    TableView values;

    explicit StyleAttributes(const TableView &stat)
        : table(stat)
        , axisSize(stat.u16(4))
        , axisCount(axisSize >= 8 ? stat.u16(6) : 0)
        , axes(part(stat, stat.u32(8)))
        , valueCount(stat.u16(0) == 1 ? stat.u16(12) : 0)
        , values(part(stat, stat.u32(14)))
    {
    }
    static TableView part(const TableView &stat, quint32 at)
    {
        return at != 0 ? stat.from(at) : TableView();
    }
};

void limitRange(NamedAxisValue &value, std::span<const VariationAxis> axes)
{
    const auto axis = std::find_if(axes.begin(), axes.end(), [&value](const VariationAxis &each) {
        return each.tag == value.axis;
    });
    if (axis == axes.end() || !value.rangeMinimum || !value.rangeMaximum)
        return;
    value.rangeMinimum = std::max(*value.rangeMinimum, axis->minValue);
    value.rangeMaximum = std::min(*value.rangeMaximum, axis->maxValue);
}

std::optional<NamedAxisValue> readAxisValue(const StyleAttributes &stat, const TableView &record,
                                            const NameTable &names)
{
    constexpr quint16 kElidable = 2;
    const quint16 format = record.u16(0);
    const quint64 axisAt = stat.axisSize * record.u16(2);
    const quint64 size = format == 2 ? 20 : format == 3 ? 16 : 12;
    if (format < 1 || format > 3 || record.u16(2) >= stat.axisCount
        || !stat.axes.has(axisAt, stat.axisSize) || !record.has(0, size))
        return std::nullopt;
    NamedAxisValue value;
    value.axis = stat.axes.u32(axisAt);
    value.isElidable = (record.u16(4) & kElidable) != 0;
    value.name = names.text(record.u16(6), kMaxNameBytes);
    value.value = record.fixed(8);
    if (format == 2) {
        value.rangeMinimum = record.fixed(12);
        value.rangeMaximum = record.fixed(16);
    } else if (format == 3) {
        value.linkedValue = record.fixed(12);
    }
    return value;
}

} // namespace

std::vector<NamedAxisValue> listAxisValues(const TableView &stat, const NameTable &names,
                                           std::span<const VariationAxis> axes)
{
    const StyleAttributes attributes(stat);
    const quint64 count = std::min<quint64>(attributes.valueCount, kMaxNamedAxisValues);
    std::vector<NamedAxisValue> values;
    for (quint64 i = 0; i < count && attributes.values.has(2 * i, 2); ++i) {
        auto value =
            readAxisValue(attributes, attributes.values.from(attributes.values.u16(2 * i)), names);
        if (!value)
            continue;
        limitRange(*value, axes);
        values.push_back(*std::move(value));
    }
    return values;
}

} // namespace lorva
