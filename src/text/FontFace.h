// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#pragma once

#include "text/FontFile.h"

#include <QPainterPath>
#include <QString>

#include <memory>
#include <optional>
#include <span>
#include <vector>

struct hb_font_t;

namespace lorva {

/// A four-character tag packed big-endian, as OpenType writes it.
using FontTag = quint32;
constexpr FontTag fontTag(char a, char b, char c, char d)
{
    return (FontTag(quint8(a)) << 24) | (FontTag(quint8(b)) << 16) | (FontTag(quint8(c)) << 8)
        | FontTag(quint8(d));
}
/// "wght"; unprintable bytes become '?'.
QString tagText(FontTag tag);
/// The tag of one to four printable ASCII characters, padded with spaces; nothing for other text.
std::optional<FontTag> tagFromText(QStringView text);

/// One setting of a variation axis, in the axis's own (design-space user) units.
struct VariationSetting
{
    FontTag tag = 0;
    double value = 0;
    bool operator==(const VariationSetting &) const = default;
};

/// One OpenType feature and its value: 0 off, 1 on, higher for alternates.
struct FeatureSetting
{
    FontTag tag = 0;
    quint32 value = 1;
    bool operator==(const FeatureSetting &) const = default;
};

/// Naming-table texts (OpenType `name`), English first; control characters removed, white space
/// trimmed.
struct FaceNames
{
    QString family;
    QString style;
    QString postScriptName;
    QString fullName;
    QString version;
    QString copyright;
    QString manufacturer;
    QString designer;
    bool operator==(const FaceNames &) const = default;
};

struct VariationAxis
{
    FontTag tag = 0;
    QString name;
    double minValue = 0;
    double defaultValue = 0;
    double maxValue = 0;
    bool isHidden = false;
};

struct NamedInstance
{
    QString name;
    QString postScriptName;
    std::vector<VariationSetting> coordinates;
};

/// In font units, y up, at the face's own instance.
struct FaceMetrics
{
    int unitsPerEm = 1000;
    double ascender = 0;
    /// Negative below the baseline.
    double descender = 0;
    double lineGap = 0;
    /// OS/2 sCapHeight, else the height of H, else 0.7 em.
    double capHeight = 0;
    double xHeight = 0;
};

/// One face or named instance of a font file.
///
/// Immutable and shared between threads. Tables are read when first needed and may be let go again
/// under memory pressure; nothing but speed depends on it. Thread: any. Hostile files: a table that
/// cannot be read counts as empty.
class FontFace
{
public:
    ~FontFace();

    const FilePath &path() const;
    /// False once the file was replaced, changed or removed: what was read of it stays usable.
    /// Looks at the file.
    bool isUpToDate() const;
    FaceKey key() const;
    const FaceNames &names() const;
    FaceTraits traits() const;
    const FaceMetrics &metrics() const;
    /// metrics() with other variations (OpenType `MVAR`). Not kept.
    FaceMetrics metricsAt(std::span<const VariationSetting> variations) const;
    int glyphCount() const;
    /// 1 glyf outlines without layout tables, 2 bare PostScript, 3 `OTTO` (`CFF ` or `CFF2`),
    /// 4 glyf outlines with GSUB or GPOS, 5 without outlines (bitmaps only).
    int formatNumber() const;
    /// Axes of a variable face in `fvar` order; empty otherwise.
    const std::vector<VariationAxis> &axes() const;
    /// The first axis of that tag; nothing if the face has none.
    std::optional<VariationAxis> axis(FontTag tag) const;
    const std::vector<NamedInstance> &namedInstances() const;
    /// Coordinates of this face's own instance; empty for the default.
    const std::vector<VariationSetting> &coordinates() const;
    /// Family names (naming-table records 16, 1 and 21) in every language, in table order, with Mac
    /// Roman records decoded; may hold duplicates and the family's own name.
    std::vector<QString> familyNamesInAllLanguages() const;

    /// The nominal glyph of a character; nothing for unmapped ones and for glyph 0.
    std::optional<quint32> glyphFor(char32_t scalar) const;

    /// Shapes and outlines for the type engine's own files: an immutable HarfBuzz font scaled to
    /// unitsPerEm with this face's coordinates and then `variations` applied: of several values for
    /// an axis the last one counts, values outside the axis count as its ends, values that are no
    /// number and tags that the face lacks are passed over. Never null.
    std::shared_ptr<hb_font_t> shapingFont(std::span<const VariationSetting> variations) const;

    /// For the type engine's own files.
    struct Data;
    const Data &data() const { return *m_data; }
    explicit FontFace(std::unique_ptr<Data> data);

private:
    std::unique_ptr<Data> m_data;
};

} // namespace lorva
