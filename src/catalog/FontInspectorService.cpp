// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#include "catalog/FontInspectorService.h"

#include <QCoreApplication>

#include <algorithm>
#include <array>
#include <cmath>

namespace lorva {

namespace {

constexpr qsizetype kLongestAxisName = 32;

struct RegisteredAxis
{
    FontTag tag;
    const char *name;
};
constexpr std::array kRegisteredAxes{
    //: Axes of variable fonts.
    RegisteredAxis{fontTag('i', 't', 'a', 'l'),
                   QT_TRANSLATE_NOOP("FontInspectorService", "Italic")},
    RegisteredAxis{fontTag('o', 'p', 's', 'z'),
                   QT_TRANSLATE_NOOP("FontInspectorService", "Optical Size")},
    RegisteredAxis{fontTag('s', 'l', 'n', 't'), QT_TRANSLATE_NOOP("FontInspectorService", "Slant")},
    RegisteredAxis{fontTag('w', 'g', 'h', 't'),
                   QT_TRANSLATE_NOOP("FontInspectorService", "Weight")},
    RegisteredAxis{fontTag('w', 'd', 't', 'h'), QT_TRANSLATE_NOOP("FontInspectorService", "Width")},
};

struct Texts
{
    Q_DECLARE_TR_FUNCTIONS(FontInspectorService)
};

bool isMovable(const VariationAxis &axis)
{
    return std::isfinite(axis.minValue) && std::isfinite(axis.maxValue)
        && std::isfinite(axis.defaultValue) && axis.minValue < axis.maxValue;
}

/// The last value counts, as in Font; what is no number does not.
void takeValue(double &value, FontTag tag, const std::vector<VariationSetting> &settings)
{
    for (const VariationSetting &setting : settings) {
        if (setting.tag == tag && std::isfinite(setting.value))
            value = setting.value;
    }
}

FontVariationAxisRecord axisRecord(const VariationAxis &axis, const Font &font)
{
    FontVariationAxisRecord record;
    record.id = QString::number(axis.tag);
    record.name = axisName(axis.tag, axis.name);
    record.tag = axis.tag;
    record.minValue = axis.minValue;
    record.maxValue = axis.maxValue;
    record.defaultValue = std::clamp(axis.defaultValue, axis.minValue, axis.maxValue);
    double value = record.defaultValue;
    takeValue(value, axis.tag, font.face()->coordinates());
    takeValue(value, axis.tag, font.variations());
    record.currentValue = std::clamp(value, axis.minValue, axis.maxValue);
    return record;
}

OpenTypeFeatureRecord featureRecord(const FontFeature &feature)
{
    OpenTypeFeatureRecord record;
    record.id =
        QString(QString::number(feature.pair.type) % u':' % QString::number(feature.pair.selector));
    record.name = feature.name.isEmpty() ? feature.typeName : feature.name;
    record.group = feature.typeName;
    record.featureType = feature.pair.type;
    record.featureSelector = feature.pair.selector;
    record.isEnabled = feature.isDefaultOn;
    return record;
}

/// Descriptors hold the beginnings of texts; a copyright notice may be much longer.
QString wholeText(const QString &text, const FaceInformation &information, quint16 nameId)
{
    const QString whole = information.nameOf(nameId);
    return whole.size() > text.size() ? whole : text;
}

} // namespace

QString axisName(FontTag tag, const QString &ownName)
{
    for (const RegisteredAxis &axis : kRegisteredAxes) {
        if (axis.tag == tag)
            return Texts::tr(axis.name);
    }
    return ownName.isEmpty() || ownName.size() > kLongestAxisName ? tagText(tag) : ownName;
}

std::vector<OpenTypeFeatureRecord> FontInspectorService::features(const FontFace &face)
{
    return features(fontFeatures(face));
}

std::vector<OpenTypeFeatureRecord> FontInspectorService::features(
    std::span<const FontFeature> offered)
{
    std::vector<OpenTypeFeatureRecord> records;
    records.reserve(offered.size());
    std::transform(offered.begin(), offered.end(), std::back_inserter(records), featureRecord);
    return records;
}

std::vector<FontVariationAxisRecord> FontInspectorService::axes(const Font &font)
{
    std::vector<FontVariationAxisRecord> records;
    if (font.isNull())
        return records;
    for (const VariationAxis &axis : font.face()->axes()) {
        // A tag that comes twice moves with the first of its kind.
        const bool isKnown =
            std::any_of(records.begin(), records.end(), [&](const FontVariationAxisRecord &record) {
                return record.tag == axis.tag;
            });
        if (!axis.isHidden && !isKnown && isMovable(axis))
            records.push_back(axisRecord(axis, font));
    }
    return records;
}

FontMetadataInfo FontInspectorService::metadata(const FontFace &face)
{
    return metadata(face, readFaceInformation(face));
}

FontMetadataInfo FontInspectorService::metadata(const FontFace &face,
                                                const FaceInformation &information)
{
    constexpr quint16 kCopyright = 0;
    const FaceNames &names = face.names();
    FontMetadataInfo info;
    info.familyName = names.family;
    info.styleName = names.style;
    info.postScriptName = names.postScriptName;
    info.fullName = names.fullName;
    info.designer = names.designer;
    info.manufacturer = names.manufacturer;
    info.version = names.version;
    info.copyright = wholeText(names.copyright, information, kCopyright);
    info.glyphCount = face.glyphCount();
    info.fileLocation = face.path().displayText();
    info.format = formatText(face.formatNumber());
    return info;
}

QString FontInspectorService::formatText(int formatNumber)
{
    switch (formatNumber) {
    case 1:
        return Texts::tr("TrueType");
    case 2:
        return Texts::tr("PostScript");
    case 3:
        return Texts::tr("OpenType (CFF)");
    case 4:
        return Texts::tr("OpenType (TrueType)");
    default:
        return Texts::tr("Unknown");
    }
}

std::vector<FeaturePair> enabledPairs(const std::vector<OpenTypeFeatureRecord> &features)
{
    std::vector<FeaturePair> pairs;
    for (const OpenTypeFeatureRecord &feature : features) {
        if (feature.isEnabled)
            pairs.push_back({int(feature.featureType), int(feature.featureSelector)});
    }
    return pairs;
}

} // namespace lorva
