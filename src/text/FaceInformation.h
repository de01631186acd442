// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#pragma once

#include "text/FontFace.h"

#include <QDateTime>

#include <array>

namespace lorva {

/// One record of OpenType `name`, or several records that say the same in the same language.
struct LocalizedName
{
    quint16 nameId = 0;
    /// BCP 47; empty where the record tells none.
    QByteArray language;
    QString text;
    bool operator==(const LocalizedName &) const = default;
};

/// What kind of text a naming-table id holds ("Copyright", "Licence address"), in English, for
/// people; empty for the font's own ids from 256 on.
QString nameIdText(quint16 nameId);

/// OpenType `OS/2` fsType.
struct EmbeddingRights
{
    enum class Usage { installable, restricted, previewAndPrint, editable };
    Usage usage = Usage::installable;
    bool allowsSubsetting = true;
    bool allowsBitmapsOnly = false;
    /// The field as it stands.
    quint16 fsType = 0;
    bool operator==(const EmbeddingRights &) const = default;
};

/// The rights in words for people ("Editable, no subsetting").
QString embeddingText(const EmbeddingRights &rights);

/// In font units, y up, at the face's default instance; what a table lacks is absent.
struct VerticalMetricsSet
{
    double ascender = 0;
    double descender = 0;
    double lineGap = 0;
    bool operator==(const VerticalMetricsSet &) const = default;
};

struct StrokeMetrics
{
    double position = 0;
    double thickness = 0;
    bool operator==(const StrokeMetrics &) const = default;
};

struct ScriptMetrics
{
    double xSize = 0;
    double ySize = 0;
    double xOffset = 0;
    double yOffset = 0;
    bool operator==(const ScriptMetrics &) const = default;
};

/// A script and a language system that the layout tables know (OpenType "Script List").
struct LayoutLanguage
{
    FontTag script = 0;
    /// 'dflt' for the script's default.
    FontTag language = 0;
    bool operator==(const LayoutLanguage &) const = default;
};

/// One axis value that the font names (OpenType `STAT`), for ticks on an axis.
struct NamedAxisValue
{
    FontTag axis = 0;
    double value = 0;
    /// Nothing when the value stands for itself alone.
    std::optional<double> rangeMinimum;
    std::optional<double> rangeMaximum;
    /// The value that bold or italic switches to.
    std::optional<double> linkedValue;
    QString name;
    /// Left out of composed names ("Regular").
    bool isElidable = false;
    bool operator==(const NamedAxisValue &) const = default;
};

/// Everything that the small tables of a face say, for people who look closely.
struct FaceInformation
{
    /// In table order; at most kMaxNameRecords. Line breaks inside a text are kept as spaces.
    std::vector<LocalizedName> names;

    // OpenType head
    double fontRevision = 0;
    std::optional<QDateTime> created;
    std::optional<QDateTime> modified;
    /// Font units: xMin, yMin, xMax, yMax of all glyphs.
    std::array<int, 4> bounds{};
    int lowestReadablePixels = 0;

    // OpenType OS/2
    std::optional<EmbeddingRights> embedding;
    std::optional<int> weightClass;
    std::optional<int> widthClass;
    std::optional<int> averageCharacterWidth;
    std::optional<std::array<quint8, 10>> panose;
    QString vendorId;
    std::optional<VerticalMetricsSet> typoMetrics;
    /// fsSelection bit 7.
    bool usesTypoMetrics = false;
    /// Descender negative, as the others.
    std::optional<VerticalMetricsSet> windowsMetrics;
    /// ulCodePageRange1: a bit for each code page of old that the face is made for.
    std::optional<quint32> codePages;
    std::optional<ScriptMetrics> subscript;
    std::optional<ScriptMetrics> superscript;
    std::optional<StrokeMetrics> strikeout;

    // OpenType hhea, post
    std::optional<VerticalMetricsSet> horizontalMetrics;
    std::optional<int> maximumAdvance;
    std::optional<StrokeMetrics> underline;
    double italicAngleDegrees = 0;
    bool isMonospaced = false;

    /// Of GSUB, then those that only GPOS has.
    std::vector<LayoutLanguage> layoutLanguages;
    std::vector<NamedAxisValue> axisValues;
    /// Tables in the directory, with their bytes.
    std::vector<std::pair<FontTag, quint32>> tables;

    /// All texts of one kind, English first, then in table order.
    std::vector<LocalizedName> namesOf(quint16 nameId) const;
    /// The best of namesOf() for people; empty if there is none.
    QString nameOf(quint16 nameId) const;
};

/// Reads the file; what cannot be read stays absent. Thread: any.
FaceInformation readFaceInformation(const FontFace &face);

} // namespace lorva
