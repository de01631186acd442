// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#pragma once

#include "model/records/FontRecords.h"

#include <optional>

namespace lorva {

/// The weight at which a family shows the style that stands for it (representativeStyle()).
inline constexpr int kUnweighted = 400;

/// The style that the weight control shows of a family: the upright one nearest to `weight` (of the
/// 100–900 scale); of two as near the lighter up to 500 and the heavier beyond; of several of one
/// weight the one with the plainest label, "Bold" rather than "Condensed Bold". An italic only
/// where nothing is upright. Nothing for kUnweighted and for a family without styles. Thread: any.
std::optional<FontStyleRecord> styleForWeight(const FontFamilyRecord &family, int weight);

} // namespace lorva
