// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#pragma once

#include "model/records/FontFamilySubset.h"

#include <QString>

#include <optional>

namespace lorva {

/// The family `step` places after (or, negative, before) the one of that name; nothing beyond the
/// ends, and nothing when the family is not among them.
std::optional<QString> detailNeighbour(const FontFamilySubset &families, const QString &name,
                                       int step);

} // namespace lorva
