// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#pragma once

#include "cli/Specimen.h"

namespace lorva::cli {

/// The font that a request asks for. Settings that the face cannot follow to the letter add a line
/// to `notes`; what it does not have at all fails.
Result<Font> specimenFont(const SpecimenRequest &request, std::vector<QString> &notes);

} // namespace lorva::cli
