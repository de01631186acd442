// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#pragma once

#include "base/Result.h"
#include "catalog/FamilyIdentification.h"
#include "text/CharacterSet.h"
#include "text/ColorPalette.h"
#include "text/FaceInformation.h"
#include "text/FontFeatures.h"

#include <memory>
#include <vector>

namespace lorva::cli {

struct GlyphLine
{
    QString name;
    /// The lowest one that leads to the glyph; 0 if none does.
    char32_t character = 0;
};

/// Everything about one face.
struct FaceDetails
{
    std::shared_ptr<const FontFace> face;
    FaceInformation information;
    CharacterSet characters;
    std::vector<FontFeature> features;
    ColorPalettes palettes;
    std::vector<FontTag> colorTables;
    /// Only if asked for.
    std::vector<GlyphLine> glyphs;
};

/// What `lorvactl info` shows of one file.
struct FaceReport
{
    FilePath path;
    /// The sound faces, each in its default instance.
    std::vector<FaceDetails> faces;
    /// Of each family in the file.
    std::vector<FamilyIdentification> families;
};

/// A list of 65,000 glyph names is more than most want to see.
enum class GlyphListing { hidden, shown };

/// Fails when the file cannot be read, or when it holds no sound face.
Result<FaceReport> reportFaces(const FilePath &path, GlyphListing glyphs);

QByteArray faceReportJson(const FaceReport &report);
/// Lines that nothing in the font's names can break.
QString faceReportText(const FaceReport &report);

/// The words for FontFace::formatNumber().
QString formatText(int formatNumber);
/// "#ff8000", with two more digits where it is not opaque.
QString colorText(QRgb color);

} // namespace lorva::cli
