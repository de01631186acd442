// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#include "cli/FaceReport.h"

#include "base/GroupedNumber.h"
#include "catalog/FaceReading.h"
#include "catalog/StyleWeight.h"
#include "cli/Console.h"
#include "cli/FaceReportNames.h"
#include "model/records/RecordsJson.h"

#include <QStringList>

#include <algorithm>
#include <set>

namespace lorva::cli {

namespace {

QString line(const QString &title, const QString &value)
{
    return QStringLiteral("  %1 %2\n")
        .arg(QString(title + u':').leftJustified(16), singleLine(value));
}

QString line(const char *title, const QString &value)
{
    return line(QString::fromLatin1(title), value);
}

QString yesOrNo(bool flag)
{
    return flag ? QStringLiteral("yes") : QStringLiteral("no");
}

QString settingsText(const std::vector<VariationSetting> &settings)
{
    QStringList parts;
    for (const VariationSetting &each : settings)
        parts.push_back(QString(tagText(each.tag) + u' ' + QString::number(each.value)));
    return parts.join(QStringLiteral(", "));
}

QString traitsText(const FontFace &face)
{
    const QString label = styleLabel(face.names().style);
    const FaceTraits traits = face.traits();
    return line("Weight",
                QStringLiteral("%1 (trait %2)").arg(styleWeight(label, traits)).arg(traits.weight))
        + line("Italic",
               QStringLiteral("%1 (slant %2)")
                   .arg(yesOrNo(isItalicStyle(label, traits)))
                   .arg(traits.slant));
}

QString axisText(const VariationAxis &axis)
{
    QString range = QStringLiteral("%1 … %2, default %3")
                        .arg(axis.minValue)
                        .arg(axis.maxValue)
                        .arg(axis.defaultValue);
    if (axis.isHidden)
        range += QStringLiteral(", hidden");
    return line("Axis",
                QString(tagText(axis.tag) + QStringLiteral(" (") + axis.name + QStringLiteral(") ")
                        + range));
}

QString axisValueText(const NamedAxisValue &value)
{
    QString text = QString(tagText(value.axis) + u' ' + QString::number(value.value));
    if (value.rangeMinimum && value.rangeMaximum)
        text += QStringLiteral(" (%1 … %2)").arg(*value.rangeMinimum).arg(*value.rangeMaximum);
    text += QString(u' ' + value.name);
    if (value.linkedValue)
        text += QStringLiteral(", linked with %1").arg(*value.linkedValue);
    if (value.isElidable)
        text += QStringLiteral(", left out of names");
    return line("Axis value", text);
}

QString instanceText(const NamedInstance &instance)
{
    QString value =
        instance.name + QStringLiteral(" (") + settingsText(instance.coordinates) + u')';
    if (!instance.postScriptName.isEmpty())
        value += QString(QStringLiteral(" ") + instance.postScriptName);
    return line("Instance", value);
}

QString variationText(const FaceDetails &details)
{
    QString text;
    for (const VariationAxis &axis : details.face->axes())
        text += axisText(axis);
    for (const NamedAxisValue &value : details.information.axisValues)
        text += axisValueText(value);
    for (const NamedInstance &instance : details.face->namedInstances())
        text += instanceText(instance);
    return text;
}

QString nameTitle(quint16 nameId)
{
    const QString kind = nameIdText(nameId);
    return kind.isEmpty() ? QStringLiteral("Name %1").arg(nameId) : kind;
}

/// All languages of one kind stand together; the kinds in the order of their numbers.
QString namesText(const FaceInformation &information)
{
    std::set<quint16> kinds;
    for (const LocalizedName &name : information.names)
        kinds.insert(name.nameId);
    QString text;
    for (const quint16 kind : kinds) {
        text += QStringLiteral("    %1\n").arg(singleLine(nameTitle(kind)));
        for (const LocalizedName &name : information.namesOf(kind)) {
            const QString language =
                name.language.isEmpty() ? QStringLiteral("?") : QString::fromLatin1(name.language);
            text += QStringLiteral("      %1 [%2]\n").arg(singleLine(name.text), language);
        }
    }
    return text.isEmpty() ? text : QString(QStringLiteral("  Names:\n") + text);
}

QString verticalText(const std::optional<VerticalMetricsSet> &metrics, const char *title)
{
    if (!metrics)
        return {};
    return line(title,
                QStringLiteral("ascender %1, descender %2, line gap %3")
                    .arg(metrics->ascender)
                    .arg(metrics->descender)
                    .arg(metrics->lineGap));
}

QString strokeText(const std::optional<StrokeMetrics> &stroke, const char *title)
{
    if (!stroke)
        return {};
    return line(
        title,
        QStringLiteral("position %1, thickness %2").arg(stroke->position).arg(stroke->thickness));
}

QString scriptText(const std::optional<ScriptMetrics> &metrics, const char *title)
{
    if (!metrics)
        return {};
    return line(title,
                QStringLiteral("size %1 × %2, offset %3, %4")
                    .arg(metrics->xSize)
                    .arg(metrics->ySize)
                    .arg(metrics->xOffset)
                    .arg(metrics->yOffset));
}

QString metricsText(const FontFace &face, const FaceInformation &information)
{
    const FaceMetrics &metrics = face.metrics();
    QString text = line("Units per em", QString::number(metrics.unitsPerEm));
    text += line("Heights",
                 QStringLiteral("capitals %1, x %2").arg(metrics.capHeight).arg(metrics.xHeight));
    text += verticalText(VerticalMetricsSet{metrics.ascender, metrics.descender, metrics.lineGap},
                         "Lines");
    text += verticalText(information.horizontalMetrics, "hhea");
    text += verticalText(information.typoMetrics,
                         information.usesTypoMetrics ? "OS/2 typo, used" : "OS/2 typo");
    text += verticalText(information.windowsMetrics, "OS/2 win");
    text += strokeText(information.underline, "Underline");
    text += strokeText(information.strikeout, "Strikeout");
    text += scriptText(information.subscript, "Subscript");
    text += scriptText(information.superscript, "Superscript");
    const auto &[left, bottom, right, top] = information.bounds;
    text +=
        line("Bounds", QStringLiteral("%1, %2 … %3, %4").arg(left).arg(bottom).arg(right).arg(top));
    return text;
}

QString dateText(const std::optional<QDateTime> &date, const char *title)
{
    return date ? line(title, date->toString(Qt::ISODate)) : QString();
}

QString numberText(const std::optional<int> &number, const char *title)
{
    return number ? line(title, QString::number(*number)) : QString();
}

QString panoseText(const std::optional<std::array<quint8, 10>> &panose)
{
    if (!panose)
        return {};
    QStringList digits;
    for (const quint8 digit : *panose)
        digits.push_back(QString::number(digit));
    return line("PANOSE", digits.join(u' '));
}

QString informationText(const FaceInformation &information)
{
    QString text = line("Revision", QString::number(information.fontRevision, 'f', 3));
    text += dateText(information.created, "Created");
    text += dateText(information.modified, "Modified");
    if (!information.vendorId.isEmpty())
        text += line("Vendor", information.vendorId);
    if (information.embedding)
        text += line("Embedding", embeddingText(*information.embedding));
    text += numberText(information.weightClass, "Weight class");
    text += numberText(information.widthClass, "Width class");
    text += numberText(information.averageCharacterWidth, "Average width");
    text += numberText(information.maximumAdvance, "Widest advance");
    text += panoseText(information.panose);
    text += line("Italic angle", QString::number(information.italicAngleDegrees));
    text += line("Monospaced", yesOrNo(information.isMonospaced));
    return text + line("Smallest pixels", QString::number(information.lowestReadablePixels));
}

QString characterText(char32_t character)
{
    return QStringLiteral("U+%1").arg(QString::number(uint(character), 16).toUpper(), 4,
                                      QLatin1Char('0'));
}

QString rangeText(const CharacterRange &range)
{
    return range.first == range.last
        ? characterText(range.first)
        : QString(characterText(range.first) + u'–' + characterText(range.last));
}

QString charactersText(const CharacterSet &characters)
{
    constexpr size_t kShownRanges = 12;
    const auto ranges = characters.ranges();
    QStringList parts;
    for (const CharacterRange &range : ranges.first(std::min(kShownRanges, ranges.size())))
        parts.push_back(rangeText(range));
    if (ranges.size() > kShownRanges)
        parts.push_back(QStringLiteral("and %1 more ranges")
                            .arg(groupedNumber(qint64(ranges.size() - kShownRanges))));
    QString text = line("Characters", groupedNumber(characters.count()));
    if (!parts.isEmpty())
        text += line("Ranges", parts.join(QStringLiteral(", ")));
    return text;
}

QString featureText(const FontFeature &feature)
{
    const QString tag = feature.tag != 0 ? tagText(feature.tag) : QStringLiteral("    ");
    QString text = QString(tag + u' ' + feature.name);
    if (!feature.typeName.isEmpty())
        text += QStringLiteral(" (%1, %2/%3)")
                    .arg(feature.typeName)
                    .arg(feature.pair.type)
                    .arg(feature.pair.selector);
    if (feature.isDefaultOn)
        text += QStringLiteral(", on");
    return line("Feature", text);
}

QString paletteText(const ColorPalette &palette, size_t index)
{
    constexpr size_t kShownColors = 16;
    QStringList parts;
    for (size_t i = 0; i < std::min(kShownColors, palette.colors.size()); ++i)
        parts.push_back(colorText(palette.colors[i]));
    if (palette.colors.size() > kShownColors)
        parts.push_back(
            QStringLiteral("and %1 more").arg(qint64(palette.colors.size() - kShownColors)));
    QString text = QString::number(qint64(index));
    if (!palette.name.isEmpty())
        text += QString(u' ' + palette.name);
    if (palette.isForLightBackground)
        text += QStringLiteral(", for light backgrounds");
    if (palette.isForDarkBackground)
        text += QStringLiteral(", for dark backgrounds");
    return line("Palette", QString(text + QStringLiteral(": ") + parts.join(u' ')));
}

QString colorsText(const FaceDetails &details)
{
    QStringList tags;
    for (const FontTag tag : details.colorTables)
        tags.push_back(tagText(tag).trimmed());
    QString text;
    if (!tags.isEmpty())
        text += line("Colour tables", tags.join(QStringLiteral(", ")));
    const std::vector<ColorPalette> &palettes = details.palettes.palettes;
    for (size_t i = 0; i < palettes.size(); ++i)
        text += paletteText(palettes[i], i);
    return text;
}

/// "latn dflt TRK, arab dflt URD".
QString layoutText(const std::vector<LayoutLanguage> &languages)
{
    QStringList scripts;
    FontTag last = 0;
    for (const LayoutLanguage &each : languages) {
        if (scripts.isEmpty() || std::exchange(last, each.script) != each.script)
            scripts.push_back(tagText(each.script).trimmed());
        scripts.back() += QString(u' ' + tagText(each.language).trimmed());
    }
    return scripts.isEmpty() ? QString() : line("Layout", scripts.join(QStringLiteral(", ")));
}

QString tablesText(const FaceInformation &information)
{
    QStringList parts;
    for (const auto &[tag, length] : information.tables)
        parts.push_back(QString(tagText(tag).trimmed() + u' ' + groupedNumber(length)));
    return line("Tables, bytes", parts.join(QStringLiteral(", ")));
}

QString glyphsText(const std::vector<GlyphLine> &glyphs)
{
    QString text;
    for (size_t i = 0; i < glyphs.size(); ++i) {
        QString value = QString(QString::number(qint64(i)) + u' ' + glyphs[i].name);
        if (glyphs[i].character != 0)
            value += QString(u' ' + characterText(glyphs[i].character));
        text += line("Glyph", value);
    }
    return text;
}

QString faceText(const FaceDetails &details)
{
    const FontFace &face = *details.face;
    QString text = QStringLiteral("Face %1\n").arg(face.key().faceIndex);
    for (const NamedText &name : kFaceTexts) {
        const QString &value = face.names().*name.member;
        if (!value.isEmpty())
            text += line(name.title, value);
    }
    text += traitsText(face);
    text += line(
        "Format",
        QStringLiteral("%1 (%2)").arg(formatText(face.formatNumber())).arg(face.formatNumber()));
    text += line("Glyphs", QString::number(face.glyphCount()));
    text += charactersText(details.characters);
    text += metricsText(face, details.information);
    text += informationText(details.information);
    text += variationText(details);
    for (const FontFeature &feature : details.features)
        text += featureText(feature);
    text += layoutText(details.information.layoutLanguages);
    text += colorsText(details);
    text += tablesText(details.information);
    return text + namesText(details.information) + glyphsText(details.glyphs);
}

QString familyText(const FamilyIdentification &family)
{
    const FamilyScriptIdentity &identity = family.identity;
    QStringList scripts;
    for (const WritingScript script : identity.scripts)
        scripts.push_back(storedName(script));
    QString text = QStringLiteral("Family %1\n").arg(singleLine(family.familyName));
    text += line("Scripts",
                 scripts.isEmpty() ? QStringLiteral("none") : scripts.join(QStringLiteral(", ")));
    if (identity.primary)
        text += line("Primary script", storedName(*identity.primary));
    for (const QString &name : identity.alternates.value_or(QStringList()))
        text += line("Other name", name);
    return text;
}

} // namespace

QString faceReportText(const FaceReport &report)
{
    QString text = singleLine(report.path) + u'\n';
    for (const FaceDetails &details : report.faces)
        text += faceText(details);
    for (const FamilyIdentification &family : report.families)
        text += familyText(family);
    return text;
}

} // namespace lorva::cli
