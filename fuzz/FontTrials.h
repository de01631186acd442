// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#pragma once

#include "text/FontFace.h"

namespace lorva {

/// What the type engine can do with a face, in parts, so that one input takes milliseconds.
using FontTrial = void (*)(const std::shared_ptr<const FontFace> &face);
std::span<const FontTrial> fontTrials();

} // namespace lorva
