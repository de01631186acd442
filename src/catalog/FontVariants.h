// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#pragma once

#include "model/records/FontRecords.h"

namespace lorva {

/// The family's styles by the width and optical-size words of their labels, each variant with the
/// styles in the order for people: by weight, upright before italic, then label. A family without
/// such words has one variant, "Regular". Never empty for a family with styles. Thread: any.
///
/// A variant is called by those words as its labels write them: "Display Semi Condensed". Styles
/// without any make "Regular", which stands first; the others follow from narrow to wide, then from
/// small sizes to large ones, then by name.
std::vector<FontVariant> variantsOf(const FontFamilyRecord &family);

/// The order of styles for people: by weight, upright before italic, then label.
void sortStyles(std::vector<FontStyleRecord> &styles);

} // namespace lorva
