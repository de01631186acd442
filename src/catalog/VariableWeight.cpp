// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#include "catalog/VariableWeight.h"

#include <algorithm>
#include <cmath>

namespace lorva {

namespace {

constexpr FontTag kWeightAxis = fontTag('w', 'g', 'h', 't');
constexpr double kRegularWeight = 400;

/// False for infinities and for what is no number, too.
bool hasExtent(const ClosedRange &range)
{
    return std::isfinite(range.lower) && std::isfinite(range.upper) && range.lower < range.upper;
}

} // namespace

std::optional<VariableWeight> weightOf(const FontFace &face, const FontStyleRecord &style)
{
    const std::optional<VariationAxis> found = face.axis(kWeightAxis);
    if (!found)
        return std::nullopt;
    const ClosedRange axis{found->minValue, found->maxValue};
    const ClosedRange range{std::max(axis.lower, kSliderWeights.lower),
                            std::min(axis.upper, kSliderWeights.upper)};
    if (!hasExtent(axis) || !hasExtent(range))
        return std::nullopt;
    return VariableWeight{style, axis, range};
}

double weightWithin(const ClosedRange &axis, double weight)
{
    const double wanted = std::isnan(weight) ? kRegularWeight : weight;
    // Not std::clamp(): a range that somebody else made may be upside down.
    return std::max(axis.lower, std::min(axis.upper, wanted));
}

Font withWeight(const Font &font, double weight)
{
    std::vector<VariationSetting> settings = font.variations();
    std::erase_if(settings, [](const VariationSetting &set) { return set.tag == kWeightAxis; });
    settings.push_back({kWeightAxis, weight});
    return font.withVariations(std::move(settings));
}

} // namespace lorva
