// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#include "cli/FaceReport.h"

#include "base/JsonWriter.h"
#include "catalog/FaceReading.h"
#include "catalog/StyleWeight.h"
#include "cli/FaceReportNames.h"
#include "model/records/RecordsJson.h"

namespace lorva::cli {

namespace {

template <class List, class Write>
void writeList(JsonWriter &out, std::string_view key, const List &list, const Write &write)
{
    out.key(key);
    out.beginArray();
    for (const auto &each : list)
        write(out, each);
    out.endArray();
}

void writeText(JsonWriter &out, std::string_view key, QStringView text)
{
    out.key(key);
    out.string(text);
}

void writeNumber(JsonWriter &out, std::string_view key, double number)
{
    out.key(key);
    out.number(number);
}

void writeInteger(JsonWriter &out, std::string_view key, qint64 number)
{
    out.key(key);
    out.integer(number);
}

void writeFlag(JsonWriter &out, std::string_view key, bool flag)
{
    out.key(key);
    out.boolean(flag);
}

void writeOptional(JsonWriter &out, std::string_view key, const std::optional<double> &number)
{
    if (number)
        writeNumber(out, key, *number);
}

void writeFamily(JsonWriter &out, const FamilyIdentification &family)
{
    out.beginObject();
    writeText(out, "familyName", family.familyName);
    writeText(out, "manufacturer", family.manufacturer);
    out.key("scripts");
    writeJson(out, family.identity.scripts);
    if (family.identity.primary) {
        out.key("primaryScript");
        writeJson(out, *family.identity.primary);
    }
    if (family.identity.alternates) {
        out.key("alternateNames");
        writeJson(out, *family.identity.alternates);
    }
    out.endObject();
}

void writeTraits(JsonWriter &out, const FontFace &face)
{
    const QString label = styleLabel(face.names().style);
    const FaceTraits traits = face.traits();
    writeInteger(out, "weight", styleWeight(label, traits));
    writeFlag(out, "isItalic", isItalicStyle(label, traits));
    writeNumber(out, "weightTrait", traits.weight);
    writeNumber(out, "slantTrait", traits.slant);
    writeFlag(out, "italicBit", traits.isItalic);
}

void writeAxis(JsonWriter &out, const VariationAxis &axis)
{
    out.beginObject();
    writeText(out, "tag", tagText(axis.tag));
    writeText(out, "name", axis.name);
    writeNumber(out, "minValue", axis.minValue);
    writeNumber(out, "defaultValue", axis.defaultValue);
    writeNumber(out, "maxValue", axis.maxValue);
    writeFlag(out, "isHidden", axis.isHidden);
    out.endObject();
}

void writeAxisValue(JsonWriter &out, const NamedAxisValue &value)
{
    out.beginObject();
    writeText(out, "tag", tagText(value.axis));
    writeText(out, "name", value.name);
    writeNumber(out, "value", value.value);
    writeOptional(out, "rangeMinValue", value.rangeMinimum);
    writeOptional(out, "rangeMaxValue", value.rangeMaximum);
    writeOptional(out, "linkedValue", value.linkedValue);
    writeFlag(out, "isElidable", value.isElidable);
    out.endObject();
}

void writeSetting(JsonWriter &out, const VariationSetting &setting)
{
    out.beginObject();
    writeText(out, "tag", tagText(setting.tag));
    writeNumber(out, "value", setting.value);
    out.endObject();
}

void writeInstance(JsonWriter &out, const NamedInstance &instance)
{
    out.beginObject();
    writeText(out, "name", instance.name);
    writeText(out, "postScriptName", instance.postScriptName);
    writeList(out, "coordinates", instance.coordinates, writeSetting);
    out.endObject();
}

void writeName(JsonWriter &out, const LocalizedName &name)
{
    out.beginObject();
    writeInteger(out, "nameId", name.nameId);
    writeText(out, "kind", nameIdText(name.nameId));
    out.key("language");
    out.utf8(name.language);
    writeText(out, "text", name.text);
    out.endObject();
}

void writeVertical(JsonWriter &out, std::string_view key,
                   const std::optional<VerticalMetricsSet> &metrics)
{
    if (!metrics)
        return;
    out.key(key);
    out.beginObject();
    writeNumber(out, "ascender", metrics->ascender);
    writeNumber(out, "descender", metrics->descender);
    writeNumber(out, "lineGap", metrics->lineGap);
    out.endObject();
}

void writeStroke(JsonWriter &out, std::string_view key, const std::optional<StrokeMetrics> &stroke)
{
    if (!stroke)
        return;
    out.key(key);
    out.beginObject();
    writeNumber(out, "position", stroke->position);
    writeNumber(out, "thickness", stroke->thickness);
    out.endObject();
}

void writeScriptMetrics(JsonWriter &out, std::string_view key,
                        const std::optional<ScriptMetrics> &metrics)
{
    if (!metrics)
        return;
    out.key(key);
    out.beginObject();
    writeNumber(out, "xSize", metrics->xSize);
    writeNumber(out, "ySize", metrics->ySize);
    writeNumber(out, "xOffset", metrics->xOffset);
    writeNumber(out, "yOffset", metrics->yOffset);
    out.endObject();
}

void writeMetrics(JsonWriter &out, const FontFace &face, const FaceInformation &information)
{
    out.key("metrics");
    out.beginObject();
    const FaceMetrics &metrics = face.metrics();
    writeNumber(out, "ascender", metrics.ascender);
    writeNumber(out, "descender", metrics.descender);
    writeNumber(out, "lineGap", metrics.lineGap);
    writeNumber(out, "capHeight", metrics.capHeight);
    writeNumber(out, "xHeight", metrics.xHeight);
    writeVertical(out, "typographic", information.typoMetrics);
    writeFlag(out, "usesTypographic", information.usesTypoMetrics);
    writeVertical(out, "windows", information.windowsMetrics);
    writeVertical(out, "horizontalHeader", information.horizontalMetrics);
    writeOptional(out, "maximumAdvance", information.maximumAdvance);
    writeOptional(out, "averageCharacterWidth", information.averageCharacterWidth);
    writeList(out, "bounds", information.bounds,
              [](JsonWriter &to, int edge) { to.integer(edge); });
    writeStroke(out, "underline", information.underline);
    writeStroke(out, "strikeout", information.strikeout);
    writeScriptMetrics(out, "subscript", information.subscript);
    writeScriptMetrics(out, "superscript", information.superscript);
    out.endObject();
}

void writeEmbedding(JsonWriter &out, const std::optional<EmbeddingRights> &rights)
{
    if (!rights)
        return;
    out.key("embedding");
    out.beginObject();
    writeText(out, "text", embeddingText(*rights));
    writeInteger(out, "fsType", rights->fsType);
    writeFlag(out, "allowsSubsetting", rights->allowsSubsetting);
    writeFlag(out, "allowsBitmapsOnly", rights->allowsBitmapsOnly);
    out.endObject();
}

void writeDate(JsonWriter &out, std::string_view key, const std::optional<QDateTime> &date)
{
    if (date)
        writeText(out, key, date->toString(Qt::ISODate));
}

void writeInformation(JsonWriter &out, const FaceInformation &information)
{
    writeNumber(out, "revision", information.fontRevision);
    writeDate(out, "created", information.created);
    writeDate(out, "modified", information.modified);
    writeOptional(out, "weightClass", information.weightClass);
    writeOptional(out, "widthClass", information.widthClass);
    writeText(out, "vendorId", information.vendorId);
    if (information.panose)
        writeList(out, "panose", *information.panose,
                  [](JsonWriter &to, quint8 digit) { to.integer(digit); });
    writeNumber(out, "italicAngle", information.italicAngleDegrees);
    writeFlag(out, "isMonospaced", information.isMonospaced);
    writeInteger(out, "lowestReadablePixels", information.lowestReadablePixels);
    writeEmbedding(out, information.embedding);
}

void writeRange(JsonWriter &out, const CharacterRange &range)
{
    out.beginArray();
    out.integer(range.first);
    out.integer(range.last);
    out.endArray();
}

void writeFeature(JsonWriter &out, const FontFeature &feature)
{
    out.beginObject();
    writeText(out, "tag", feature.tag != 0 ? tagText(feature.tag) : QString());
    writeInteger(out, "value", feature.value);
    writeInteger(out, "type", feature.pair.type);
    writeInteger(out, "selector", feature.pair.selector);
    writeText(out, "typeName", feature.typeName);
    writeText(out, "name", feature.name);
    writeFlag(out, "isDefaultOn", feature.isDefaultOn);
    writeFlag(out, "isExclusive", feature.isExclusive);
    out.endObject();
}

void writePalette(JsonWriter &out, const ColorPalette &palette)
{
    out.beginObject();
    writeText(out, "name", palette.name);
    writeFlag(out, "isForLightBackground", palette.isForLightBackground);
    writeFlag(out, "isForDarkBackground", palette.isForDarkBackground);
    writeList(out, "colors", palette.colors,
              [](JsonWriter &to, QRgb color) { to.string(colorText(color)); });
    out.endObject();
}

void writeColors(JsonWriter &out, const FaceDetails &details)
{
    writeList(out, "colorTables", details.colorTables,
              [](JsonWriter &to, FontTag tag) { to.string(tagText(tag)); });
    writeList(out, "palettes", details.palettes.palettes, writePalette);
    writeList(out, "paletteEntryNames", details.palettes.entryNames,
              [](JsonWriter &to, const QString &name) { to.string(name); });
}

void writeLayoutLanguage(JsonWriter &out, const LayoutLanguage &language)
{
    out.beginObject();
    writeText(out, "script", tagText(language.script));
    writeText(out, "language", tagText(language.language));
    out.endObject();
}

void writeTable(JsonWriter &out, const std::pair<FontTag, quint32> &table)
{
    out.beginObject();
    writeText(out, "tag", tagText(table.first));
    writeInteger(out, "length", table.second);
    out.endObject();
}

void writeGlyph(JsonWriter &out, const GlyphLine &glyph)
{
    out.beginObject();
    writeText(out, "name", glyph.name);
    if (glyph.character != 0)
        writeInteger(out, "character", glyph.character);
    out.endObject();
}

void writeFace(JsonWriter &out, const FaceDetails &details)
{
    const FontFace &face = *details.face;
    out.beginObject();
    writeInteger(out, "faceIndex", face.key().faceIndex);
    for (const NamedText &name : kFaceTexts)
        writeText(out, name.key, face.names().*name.member);
    writeTraits(out, face);
    writeInteger(out, "format", face.formatNumber());
    writeText(out, "formatText", formatText(face.formatNumber()));
    writeInteger(out, "glyphCount", face.glyphCount());
    writeInteger(out, "unitsPerEm", face.metrics().unitsPerEm);
    writeList(out, "axes", face.axes(), writeAxis);
    writeList(out, "axisValues", details.information.axisValues, writeAxisValue);
    writeList(out, "instances", face.namedInstances(), writeInstance);
    writeList(out, "names", details.information.names, writeName);
    writeMetrics(out, face, details.information);
    writeInformation(out, details.information);
    writeInteger(out, "characterCount", details.characters.count());
    writeList(out, "characterRanges", details.characters.ranges(), writeRange);
    writeList(out, "features", details.features, writeFeature);
    writeColors(out, details);
    writeList(out, "layoutLanguages", details.information.layoutLanguages, writeLayoutLanguage);
    writeList(out, "tables", details.information.tables, writeTable);
    if (!details.glyphs.empty())
        writeList(out, "glyphs", details.glyphs, writeGlyph);
    out.endObject();
}

} // namespace

QByteArray faceReportJson(const FaceReport &report)
{
    JsonWriter out;
    out.beginObject();
    out.key("fileURL");
    out.utf8(report.path.toUrl());
    writeList(out, "faces", report.faces, writeFace);
    writeList(out, "families", report.families, writeFamily);
    out.endObject();
    return out.take();
}

} // namespace lorva::cli
