// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#pragma once

#include "catalog/CatalogTypes.h"
#include "install/ActivationBooks.h"
#include "install/InstallationOutcome.h"

#include <QStringList>

#include <memory>
#include <optional>
#include <vector>

namespace lorva {

class FontLibraryService;
struct GivenFonts;

/// What a command was asked for: families by their names, or the file of one style.
struct ActivationRequest
{
    enum class Kind { activate, complete, deactivate };

    Kind kind = Kind::activate;
    QStringList names;
    /// Only this one's file.
    std::optional<FontStyleRecord> style;
    /// What the names stand for, in place of the library's families; null: those.
    std::shared_ptr<const GivenFonts> given = nullptr;

    /// The same for these families alone.
    ActivationRequest about(const QStringList &kept) const { return {kind, kept, style, given}; }
    /// What to call what was asked for, each by itself: the families, or "Inter Bold".
    QStringList subjects() const;
};

/// What a request comes to on the disk as it is now.
struct ActivationPlan
{
    /// With those of their styles alone whose files are to be switched.
    std::vector<FontFamilyRecord> families;
    /// Families that share their files.
    QStringList others;
    /// Nothing that a de-activation throws away is the only copy.
    bool areOriginsKnown = true;
    /// Files that cannot be switched as it is, and why; the rest can.
    InstallationFailures failures = {};

    QStringList names() const;
};

/// Unknown names are left out. Thread: any; looks at the disk where ActivationBooks does.
ActivationPlan planFor(const ActivationRequest &request,
                       const std::vector<FontFamilyRecord> &catalog, const ActivationBooks &books,
                       const FontLibraryService &library);
/// The same without the families that share their files.
ActivationPlan planAmong(const ActivationRequest &request,
                         const std::vector<FontFamilyRecord> &catalog,
                         const ActivationBooks &books);

} // namespace lorva
