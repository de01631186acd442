// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#include "model/stores/LogoStore.h"

#include "model/records/RecordsJson.h"
#include "model/stores/DisplaySettingsStore.h"
#include "model/stores/StoredValue.h"

namespace lorva {

namespace {

/// Ratios above this are of the time when they were relative to something else.
constexpr double kLargestRatio = 1.0;
constexpr double kRatioInstead = 0.15;

} // namespace

LogoStore::LogoStore(PreferenceStore &defaults, QString logoKey)
    : m_defaults(defaults)
    , m_logoKey(std::move(logoKey))
{
}

std::optional<LogoConfiguration> LogoStore::load() const
{
    return storedJson<LogoConfiguration>(m_defaults, m_logoKey);
}

void LogoStore::migrate(DisplaySettingsStore &displaySettings)
{
    if (!load())
        return;
    // Copies of the stores, because a change that has to wait may run after them.
    m_defaults.inTransaction([store = *this, displaySettings]() mutable {
        const std::optional<LogoConfiguration> logo = store.load();
        if (!logo)
            return;
        displaySettings.update(kSharedDisplaySettingsKey, [logo](SourceDisplaySettings &settings) {
            settings.logoImageData = logo->imageData;
            settings.logoSizeRatio =
                logo->sizeRatio > kLargestRatio ? kRatioInstead : logo->sizeRatio;
            settings.logoSpacing = logo->spacing;
        });
        store.m_defaults.remove(store.m_logoKey);
    });
}

} // namespace lorva
