// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#include "text/FaceTables.h"

#include "text/FontLimits.h"
#include "text/TableView.h"

#include <algorithm>
#include <array>
#include <cmath>

namespace lorva {

namespace {

constexpr FontTag kWeightAxis = fontTag('w', 'g', 'h', 't');
constexpr FontTag kSlantAxis = fontTag('s', 'l', 'n', 't');
constexpr FontTag kItalicAxis = fontTag('i', 't', 'a', 'l');
/// The slant of one unit of the slant trait.
constexpr double kDegreesPerSlant = 30;

/// The first bytes of a table without an allocation; short or missing tables leave zeros.
template <size_t N>
class TableStart
{
public:
    TableStart(const OpenedFile &file, const SfntDirectory &directory, FontTag tag)
    {
        const TableEntry *entry = directory.find(tag);
        const quint64 length = entry ? std::min<quint64>(entry->length, N) : 0;
        if (length > 0 && file.read(entry->offset, m_bytes.data(), length))
            m_length = length;
    }
    TableView view() const
    {
        return TableView(QByteArrayView(m_bytes.data(), qsizetype(m_length)));
    }

private:
    std::array<char, N> m_bytes;
    quint64 m_length = 0;
};

double slantFromAngle(double degrees)
{
    // Adding 0 turns −0 into 0, which every reader of a cache prints alike.
    return std::clamp(-degrees / kDegreesPerSlant, -1.0, 1.0) + 0.0;
}

FvarAxis readAxis(const TableView &fvar, quint64 at)
{
    FvarAxis axis{fvar.u32(at),        fvar.fixed(at + 4),           fvar.fixed(at + 8),
                  fvar.fixed(at + 12), (fvar.u16(at + 16) & 1) != 0, fvar.u16(at + 18)};
    // Damaged order is mended as shapers do it, so that controls and drawing agree.
    axis.minValue = std::min(axis.minValue, axis.defaultValue);
    axis.maxValue = std::max(axis.maxValue, axis.defaultValue);
    return axis;
}

FvarInstance readInstance(const TableView &fvar, quint64 at, quint64 size, const FvarTable &table)
{
    FvarInstance instance;
    instance.nameId = fvar.u16(at);
    quint64 value = at + 4;
    for (const FvarAxis &axis : table.axes) {
        instance.coordinates.push_back(std::clamp(fvar.fixed(value), axis.minValue, axis.maxValue));
        value += 4;
    }
    if (size >= value - at + 2)
        instance.postScriptNameId = fvar.u16(value);
    return instance;
}

} // namespace

double weightTraitFromClass(double weightClass)
{
    struct Point
    {
        double weight;
        double trait;
    };
    static constexpr Point kPoints[] = {{100, -0.8}, {200, -0.6}, {300, -0.4},
                                        {400, 0},    {500, 0.23}, {600, 0.3},
                                        {700, 0.4},  {800, 0.56}, {900, 0.8}};
    const bool isOldScale = weightClass >= 1 && weightClass <= 9;
    const double weight = std::clamp(isOldScale ? weightClass * 100 : weightClass, 1.0, 1000.0);
    const Point *upper = std::begin(kPoints) + 1;
    while (upper + 1 != std::end(kPoints) && upper->weight < weight)
        ++upper;
    const Point *lower = upper - 1;
    const double share = (weight - lower->weight) / (upper->weight - lower->weight);
    return std::clamp(lower->trait + share * (upper->trait - lower->trait), -1.0, 1.0);
}

bool FvarTable::isDefault(const FvarInstance &instance) const
{
    return std::equal(
        axes.begin(), axes.end(), instance.coordinates.begin(), instance.coordinates.end(),
        [](const FvarAxis &axis, double value) { return axis.defaultValue == value; });
}

std::optional<double> FvarTable::coordinate(std::span<const double> coordinates, FontTag tag) const
{
    for (size_t i = 0; i < axes.size() && i < coordinates.size(); ++i)
        if (axes[i].tag == tag)
            return coordinates[i];
    return std::nullopt;
}

std::vector<VariationSetting> FvarTable::settings(std::span<const double> coordinates) const
{
    std::vector<VariationSetting> settings;
    for (size_t i = 0; i < axes.size() && i < coordinates.size(); ++i)
        settings.push_back({axes[i].tag, coordinates[i]});
    return settings;
}

std::vector<double> FvarTable::defaultCoordinates() const
{
    std::vector<double> values;
    for (const FvarAxis &axis : axes)
        values.push_back(axis.defaultValue);
    return values;
}

FvarTable readFvar(const OpenedFile &file, const SfntDirectory &directory)
{
    const QByteArray bytes = readTable(file, directory, fontTag('f', 'v', 'a', 'r'), kMaxFvarBytes);
    const TableView fvar(bytes);
    const quint64 axesAt = fvar.u16(4);
    const int axisCount = fvar.u16(8);
    const quint64 axisSize = fvar.u16(10);
    const int instanceCount = std::min<int>(fvar.u16(12), kMaxNamedInstances);
    const quint64 instanceSize = fvar.u16(14);
    FvarTable table;
    if (fvar.u16(0) != 1 || axisSize < 20 || axisCount == 0 || axisCount > kMaxVariationAxes
        || !fvar.has(axesAt, axisSize * quint64(axisCount)))
        return table;
    for (int i = 0; i < axisCount; ++i)
        table.axes.push_back(readAxis(fvar, axesAt + axisSize * quint64(i)));
    if (instanceSize < 4 + 4 * quint64(axisCount))
        return table;
    quint64 at = axesAt + axisSize * quint64(axisCount);
    for (int i = 0; i < instanceCount && fvar.has(at, instanceSize); ++i, at += instanceSize)
        table.instances.push_back(readInstance(fvar, at, instanceSize, table));
    return table;
}

FaceTraits readTraits(const OpenedFile &file, const SfntDirectory &directory)
{
    const TableStart<64> os2Start(file, directory, fontTag('O', 'S', '/', '2'));
    const TableStart<54> headStart(file, directory, fontTag('h', 'e', 'a', 'd'));
    const TableStart<8> postStart(file, directory, fontTag('p', 'o', 's', 't'));
    const TableView os2 = os2Start.view();
    const quint16 macStyle = headStart.view().u16(44);
    constexpr quint16 kItalicOrOblique = (1 << 0) | (1 << 9);
    FaceTraits traits;
    const double styleWeight = (macStyle & 1) ? 700 : 400;
    traits.weight = weightTraitFromClass(os2.has(4, 2) ? os2.u16(4) : styleWeight);
    traits.slant = slantFromAngle(postStart.view().fixed(4));
    traits.isItalic = (os2.u16(62) & kItalicOrOblique) != 0 || (macStyle & 2) != 0;
    return traits;
}

FaceTraits traitsOfInstance(FaceTraits traits, const FvarTable &fvar,
                            std::span<const double> coordinates)
{
    // On an axis weights are what they say; the old scale of 1 to 9 is only known from OS/2.
    constexpr double kLightestAxisWeight = 10;
    if (const auto weight = fvar.coordinate(coordinates, kWeightAxis))
        traits.weight = weightTraitFromClass(std::max(*weight, kLightestAxisWeight));
    const auto italic = fvar.coordinate(coordinates, kItalicAxis);
    if (italic) {
        traits.isItalic = *italic >= 0.5;
        if (!traits.isItalic)
            traits.slant = 0;
    }
    if (const auto slant = fvar.coordinate(coordinates, kSlantAxis))
        traits.slant = slantFromAngle(*slant);
    return traits;
}

int readGlyphCount(const OpenedFile &file, const SfntDirectory &directory)
{
    return TableStart<6>(file, directory, fontTag('m', 'a', 'x', 'p')).view().u16(4);
}

} // namespace lorva
