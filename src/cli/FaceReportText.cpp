// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#include "base/TextColumns.h"
#include "cli/FaceReport.h"
#include "cli/Texts.h"
#include "cli/Words.h"

#include "base/GroupedNumber.h"
#include "catalog/FaceReading.h"
#include "catalog/StyleWeight.h"
#include "cli/Console.h"
#include "cli/FaceReportNames.h"
#include "model/records/RecordsJson.h"

#include <QStringList>

#include <algorithm>
#include <set>
#include <span>

namespace lorva::cli {

namespace {

/// Of a title, its colon, and the space around them.
constexpr int kTitleColumns = 19;

/// To be aligned at the tab.
QString line(const QString &title, const QString &value)
{
    //: a title before a value, in a list of them
    return QString(u"  " % Texts::tr("%1:").arg(title) % u'\t' % singleLine(value) % u'\n');
}

QString yesOrNo(bool flag)
{
    return flag ? Texts::tr("yes") : Texts::tr("no");
}

QString settingsText(const std::vector<VariationSetting> &settings)
{
    QStringList parts;
    for (const VariationSetting &each : settings)
        parts.push_back(QString(tagText(each.tag) + u' ' + QString::number(each.value)));
    return listed(parts);
}

QString traitsText(const FontFace &face)
{
    const QString label = styleLabel(face.names().style);
    const FaceTraits traits = face.traits();
    return line(Texts::tr("Weight"),
                Texts::tr("%1 (trait %2)").arg(styleWeight(label, traits)).arg(traits.weight))
        + line(Texts::tr("Italic"),
               Texts::tr("%1 (slant %2)")
                   .arg(yesOrNo(isItalicStyle(label, traits)))
                   .arg(traits.slant));
}

QString axisText(const VariationAxis &axis)
{
    QStringList parts{QStringLiteral("%1 … %2").arg(axis.minValue).arg(axis.maxValue),
                      //: the value of an axis of a variable font
                      Texts::tr("default %1").arg(axis.defaultValue)};
    if (axis.isHidden)
        parts.push_back(Texts::tr("hidden"));
    return line(Texts::tr("Axis"),
                QString(tagText(axis.tag) % u" (" % axis.name % u") " % listed(parts)));
}

QString axisValueText(const NamedAxisValue &value)
{
    QString named = QString(tagText(value.axis) + u' ' + QString::number(value.value));
    if (value.rangeMinimum && value.rangeMaximum)
        named += QStringLiteral(" (%1 … %2)").arg(*value.rangeMinimum).arg(*value.rangeMaximum);
    QStringList parts{QString(named % u' ' % value.name)};
    if (value.linkedValue)
        parts.push_back(Texts::tr("linked with %1").arg(*value.linkedValue));
    if (value.isElidable)
        parts.push_back(Texts::tr("left out of names"));
    return line(Texts::tr("Axis value"), listed(parts));
}

QString instanceText(const NamedInstance &instance)
{
    QString value =
        instance.name + QStringLiteral(" (") + settingsText(instance.coordinates) + u')';
    if (!instance.postScriptName.isEmpty())
        value += QString(QStringLiteral(" ") + instance.postScriptName);
    return line(Texts::tr("Instance"), value);
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
    return kind.isEmpty() ? Texts::tr("Name %1").arg(nameId) : kind;
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
    return text.isEmpty() ? text : QString(u"  " % Texts::tr("Names:") % u'\n' % text);
}

QString verticalText(const std::optional<VerticalMetricsSet> &metrics, const QString &title)
{
    if (!metrics)
        return {};
    return line(title,
                Texts::tr("ascender %1, descender %2, line gap %3")
                    .arg(metrics->ascender)
                    .arg(metrics->descender)
                    .arg(metrics->lineGap));
}

QString strokeText(const std::optional<StrokeMetrics> &stroke, const QString &title)
{
    if (!stroke)
        return {};
    return line(
        title, Texts::tr("position %1, thickness %2").arg(stroke->position).arg(stroke->thickness));
}

QString scriptText(const std::optional<ScriptMetrics> &metrics, const QString &title)
{
    if (!metrics)
        return {};
    return line(title,
                Texts::tr("size %1 × %2, offset %3, %4")
                    .arg(metrics->xSize)
                    .arg(metrics->ySize)
                    .arg(metrics->xOffset)
                    .arg(metrics->yOffset));
}

QString metricsText(const FontFace &face, const FaceInformation &information)
{
    const FaceMetrics &metrics = face.metrics();
    QString text = line(Texts::tr("Units per em"), QString::number(metrics.unitsPerEm));
    text += line(Texts::tr("Heights"),
                 Texts::tr("capitals %1, x %2").arg(metrics.capHeight).arg(metrics.xHeight));
    text += verticalText(VerticalMetricsSet{metrics.ascender, metrics.descender, metrics.lineGap},
                         Texts::tr("Lines"));
    text += verticalText(information.horizontalMetrics, QStringLiteral("hhea"));
    text += verticalText(information.typoMetrics,
                         information.usesTypoMetrics ? Texts::tr("OS/2 typo, used")
                                                     : QStringLiteral("OS/2 typo"));
    text += verticalText(information.windowsMetrics, QStringLiteral("OS/2 win"));
    text += strokeText(information.underline, Texts::tr("Underline"));
    text += strokeText(information.strikeout, Texts::tr("Strikeout"));
    text += scriptText(information.subscript, Texts::tr("Subscript"));
    text += scriptText(information.superscript, Texts::tr("Superscript"));
    const auto &[left, bottom, right, top] = information.bounds;
    text += line(Texts::tr("Bounds"),
                 QStringLiteral("%1, %2 … %3, %4").arg(left).arg(bottom).arg(right).arg(top));
    return text;
}

QString dateText(const std::optional<QDateTime> &date, const QString &title)
{
    return date ? line(title, date->toString(Qt::ISODate)) : QString();
}

QString numberText(const std::optional<int> &number, const QString &title)
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
    return line(QStringLiteral("PANOSE"), digits.join(u' '));
}

QString informationText(const FaceInformation &information)
{
    QString text = line(Texts::tr("Revision"), QString::number(information.fontRevision, 'f', 3));
    text += dateText(information.created, Texts::tr("Created"));
    text += dateText(information.modified, Texts::tr("Modified"));
    if (!information.vendorId.isEmpty())
        text += line(Texts::tr("Vendor"), information.vendorId);
    if (information.embedding)
        text += line(Texts::tr("Embedding"), embeddingText(*information.embedding));
    text += numberText(information.weightClass, Texts::tr("Weight class"));
    text += numberText(information.widthClass, Texts::tr("Width class"));
    text += numberText(information.averageCharacterWidth, Texts::tr("Average width"));
    text += numberText(information.maximumAdvance, Texts::tr("Widest advance"));
    text += panoseText(information.panose);
    text += line(Texts::tr("Italic angle"), QString::number(information.italicAngleDegrees));
    text += line(Texts::tr("Monospaced"), yesOrNo(information.isMonospaced));
    return text
        + line(Texts::tr("Smallest pixels"), QString::number(information.lowestReadablePixels));
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
        parts.push_back(Texts::tr("and %1 more ranges", nullptr, int(ranges.size() - kShownRanges))
                            .arg(groupedNumber(qint64(ranges.size() - kShownRanges))));
    QString text = line(Texts::tr("Characters"), groupedNumber(characters.count()));
    if (!parts.isEmpty())
        text += line(Texts::tr("Ranges"), listed(parts));
    return text;
}

QString featureText(const FontFeature &feature)
{
    const QString tag = feature.tag != 0 ? tagText(feature.tag) : QStringLiteral("    ");
    QString named = QString(tag + u' ' + feature.name);
    if (!feature.typeName.isEmpty())
        named += QStringLiteral(" (%1, %2/%3)")
                     .arg(feature.typeName)
                     .arg(feature.pair.type)
                     .arg(feature.pair.selector);
    QStringList parts{named};
    if (feature.isDefaultOn)
        //: a feature of a font that is switched on unless somebody switches it off
        parts.push_back(Texts::tr("on"));
    return line(Texts::tr("Feature"), listed(parts));
}

QString shownColors(const std::vector<QRgb> &colors)
{
    constexpr size_t kMostColors = 16;
    QStringList parts;
    for (const QRgb color : std::span(colors).first(std::min(kMostColors, colors.size())))
        parts.push_back(colorText(color));
    if (colors.size() > kMostColors)
        //: at the end of a list of colours
        parts.push_back(Texts::tr("and %1 more").arg(qint64(colors.size() - kMostColors)));
    return parts.join(u' ');
}

QString paletteText(const ColorPalette &palette, size_t index)
{
    QStringList parts{QString::number(qint64(index))};
    if (!palette.name.isEmpty())
        parts.back() += QString(u' ' + palette.name);
    if (palette.isForLightBackground)
        parts.push_back(Texts::tr("for light backgrounds"));
    if (palette.isForDarkBackground)
        parts.push_back(Texts::tr("for dark backgrounds"));
    return line(Texts::tr("Palette"),
                Texts::tr("%1: %2").arg(listed(parts), shownColors(palette.colors)));
}

QString colorsText(const FaceDetails &details)
{
    QStringList tags;
    for (const FontTag tag : details.colorTables)
        tags.push_back(tagText(tag).trimmed());
    QString text;
    if (!tags.isEmpty())
        text += line(Texts::tr("Colour tables"), listed(tags));
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
    return scripts.isEmpty() ? QString() : line(Texts::tr("Layout"), listed(scripts));
}

QString tablesText(const FaceInformation &information)
{
    QStringList parts;
    for (const auto &[tag, length] : information.tables)
        parts.push_back(QString(tagText(tag).trimmed() + u' ' + groupedNumber(length)));
    return line(Texts::tr("Tables, bytes"), listed(parts));
}

QString glyphsText(const std::vector<GlyphLine> &glyphs)
{
    QString text;
    for (size_t i = 0; i < glyphs.size(); ++i) {
        QString value = QString(QString::number(qint64(i)) + u' ' + glyphs[i].name);
        if (glyphs[i].character != 0)
            value += QString(u' ' + characterText(glyphs[i].character));
        text += line(Texts::tr("Glyph"), value);
    }
    return text;
}

QString faceText(const FaceDetails &details)
{
    const FontFace &face = *details.face;
    //: one of the fonts in a file; %1: its number
    QString text = QString(Texts::tr("Face %1").arg(face.key().faceIndex) % u'\n');
    for (const NamedText &name : kFaceTexts) {
        const QString &value = face.names().*name.member;
        if (!value.isEmpty())
            text += line(Texts::tr(name.title), value);
    }
    text += traitsText(face);
    text += line(
        Texts::tr("Format"),
        QStringLiteral("%1 (%2)").arg(formatText(face.formatNumber())).arg(face.formatNumber()));
    text += line(Texts::tr("Glyphs"), QString::number(face.glyphCount()));
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
    QString text = QString(Texts::tr("Family %1").arg(singleLine(family.familyName)) % u'\n');
    text += line(Texts::tr("Scripts"), scripts.isEmpty() ? Texts::tr("none") : listed(scripts));
    if (identity.primary)
        text += line(Texts::tr("Primary script"), storedName(*identity.primary));
    for (const QString &name : identity.alternates.value_or(QStringList()))
        text += line(Texts::tr("Other name"), name);
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
    return alignedAtTabs(text, kTitleColumns);
}

} // namespace lorva::cli
