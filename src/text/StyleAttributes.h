// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#pragma once

#include "text/FaceInformation.h"
#include "text/names/NameTable.h"

namespace lorva {

/// The axis values that OpenType `STAT` names (formats 1 to 3; a name for values of several axes
/// together, format 4, belongs to no axis), in the table's order, at most kMaxNamedAxisValues.
/// Ranges that the table leaves open end where the axis of `fvar` does. Thread: any.
std::vector<NamedAxisValue> listAxisValues(const TableView &stat, const NameTable &names,
                                           std::span<const VariationAxis> axes);

} // namespace lorva
