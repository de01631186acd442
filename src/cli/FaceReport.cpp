// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#include "cli/FaceReport.h"

#include "catalog/FaceReading.h"
#include "cli/Texts.h"
#include "text/GlyphNames.h"

#include <algorithm>
#include <utility>

namespace lorva::cli {

namespace {

std::vector<GlyphLine> listGlyphs(const FontFace &face)
{
    const GlyphNames names(face);
    const std::vector<char32_t> characters = charactersByGlyph(face);
    std::vector<GlyphLine> lines;
    for (size_t glyph = 0; glyph < characters.size(); ++glyph)
        lines.push_back({names.name(quint32(glyph)), characters[glyph]});
    return lines;
}

bool isColorTable(FontTag tag)
{
    constexpr FontTag kColorTables[] = {
        fontTag('C', 'O', 'L', 'R'), fontTag('C', 'P', 'A', 'L'), fontTag('S', 'V', 'G', ' '),
        fontTag('C', 'B', 'D', 'T'), fontTag('s', 'b', 'i', 'x'),
    };
    return std::find(std::begin(kColorTables), std::end(kColorTables), tag)
        != std::end(kColorTables);
}

FaceDetails reportFace(std::shared_ptr<const FontFace> face, GlyphListing glyphs)
{
    FaceDetails details;
    details.information = readFaceInformation(*face);
    details.characters = readCharacters(*face);
    details.features = fontFeatures(*face);
    details.palettes = readColorPalettes(*face);
    for (const auto &[tag, length] : details.information.tables)
        if (isColorTable(tag))
            details.colorTables.push_back(tag);
    if (glyphs == GlyphListing::shown)
        details.glyphs = listGlyphs(*face);
    details.face = std::move(face);
    return details;
}

} // namespace

QString formatText(int formatNumber)
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

QString colorText(QRgb color)
{
    const QString opaque = QStringLiteral("#%1").arg(color & 0xFFFFFF, 6, 16, QLatin1Char('0'));
    return qAlpha(color) == 0xFF
        ? opaque
        : opaque + QStringLiteral("%1").arg(qAlpha(color), 2, 16, QLatin1Char('0'));
}

Result<FaceReport> reportFaces(const FilePath &path, GlyphListing glyphs)
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
            report.faces.push_back(reportFace(*std::move(face), glyphs));
    }
    if (report.faces.empty())
        return failure(ErrorKind::malformed,
                       Texts::tr("%1: holds no face that can be read").arg(path.displayText()));
    return report;
}

} // namespace lorva::cli
