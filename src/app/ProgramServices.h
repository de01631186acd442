// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#pragma once

#include "app/LaunchOptions.h"
#include "model/LorvaAppModel.h"
#include "platform/PreferenceStore.h"
#include "platform/UpdaterController.h"
#include "ui/onboarding/OnboardingOverlayController.h"

#include <functional>
#include <memory>

namespace lorva {

/// Parts of the program that another build, or a test, may bring in its own version.
struct ProgramParts
{
    std::unique_ptr<UpdaterController> updaterController =
        std::make_unique<AbsentUpdaterController>();
    /// Called when the welcome is to be shown.
    std::function<std::unique_ptr<OnboardingOverlayController>(LorvaAppModel &model)>
        makeOnboarding = [](LorvaAppModel &) { return std::make_unique<AbsentOnboarding>(); };
};

/// Those that users run.
ProgramParts programParts();

/// The user's preferences. A picture gets what the user has organised and switched on, and nothing
/// of how their window looks, and changes neither.
std::unique_ptr<PreferenceStore> makePreferences(const LaunchOptions &options,
                                                 const PlatformFolders &folders);
/// The model over the services of this desktop. `preferences` outlives it.
std::unique_ptr<LorvaAppModel> makeModel(const LaunchOptions &options,
                                         const PlatformFolders &folders,
                                         PreferenceStore &preferences,
                                         std::unique_ptr<CatalogCache> catalogCache);

} // namespace lorva
