// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#pragma once

#include "text/HeldTable.h"

namespace lorva {

/// Of what strikes there are, the order in which they suit a wanted size: the smallest that is
/// large enough first, then the larger ones, then the smaller ones, largest first.
std::vector<size_t> bySuitability(const std::vector<double> &pixelsPerEm, double wanted);

} // namespace lorva
