// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#pragma once

#include "commands/ActivationRequest.h"
#include "commands/StyleActivations.h"
#include "install/InstallationOutcome.h"
#include "platform/AvailableFonts.h"

#include <memory>
#include <vector>

namespace lorva {

// Fonts of files that somebody opened, whether the library has them or not: switched on and off
// like those of the library, but judged by what the files are. Thread: any; looks at the disk, and
// lists the system's fonts.

/// Each family with those of its styles whose files were opened; every family of these files.
struct GivenFonts
{
    std::vector<FontFamilyRecord> families;
    /// What makes a file active that neither lies in a Fonts folder nor is registered; may be null.
    std::shared_ptr<const AvailableFonts> availableFonts;
};

/// What is known of them at one moment.
struct GivenActivations
{
    QHash<QString, FontFamilyActivation> activationByFamily;
    StyleActivations styles;
    /// Inactive, and cannot be switched on: another font has the file's name in the Fonts folder.
    QSet<FilePath> filesWithoutPlace;

    bool operator==(const GivenActivations &) const = default;
};

GivenActivations givenActivations(const GivenFonts &given, const ActivationBooks &books);

/// As planFor() for requests by the names of these families. Activation of files that have no place
/// is no part of the plan's families, but of its failures.
ActivationPlan planForGiven(const ActivationRequest &request, const GivenFonts &given,
                            const ActivationBooks &books);

} // namespace lorva
