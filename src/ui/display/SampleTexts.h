// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#pragma once

#include <span>

namespace lorva {

/// Sample texts to choose from, of one script.
struct SampleTextGroup
{
    /// For people; goes through translation (context "SampleTexts").
    const char *title;
    /// UTF-16, as they are shown.
    std::span<const char16_t *const> texts;
};

std::span<const SampleTextGroup> sampleTextGroups();

} // namespace lorva
