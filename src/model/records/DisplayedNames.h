// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#pragma once

#include "model/records/GroupingRecords.h"

namespace lorva {

/// What people are shown instead of the stored name. The default style categories are stored with
/// English names, whatever language stored them, and shown in the user's; all else is called what
/// its maker called it. Thread: any.
QString displayedName(const FontStyleCategoryRecord &category);
QString displayedName(const FontCollectionRecord &collection);
QString displayedName(const FoundryCollectionRecord &foundry);

} // namespace lorva
