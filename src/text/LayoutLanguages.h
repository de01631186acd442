// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#pragma once

#include "text/FaceInformation.h"
#include "text/TableView.h"

namespace lorva {

/// The scripts of OpenType `GSUB` and their language systems, then those that only `GPOS` has;
/// within a script its default comes first. At most kMaxLayoutLanguages. Thread: any.
std::vector<LayoutLanguage> listLayoutLanguages(const TableView &substitution,
                                                const TableView &positioning);

} // namespace lorva
