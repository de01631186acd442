// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#pragma once

#include "cli/PreferenceKeys.h"

namespace lorva::cli {

/// Something that is stored, but not in a form that can be read: it counts as
/// absent, and what stands there is kept aside when it is replaced.
struct UnreadablePart
{
    QString key;
    OrganizationPart part = OrganizationPart::none;
    QString reason;
};

/// Those of what the user sorted.
std::vector<UnreadablePart> unreadableParts(const PreferenceStore &preferences);
std::vector<UnreadablePart> unreadableParts(const PreferenceStore &preferences,
                                            std::initializer_list<OrganizationPart> parts);

/// Those that a change replaces: `edit`, and display settings if it holds some.
std::vector<UnreadablePart> replacedParts(const std::vector<UnreadablePart> &parts,
                                          const OrganizationEdit &edit,
                                          bool hasDisplaySettings = false);

/// "the preference KEY cannot be read (REASON)".
QString textOf(const UnreadablePart &part);
/// That, and where `preferences` keep what stood there; once it has been replaced.
QString textOfKept(const UnreadablePart &part, const PreferenceStore &preferences);

} // namespace lorva::cli
