// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT

#include "ui/discover/DiscoverFoundry.h"

namespace lorva {

const std::vector<DiscoverFoundry> &discoverFoundries()
{
    static const std::vector<DiscoverFoundry> foundries;
    return foundries;
}

} // namespace lorva
