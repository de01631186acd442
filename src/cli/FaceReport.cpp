// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#include "cli/FaceReport.h"

#include "base/JsonWriter.h"
#include "catalog/FaceReading.h"
#include "catalog/StyleWeight.h"
#include "cli/Console.h"
#include "model/records/RecordsJson.h"

#include <QStringList>

namespace lorva::cli {

namespace {

struct NamedText
{
    const char *title;
    const char *key;
    QString FaceNames::*member;
};

constexpr NamedText kNames[]{
    {"Family", "familyName", &FaceNames::family},
    {"Style", "styleName", &FaceNames::style},
    {"PostScript name", "postScriptName", &FaceNames::postScriptName},
    {"Full name", "fullName", &FaceNames::fullName},
    {"Version", "version", &FaceNames::version},
    {"Manufacturer", "manufacturer", &FaceNames::manufacturer},
    {"Designer", "designer", &FaceNames::designer},
    {"Copyright", "copyright", &FaceNames::copyright},
};

QString formatText(int number)
{
    switch (number) {
    case 1:
        return QStringLiteral("TrueType");
    case 2:
        return QStringLiteral("PostScript");
    case 3:
        return QStringLiteral("OpenType (CFF)");
    case 4:
        return QStringLiteral("OpenType (TrueType)");
    default:
        return QStringLiteral("Unknown");
    }
}

QString settingsText(const std::vector<VariationSetting> &settings)
{
    QStringList parts;
    for (const VariationSetting &each : settings)
        parts.push_back(QString(tagText(each.tag) + u' ' + QString::number(each.value)));
    return parts.join(QStringLiteral(", "));
}

QString line(const QString &title, const QString &value)
{
    return QStringLiteral("  %1 %2\n")
        .arg(QString(title + u':').leftJustified(16), singleLine(value));
}

QString traitsText(const FontFace &face)
{
    const QString label = styleLabel(face.names().style);
    const FaceTraits traits = face.traits();
    QString text =
        line(QStringLiteral("Weight"),
             QStringLiteral("%1 (trait %2)").arg(styleWeight(label, traits)).arg(traits.weight));
    text +=
        line(QStringLiteral("Italic"),
             QStringLiteral("%1 (slant %2)")
                 .arg(isItalicStyle(label, traits) ? QStringLiteral("yes") : QStringLiteral("no"))
                 .arg(traits.slant));
    return text;
}

QString variationText(const FontFace &face)
{
    QString text;
    for (const VariationAxis &axis : face.axes()) {
        QString range = QStringLiteral("%1 … %2, default %3")
                            .arg(axis.minValue)
                            .arg(axis.maxValue)
                            .arg(axis.defaultValue);
        if (axis.isHidden)
            range += QStringLiteral(", hidden");
        text += line(QStringLiteral("Axis"),
                     QString(tagText(axis.tag) + QStringLiteral(" (") + axis.name
                             + QStringLiteral(") ") + range));
    }
    for (const NamedInstance &instance : face.namedInstances()) {
        QString value =
            instance.name + QStringLiteral(" (") + settingsText(instance.coordinates) + u')';
        if (!instance.postScriptName.isEmpty())
            value += QString(QStringLiteral(" ") + instance.postScriptName);
        text += line(QStringLiteral("Instance"), value);
    }
    return text;
}

QString faceText(const FontFace &face)
{
    QString text = QStringLiteral("Face %1\n").arg(face.key().faceIndex);
    for (const NamedText &name : kNames) {
        const QString &value = face.names().*name.member;
        if (!value.isEmpty())
            text += line(QString::fromLatin1(name.title), value);
    }
    text += traitsText(face);
    text += line(QStringLiteral("Format"), formatText(face.formatNumber()));
    text += line(QStringLiteral("Glyphs"), QString::number(face.glyphCount()));
    text += line(QStringLiteral("Units per em"), QString::number(face.metrics().unitsPerEm));
    return text + variationText(face);
}

QString familyText(const FamilyIdentification &family)
{
    const FamilyScriptIdentity &identity = family.identity;
    QStringList scripts;
    for (const WritingScript script : identity.scripts)
        scripts.push_back(storedName(script));
    QString text = QStringLiteral("Family %1\n").arg(singleLine(family.familyName));
    text += line(QStringLiteral("Scripts"),
                 scripts.isEmpty() ? QStringLiteral("none") : scripts.join(QStringLiteral(", ")));
    if (identity.primary)
        text += line(QStringLiteral("Primary script"), storedName(*identity.primary));
    for (const QString &name : identity.alternates.value_or(QStringList()))
        text += line(QStringLiteral("Other name"), name);
    return text;
}

void writeFamily(JsonWriter &out, const FamilyIdentification &family)
{
    out.beginObject();
    out.key("familyName");
    out.string(family.familyName);
    out.key("manufacturer");
    out.string(family.manufacturer);
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
    out.key("weight");
    out.integer(styleWeight(label, traits));
    out.key("isItalic");
    out.boolean(isItalicStyle(label, traits));
    out.key("weightTrait");
    out.number(traits.weight);
    out.key("slantTrait");
    out.number(traits.slant);
    out.key("italicBit");
    out.boolean(traits.isItalic);
}

void writeAxis(JsonWriter &out, const VariationAxis &axis)
{
    out.beginObject();
    out.key("tag");
    out.string(tagText(axis.tag));
    out.key("name");
    out.string(axis.name);
    out.key("minValue");
    out.number(axis.minValue);
    out.key("defaultValue");
    out.number(axis.defaultValue);
    out.key("maxValue");
    out.number(axis.maxValue);
    out.key("isHidden");
    out.boolean(axis.isHidden);
    out.endObject();
}

void writeInstance(JsonWriter &out, const NamedInstance &instance)
{
    out.beginObject();
    out.key("name");
    out.string(instance.name);
    out.key("postScriptName");
    out.string(instance.postScriptName);
    out.key("coordinates");
    out.beginArray();
    for (const VariationSetting &setting : instance.coordinates) {
        out.beginObject();
        out.key("tag");
        out.string(tagText(setting.tag));
        out.key("value");
        out.number(setting.value);
        out.endObject();
    }
    out.endArray();
    out.endObject();
}

void writeFace(JsonWriter &out, const FontFace &face)
{
    out.beginObject();
    out.key("faceIndex");
    out.integer(face.key().faceIndex);
    for (const NamedText &name : kNames) {
        out.key(name.key);
        out.string(face.names().*name.member);
    }
    writeTraits(out, face);
    out.key("format");
    out.integer(face.formatNumber());
    out.key("glyphCount");
    out.integer(face.glyphCount());
    out.key("unitsPerEm");
    out.integer(face.metrics().unitsPerEm);
    out.key("axes");
    out.beginArray();
    for (const VariationAxis &axis : face.axes())
        writeAxis(out, axis);
    out.endArray();
    out.key("instances");
    out.beginArray();
    for (const NamedInstance &instance : face.namedInstances())
        writeInstance(out, instance);
    out.endArray();
    out.endObject();
}

} // namespace

Result<FaceReport> reportFaces(const FilePath &path)
{
    const auto file = FontFile::open(path);
    if (!file)
        return tl::unexpected(file.error());
    const auto descriptors = (*file)->descriptors();
    if (!descriptors)
        return tl::unexpected(descriptors.error());
    FaceReport report{
        path, {}, identifyFamilies(**file, *descriptors, [](const auto &) { return true; })};
    int known = -1;
    for (const FaceDescriptor &descriptor : *descriptors) {
        if (std::exchange(known, descriptor.key.faceIndex) == descriptor.key.faceIndex)
            continue;
        if (auto face = (*file)->face({descriptor.key.faceIndex, -1}))
            report.faces.push_back(*std::move(face));
    }
    if (report.faces.empty())
        return failure(ErrorKind::malformed,
                       path.displayText() + QStringLiteral(": holds no face that can be read"));
    return report;
}

QByteArray faceReportJson(const FaceReport &report)
{
    JsonWriter out;
    out.beginObject();
    out.key("fileURL");
    out.utf8(report.path.toUrl());
    out.key("faces");
    out.beginArray();
    for (const auto &face : report.faces)
        writeFace(out, *face);
    out.endArray();
    out.key("families");
    out.beginArray();
    for (const FamilyIdentification &family : report.families)
        writeFamily(out, family);
    out.endArray();
    out.endObject();
    return out.take();
}

QString faceReportText(const FaceReport &report)
{
    QString text = singleLine(report.path) + u'\n';
    for (const auto &face : report.faces)
        text += faceText(*face);
    for (const FamilyIdentification &family : report.families)
        text += familyText(family);
    return text;
}

} // namespace lorva::cli
