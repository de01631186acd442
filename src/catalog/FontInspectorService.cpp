// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#include "catalog/FontInspectorService.h"

namespace lorva {

std::vector<OpenTypeFeatureRecord> FontInspectorService::features(const FontFace &)
{
    return {};
}

std::vector<FontVariationAxisRecord> FontInspectorService::axes(const Font &)
{
    return {};
}

FontMetadataInfo FontInspectorService::metadata(const FontFace &)
{
    return {};
}

QString FontInspectorService::formatText(int)
{
    return {};
}

std::vector<FeaturePair> enabledPairs(const std::vector<OpenTypeFeatureRecord> &)
{
    return {};
}

} // namespace lorva
