// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#include "model/stores/DisplaySettingsStore.h"

#include "model/records/RecordsJson.h"
#include "model/stores/StoredValue.h"

namespace lorva {

namespace {

using SettingsByKey = std::map<QString, SourceDisplaySettings>;

SettingsByKey storedSettings(const PreferenceStore &defaults, const QString &storeKey)
{
    return storedJson<SettingsByKey>(defaults, storeKey).value_or(SettingsByKey());
}

void changeStored(PreferenceStore &defaults, const QString &storeKey,
                  const std::function<void(SettingsByKey &)> &change)
{
    defaults.inTransaction([&defaults, storeKey, change] {
        const SettingsByKey before = storedSettings(defaults, storeKey);
        SettingsByKey after = before;
        change(after);
        if (after != before)
            storeJson(defaults, storeKey, after);
    });
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
    return storedSettings(m_defaults, m_storeKey);
}

void DisplaySettingsStore::set(const SourceDisplaySettings &settings, const QString &sourceKey)
{
    changeStored(m_defaults, m_storeKey,
                 [settings, sourceKey](SettingsByKey &stored) { stored[sourceKey] = settings; });
}

void DisplaySettingsStore::update(const QString &sourceKey,
                                  std::function<void(SourceDisplaySettings &)> change)
{
    changeStored(m_defaults, m_storeKey,
                 [sourceKey, change = std::move(change)](SettingsByKey &stored) {
                     const auto found = stored.find(sourceKey);
                     const SourceDisplaySettings before =
                         found == stored.end() ? SourceDisplaySettings() : found->second;
                     SourceDisplaySettings after = before;
                     change(after);
                     if (after != before)
                         stored[sourceKey] = std::move(after);
                 });
}

} // namespace lorva
