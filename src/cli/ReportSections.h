// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#pragma once

#include "cli/DoctorChecks.h"
#include "cli/Report.h"

namespace lorva::cli {

/// Of Lorva, what it stands on, and the system.
ReportSection versionSection();
/// The desktop, the session, the language and the machine.
ReportSection environmentSection();
/// Fonts, what is switched on, and the files that we keep. Scans.
std::vector<ReportSection> librarySections(const Examined &examined,
                                           ReportDuration readingPreferences);
/// How many findings of each kind the doctor has.
ReportSection doctorSection(Examined &examined);
/// What the user chose, as far as it names nothing.
std::vector<ReportSection> settingsSections(const PreferenceLook &preferences);

} // namespace lorva::cli
