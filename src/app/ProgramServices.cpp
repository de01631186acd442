// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT

#include "app/ProgramServices.h"

#include "catalog/CatalogCache.h"
#include "install/FontInstallationService.h"
#include "platform/FeedUpdaterController.h"
#include "platform/linux/DesktopTrash.h"
#include "platform/linux/FontconfigAvailableFonts.h"
#include "platform/linux/FontconfigSystemFont.h"
#include "platform/linux/InotifyFolderWatcher.h"
#include "platform/linux/LinkFolderRegistrar.h"
#include "platform/MemoryPreferenceStore.h"
#include "platform/SqlitePreferenceStore.h"
#include "ui/onboarding/FallingLettersOnboarding.h"
#include "ui/preview/FontResolver.h"

#include <unistd.h>

namespace lorva {

namespace {

/// What a picture takes from the user's own preferences, by kind of value: the library as it is
/// sorted and switched.
void copyOrganization(const PreferenceStore &from, PreferenceStore &to)
{
    for (const char *key : {"vantrel.merid.collections", "vantrel.merid.styles",
                            "vantrel.merid.watchedFolders", "vantrel.merid.fontInstallations"})
        if (const auto value = from.data(QLatin1StringView(key)))
            to.setData(QLatin1StringView(key), *value);
    for (const char *key :
         {"vantrel.merid.stylesClassified.v3", "vantrel.merid.stylesClassified.v2",
          "vantrel.merid.hideQuizPromoInSidebar"})
        if (const auto value = from.boolean(QLatin1StringView(key)))
            to.setBoolean(QLatin1StringView(key), *value);
    for (const char *key :
         {"vantrel.merid.dismissedFoundries", "vantrel.merid.lorvaRegisteredURLs"})
        if (const auto value = from.stringArray(QLatin1StringView(key)))
            to.setStringArray(QLatin1StringView(key), *value);
    for (const char *key : {"vantrel.merid.foundryOverrides", "vantrel.merid.foundryNameOverrides",
                            "vantrel.merid.fontOrigins"})
        if (const auto value = from.stringDictionary(QLatin1StringView(key)))
            to.setStringDictionary(QLatin1StringView(key), *value);
}

std::unique_ptr<PreferenceStore> makePicturePreferences(const PlatformFolders &folders)
{
    auto preferences = std::make_unique<MemoryPreferenceStore>();
    // Opening a store makes its file; a picture leaves no trace.
    if (::access(folders.applicationSupport.child("preferences.sqlite").c_str(), R_OK) == 0)
        copyOrganization(SqlitePreferenceStore(folders.applicationSupport), *preferences);
    return preferences;
}

/// Nobody waits for news in a picture.
std::unique_ptr<FolderWatcher> makeFolderWatcher(const LaunchOptions &options)
{
    return options.screenshot ? nullptr : std::make_unique<InotifyFolderWatcher>();
}

std::unique_ptr<FontLibraryService> makeLibraryService(const LaunchOptions &options,
                                                       const PlatformFolders &folders)
{
    FontLibraryService::Dependencies dependencies{
        std::make_shared<FontconfigAvailableFonts>(folders.registeredLinks()),
        std::make_shared<FontconfigSystemFont>()};
    dependencies.cacheFileURL = folders.parseCache();
    // A picture leaves the user's files as they are.
    dependencies.savesCache = !options.screenshot;
    return std::make_unique<FontLibraryService>(std::move(dependencies));
}

} // namespace

ProgramParts programParts()
{
    ProgramParts parts;
    parts.updaterController = std::make_unique<FeedUpdaterController>(
        builtInReleaseFeed(), QStringLiteral(LORVA_VERSION));
    parts.makeOnboarding = [](LorvaAppModel &model) {
        return std::make_unique<FallingLettersOnboarding>(
            model, makeFontResolver(model.fontLibraryService()));
    };
    return parts;
}

std::unique_ptr<PreferenceStore> makePreferences(const LaunchOptions &options,
                                                 const PlatformFolders &folders)
{
    if (options.screenshot)
        return makePicturePreferences(folders);
    return std::make_unique<SqlitePreferenceStore>(folders.applicationSupport);
}

std::unique_ptr<LorvaAppModel> makeModel(const LaunchOptions &options,
                                         const PlatformFolders &folders,
                                         PreferenceStore &preferences,
                                         std::unique_ptr<CatalogCache> catalogCache)
{
    const auto registrar = std::make_shared<LinkFolderRegistrar>(folders.registeredLinks());
    FontInstallationService::Dependencies installation{folders, registrar,
                                                       std::make_shared<DesktopTrash>()};
    installation.reconcilesBooks = !options.screenshot;
    return std::make_unique<LorvaAppModel>(LorvaAppModel::Dependencies{
        makeLibraryService(options, folders),
        std::make_unique<FontInstallationService>(
            std::make_unique<FontInstallationStore>(preferences), std::move(installation)),
        preferences, std::make_unique<GivenFolders>(options.folders), std::move(catalogCache),
        folders, makeFolderWatcher(options), registrar});
}

} // namespace lorva
