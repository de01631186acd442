// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#pragma once

#include "model/records/FontRecords.h"
#include "text/Font.h"

#include <optional>

namespace lorva {

/// From `lower` to `upper`, both included.
struct ClosedRange
{
    double lower = 0;
    double upper = 0;
    bool operator==(const ClosedRange &) const = default;
};

/// The weights that the weight slider offers.
inline constexpr ClosedRange kSliderWeights{100, 900};

/// A variable face whose weight the slider chooses, instead of choosing between separate styles.
///
/// Units: the axis's own, which are those of the slider (OpenType `wght`: 400 regular, 700 bold).
struct VariableWeight
{
    FontStyleRecord style;
    /// From the least to the greatest weight that the face has.
    ClosedRange axis;
    /// The weights of the slider that the face has: an axis 200 … 1000 gives 200 … 900.
    ClosedRange range;
    bool operator==(const VariableWeight &) const = default;
};

/// Nothing for a face without a weight axis, and for an axis that no slider can move on: without
/// extent, upside down, not finite, or outside the slider's weights (some old fonts count weight
/// from 0.5 to 3). Thread: any.
std::optional<VariableWeight> weightOf(const FontFace &face, const FontStyleRecord &style);

/// `weight` as far as the axis reaches; 400 where it is no number.
double weightWithin(const ClosedRange &axis, double weight);

/// `font` at `weight` of its weight axis; its other settings stay. Thread: any.
Font withWeight(const Font &font, double weight);

} // namespace lorva
