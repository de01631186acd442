// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#pragma once

#include "model/records/FontRecords.h"

#include <memory>
#include <vector>

namespace lorva {

/// Families as an immutable list that the model, views and workers share. Never null.
using FontFamilyList = std::shared_ptr<const std::vector<FontFamilyRecord>>;

/// The list of `families`; a large one is freed on a worker, whoever lets go of it last, because
/// that takes longer than a frame. Thread: any.
FontFamilyList makeFamilyList(std::vector<FontFamilyRecord> families = {});

} // namespace lorva
