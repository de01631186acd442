// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#include "catalog/WeightChoice.h"

#include <algorithm>
#include <cstdlib>
#include <tuple>

namespace lorva {

namespace {

/// Ties between a lighter and a heavier style go to the lighter one up to here.
constexpr int kLastLightTie = 500;

auto rank(const FontStyleRecord &style, int weight)
{
    const qint64 order = weight <= kLastLightTie ? style.weight : -style.weight;
    return std::tuple(style.isItalic, std::abs(style.weight - weight), order, style.label.size());
}

} // namespace

std::optional<FontStyleRecord> styleForWeight(const FontFamilyRecord &family, int weight)
{
    if (weight == kUnweighted || family.styles.empty())
        return std::nullopt;
    return *std::min_element(family.styles.begin(), family.styles.end(),
                             [weight](const FontStyleRecord &a, const FontStyleRecord &b) {
                                 return rank(a, weight) < rank(b, weight);
                             });
}

} // namespace lorva
