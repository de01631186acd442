// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT

#include "app/SpecimenSizes.h"

#include <algorithm>
#include <iterator>

namespace lorva {

namespace {

constexpr double kSizes[]{12, 14, 16, 18,  21,  24,  28,  32,  36,  42,  48,  54, 60,
                          72, 84, 96, 112, 128, 144, 160, 192, 240, 288, 344, 400};

} // namespace

double largerSpecimenSize(double pointSize)
{
    const auto *const next = std::ranges::upper_bound(kSizes, pointSize);
    return next == std::end(kSizes) ? pointSize : *next;
}

double smallerSpecimenSize(double pointSize)
{
    const auto *const next = std::ranges::lower_bound(kSizes, pointSize);
    return next == std::begin(kSizes) ? pointSize : *std::prev(next);
}

} // namespace lorva
