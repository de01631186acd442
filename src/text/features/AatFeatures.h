// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#pragma once

#include "text/features/FeatureTables.h"

namespace lorva {

/// The pairs of a `feat` table in its order, at most kMaxAatSelectors; none when there is no table.
/// What is on by itself is told by the table for exclusive types, else by the chains of `morx` or
/// `mort` that shape with it. Thread: any.
std::vector<FontFeature> aatFeatures(const FeatureTables &tables, const FaceTexts &texts);

} // namespace lorva
