// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#pragma once

#include "text/features/FeatureTables.h"

namespace lorva {

/// What a feature does, and which characters that concerns.
struct FeatureReach
{
    FeatureEffect effect;
    /// Of the glyphs that it looks at, in glyph order; each once.
    std::vector<char32_t> characters;
};
/// Bounded as featureEffect(). Thread: any.
FeatureReach featureReach(const FontFace &face, const FeatureTables &tables, FontTag tag);

} // namespace lorva
