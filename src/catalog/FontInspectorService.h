// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#pragma once

#include "model/records/InspectorRecords.h"
#include "text/FaceInformation.h"
#include "text/Font.h"
#include "text/FontFeatures.h"

#include <span>
#include <vector>

namespace lorva {

/// Reads what the inspector shows of a face. Stateless.
///
/// Thread: any; the file is read. A face that cannot be read gives empty answers.
class FontInspectorService
{
public:
    /// In the font's order of types, then of their selectors.
    static std::vector<OpenTypeFeatureRecord> features(const FontFace &face);
    /// The records of features that are known already, one each.
    static std::vector<OpenTypeFeatureRecord> features(std::span<const FontFeature> offered);
    /// Hidden axes and axes that cannot be moved are left out; currentValue is what `font` has.
    static std::vector<FontVariationAxisRecord> axes(const Font &font);
    static FontMetadataInfo metadata(const FontFace &face);
    /// As above with what has been read of the face already.
    static FontMetadataInfo metadata(const FontFace &face, const FaceInformation &information);
    /// The text of FontFace::formatNumber().
    static QString formatText(int formatNumber);
};

/// The pairs of the records that are on, for featureSettings().
std::vector<FeaturePair> enabledPairs(const std::vector<OpenTypeFeatureRecord> &features);

/// What an axis is called for people: registered ones by fixed names, others by the font's own if
/// it is of a length that a name has, else by the tag.
QString axisName(FontTag tag, const QString &ownName);

} // namespace lorva
