// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#include "text/color/BitmapTables.h"

#include <algorithm>
#include <numeric>

namespace lorva {

std::vector<size_t> bySuitability(const std::vector<double> &pixelsPerEm, double wanted)
{
    std::vector<size_t> order(pixelsPerEm.size());
    std::iota(order.begin(), order.end(), size_t(0));
    std::stable_sort(order.begin(), order.end(), [&](size_t a, size_t b) {
        const double first = pixelsPerEm[a];
        const double second = pixelsPerEm[b];
        if ((first >= wanted) != (second >= wanted))
            return first >= wanted;
        return first >= wanted ? first < second : first > second;
    });
    return order;
}

} // namespace lorva
