// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#pragma once

#include "cli/Findings.h"
#include "cli/PreferenceLook.h"
#include "platform/PlatformFolders.h"

#include <QSet>

#include <optional>
#include <span>

namespace lorva::cli {

/// What the checks look at, read once.
struct Examined
{
    PlatformFolders folders;
    PreferenceLook preferences;
    /// Nothing without a catalog that can be read.
    std::optional<QSet<QString>> catalogFamilies;
};

struct DoctorCheck
{
    /// For programs; stays the same from version to version.
    std::string_view name;
    /// Adds what it finds, in any state. Changes nothing on the machine.
    void (*run)(Examined &examined, Findings &findings);
};

/// All there are, in the order in which they are run and shown. What comes to Lorva adds its own.
std::span<const DoctorCheck> doctorChecks();

} // namespace lorva::cli
