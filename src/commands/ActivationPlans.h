// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#pragma once

#include "catalog/CatalogTypes.h"
#include "install/ActivationBooks.h"

namespace lorva {

// Which families take part in a command, and which of their files. They are given with those of
// their styles alone whose files are to be switched; families without any such file are left out.
// Thread: any; looks at the disk where ActivationBooks does.

/// Not active, or active in part under the user's control.
bool takesPartInActivation(const std::optional<FamilyActivationState> &state);
/// Active under the user's control.
bool takesPartInDeactivation(const std::optional<FamilyActivationState> &state);

std::vector<FontFamilyRecord> familiesToActivate(const std::vector<FontFamilyRecord> &asked,
                                                 const ActivationBooks &books);
/// Only what is missing of families that are active in part.
std::vector<FontFamilyRecord> familiesToComplete(const std::vector<FontFamilyRecord> &asked,
                                                 const ActivationBooks &books);
std::vector<FontFamilyRecord> familiesToDeactivate(const std::vector<FontFamilyRecord> &asked,
                                                   const ActivationBooks &books);

/// Which commands make sense for some families.
struct ActivationOffer
{
    bool activates = false;
    /// They are active in part; the rest can follow.
    bool activatesRemaining = false;
    bool deactivates = false;

    /// Takes in one more family.
    void add(const std::optional<FontFamilyActivation> &activation);
    bool operator==(const ActivationOffer &) const = default;
};

} // namespace lorva
