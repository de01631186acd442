// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#pragma once

namespace lorva {

// The sizes that the menu's Larger and Smaller go through, in points: those that designers set type
// in. From a size between two of them the next one is taken; beyond the ends nothing changes.

double largerSpecimenSize(double pointSize);
double smallerSpecimenSize(double pointSize);

} // namespace lorva
