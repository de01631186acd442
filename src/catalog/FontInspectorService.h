// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#pragma once

#include "model/records/InspectorRecords.h"
#include "text/Font.h"
#include "text/FontFeatures.h"

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
    /// Hidden axes and axes that cannot be moved are left out; currentValue is what `font` has.
    static std::vector<FontVariationAxisRecord> axes(const Font &font);
    static FontMetadataInfo metadata(const FontFace &face);
    /// The text of FontFace::formatNumber().
    static QString formatText(int formatNumber);
};

/// The pairs of the records that are on, for featureSettings().
std::vector<FeaturePair> enabledPairs(const std::vector<OpenTypeFeatureRecord> &features);

} // namespace lorva
