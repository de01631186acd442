// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#pragma once

#include "model/records/FontRecords.h"

#include <span>

namespace lorva {

/// The style that stands for a family: the one labelled "Regular" (ignoring case and diacritics),
/// else the first upright one of weight 400, else the first upright one, else the first. Null for
/// none.
const FontStyleRecord *representativeStyle(std::span<const FontStyleRecord> styles);

} // namespace lorva
