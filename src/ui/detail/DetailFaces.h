// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#pragma once

#include "catalog/VariableWeight.h"
#include "text/FontFeatures.h"
#include "ui/detail/FontDetailState.h"

#include <optional>

namespace lorva {

// Which face the detail view shows, and at which settings. Thread: any.

/// The chosen style if the variant has it, else the one that the weight control stands for; without
/// a weight the one that the family's card shows, if it is of the variant. Null for a variant
/// without styles.
const FontStyleRecord *shownStyle(const FontFamilyRecord &family, const FontVariant &variant,
                                  const QString &chosenStyleID, int weight);

/// The variant of that label, else the first one; null without any.
const FontVariant *variantOf(const FontDetailState &state, const QString &label);

/// Both stand for one face, whatever the size and the axis values: the same style of the same
/// family, and the file that was read for `shown` has not changed since. May look at the file.
bool isSameFace(const DisplayedFace &shown, const DisplayedFace &wanted);

/// `base` with these features (nothing: what the font does by itself), and axis values over its
/// own.
Font withSettings(const Font &base, const std::optional<std::vector<FeatureSetting>> &features,
                  const std::vector<VariationSetting> &axes);

/// Takes out the axes that the weight control has moved since: they are the weight control's again.
void dropOverruled(std::vector<VariationSetting> &axes, const Font &before, const Font &after);

} // namespace lorva
