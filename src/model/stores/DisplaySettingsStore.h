// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#pragma once

#include "model/records/BrowserSource.h"
#include "model/records/DisplayRecords.h"

#include <functional>
#include <map>
#include <optional>

namespace lorva {

class PreferenceStore;

/// The key of what all sources but collections share.
inline const QString kSharedDisplaySettingsKey = QStringLiteral("allFonts");
/// "collection::" and the id for a collection; every other source shares "allFonts".
QString displaySettingsKey(const BrowserSource &source);

/// Keeps the display settings of each source, as one JSON object.
///
/// Holds a reference to the preference store, which outlives it, and no cache. Thread: main.
class DisplaySettingsStore
{
public:
    explicit DisplaySettingsStore(
        PreferenceStore &defaults,
        QString storeKey = QStringLiteral("vantrel.merid.displaySettings"));

    std::optional<SourceDisplaySettings> settings(const QString &sourceKey) const;
    std::map<QString, SourceDisplaySettings> all() const;
    void set(const SourceDisplaySettings &settings, const QString &sourceKey);
    /// Changes the entry as it is stored now, empty if there is none, in one transaction, and gives
    /// all entries as they are then: with large logos another read takes its time. `change` may run
    /// again later, so it owns what it captures.
    std::map<QString, SourceDisplaySettings> update(
        const QString &sourceKey, std::function<void(SourceDisplaySettings &)> change);

private:
    PreferenceStore &m_defaults;
    const QString m_storeKey;
};

} // namespace lorva
