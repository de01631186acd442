// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#include "model/stores/DisplaySettingsStore.h"

#include "model/records/RecordsJson.h"
#include "model/stores/StoredValue.h"

namespace lorva {

namespace {

using SettingsByKey = std::map<QString, SourceDisplaySettings>;

/// Says whether it has changed anything.
using Change = std::function<bool(SettingsByKey &)>;

/// Gives all settings as they are then.
SettingsByKey changeStored(PreferenceStore &defaults, const QString &storeKey, Change change)
{
    const auto after = std::make_shared<SettingsByKey>();
    // A later run has nobody to tell, and does not hold the logos for long.
    const std::weak_ptr<SettingsByKey> told = after;
    defaults.inTransaction([&defaults, storeKey, change = std::move(change), told] {
        std::optional<SettingsByKey> stored = storedJson<SettingsByKey>(defaults, storeKey);
        const StoredState present = storedState(stored.has_value());
        SettingsByKey settings = std::move(stored).value_or(SettingsByKey());
        if (change(settings))
            storeJson(defaults, storeKey, settings, present);
        if (const auto out = told.lock())
            *out = std::move(settings);
    });
    return std::move(*after);
}

bool setEntry(SettingsByKey &stored, const QString &sourceKey,
              const SourceDisplaySettings &settings)
{
    const auto [entry, isNew] = stored.try_emplace(sourceKey, settings);
    if (isNew || entry->second == settings)
        return isNew;
    entry->second = settings;
    return true;
}

/// A change of nothing adds no entry.
bool updateEntry(SettingsByKey &stored, const QString &sourceKey,
                 const std::function<void(SourceDisplaySettings &)> &change)
{
    const auto found = stored.find(sourceKey);
    const SourceDisplaySettings before =
        found == stored.end() ? SourceDisplaySettings() : found->second;
    SourceDisplaySettings after = before;
    change(after);
    return after != before && setEntry(stored, sourceKey, after);
}

} // namespace

QString displaySettingsKey(const BrowserSource &source)
{
    if (source.kind() == BrowserSource::Kind::collection)
        return QStringLiteral("collection::") + source.id();
    return kSharedDisplaySettingsKey;
}

DisplaySettingsStore::DisplaySettingsStore(PreferenceStore &defaults, QString storeKey)
    : m_defaults(defaults)
    , m_storeKey(std::move(storeKey))
{
}

std::optional<SourceDisplaySettings> DisplaySettingsStore::settings(const QString &sourceKey) const
{
    const SettingsByKey stored = all();
    const auto found = stored.find(sourceKey);
    return found == stored.end() ? std::nullopt : std::optional(found->second);
}

std::map<QString, SourceDisplaySettings> DisplaySettingsStore::all() const
{
    return storedJson<SettingsByKey>(m_defaults, m_storeKey).value_or(SettingsByKey());
}

void DisplaySettingsStore::set(const SourceDisplaySettings &settings, const QString &sourceKey)
{
    changeStored(m_defaults, m_storeKey, [settings, sourceKey](SettingsByKey &stored) {
        return setEntry(stored, sourceKey, settings);
    });
}

SettingsByKey DisplaySettingsStore::update(const QString &sourceKey,
                                           std::function<void(SourceDisplaySettings &)> change)
{
    return changeStored(m_defaults, m_storeKey,
                        [sourceKey, change = std::move(change)](SettingsByKey &stored) {
                            return updateEntry(stored, sourceKey, change);
                        });
}

} // namespace lorva
