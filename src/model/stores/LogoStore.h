// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#pragma once

#include "model/records/DisplayRecords.h"

#include <optional>

namespace lorva {

class DisplaySettingsStore;
class PreferenceStore;

/// The one logo for everything that earlier versions kept.
///
/// Holds a reference to the preference store, which outlives it, and no cache. Thread: main.
class LogoStore
{
public:
    explicit LogoStore(PreferenceStore &defaults,
                       QString logoKey = QStringLiteral("vantrel.merid.logo"));

    std::optional<LogoConfiguration> load() const;
    /// Moves the logo into the display settings that all sources share, and forgets it here; a size
    /// ratio above 1, which meant something else, becomes 0.15. One transaction. Does nothing
    /// without a logo that decodes.
    void migrate(DisplaySettingsStore &displaySettings);

private:
    PreferenceStore &m_defaults;
    const QString m_logoKey;
};

} // namespace lorva
