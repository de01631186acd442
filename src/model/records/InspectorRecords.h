// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QHashFunctions>
#include <QString>

#include <functional>

namespace lorva {

/// What the inspector says about one face.
struct FontMetadataInfo
{
    QString familyName;
    QString styleName;
    QString postScriptName;
    QString fullName;
    QString designer;
    QString manufacturer;
    QString version;
    QString copyright;
    qint64 glyphCount = 0;
    QString fileLocation;
    QString format;

    bool operator==(const FontMetadataInfo &) const = default;
};

/// One layout feature that a face offers.
struct OpenTypeFeatureRecord
{
    QString id;
    QString name;
    /// The heading under which it is listed.
    QString group;
    qint64 featureType = 0;
    qint64 featureSelector = 0;
    bool isEnabled = false;

    bool operator==(const OpenTypeFeatureRecord &) const = default;
    friend size_t qHash(const OpenTypeFeatureRecord &record, size_t seed = 0)
    {
        return qHashMulti(seed, record.id, record.name, record.group, record.featureType,
                          record.featureSelector, record.isEnabled);
    }
};

/// One axis of a variable face. Values are in the axis's own units.
struct FontVariationAxisRecord
{
    QString id;
    QString name;
    /// Four characters, the first in the highest byte: 0x77676874 is "wght".
    quint32 tag = 0;
    double minValue = 0;
    double maxValue = 0;
    double defaultValue = 0;
    double currentValue = 0;

    bool operator==(const FontVariationAxisRecord &) const = default;
    friend size_t qHash(const FontVariationAxisRecord &record, size_t seed = 0)
    {
        return qHashMulti(seed, record.id, record.name, record.tag, record.minValue,
                          record.maxValue, record.defaultValue, record.currentValue);
    }
};

} // namespace lorva

template <>
struct std::hash<lorva::OpenTypeFeatureRecord>
{
    size_t operator()(const lorva::OpenTypeFeatureRecord &record) const noexcept
    {
        return qHash(record);
    }
};

template <>
struct std::hash<lorva::FontVariationAxisRecord>
{
    size_t operator()(const lorva::FontVariationAxisRecord &record) const noexcept
    {
        return qHash(record);
    }
};
