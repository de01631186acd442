// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#pragma once

#include "install/FontInstallationService.h"
#include "model/LorvaAppModel.h"
#include "platform/linux/DesktopTrash.h"
#include "platform/linux/LinkFolderRegistrar.h"
#include "platform/MemoryPreferenceStore.h"
#include "support/FontBuilder.h"
#include "support/TestHome.h"
#include "support/Waiting.h"

#include <condition_variable>
#include <memory>
#include <mutex>

namespace lorva::test {

/// The files that a case lists, as the system's fonts.
class FolderFonts final : public AvailableFonts
{
public:
    /// Of the case's thread; scans see it as it was at the last publish().
    std::vector<FilePath> files;

    void publish()
    {
        const std::lock_guard lock(m_mutex);
        m_published = files;
    }
    std::vector<FilePath> fontFiles(const std::function<void(int)> &,
                                    std::stop_token stop) const override
    {
        std::unique_lock lock(m_mutex);
        m_isAsked = true;
        m_changed.wait(lock, std::move(stop), [this] { return !m_isHeld; });
        m_isAsked = false;
        return m_published;
    }
    /// Scans wait from now on, until letGo().
    void hold()
    {
        const std::lock_guard lock(m_mutex);
        m_isHeld = true;
    }
    /// A scan waits; it has been through the watched folders.
    bool isAsked() const
    {
        const std::lock_guard lock(m_mutex);
        return m_isAsked;
    }
    void letGo()
    {
        const std::lock_guard lock(m_mutex);
        m_isHeld = false;
        m_changed.notify_all();
    }

private:
    mutable std::mutex m_mutex;
    mutable std::condition_variable_any m_changed;
    bool m_isHeld = false;
    mutable bool m_isAsked = false;
    std::vector<FilePath> m_published;
};

/// The stand-in for faces that cannot be found is the first fixture font.
class FixtureSystemFont final : public SystemFontLocator
{
public:
    FilePath path;
    Location systemFont() const override { return {path, 0}; }
};

/// The folders that a case lists as watched.
class ListedFolders final : public WatchedFolderProvider
{
public:
    explicit ListedFolders(std::shared_ptr<const std::vector<FilePath>> folders)
        : m_folders(std::move(folders))
    {
    }
    std::vector<FilePath> resolvedFolders() override { return *m_folders; }

private:
    std::shared_ptr<const std::vector<FilePath>> m_folders;
};

/// A model over fonts built for the case: families "<prefix> 000", "<prefix> 001", …
struct LibraryFixture
{
    std::shared_ptr<FolderFonts> fonts = std::make_shared<FolderFonts>();
    /// The system's fonts instead of those, for new models; may be null.
    std::shared_ptr<AvailableFonts> otherFonts;
    std::shared_ptr<FixtureSystemFont> systemFont = std::make_shared<FixtureSystemFont>();
    std::unique_ptr<PreferenceStore> preferences = std::make_unique<MemoryPreferenceStore>();
    std::shared_ptr<std::vector<FilePath>> watchedFolders =
        std::make_shared<std::vector<FilePath>>();
    PlatformFolders folders = fixtureFolders();
    std::shared_ptr<FontRegistrar> registrar =
        std::make_shared<LinkFolderRegistrar>(folders.registeredLinks());
    /// Asked for each new model; null: the real service.
    std::function<std::unique_ptr<ActivationProvider>()> makeActivation;
    /// The service of the present model, unless makeActivation makes another one.
    FontInstallationService *installation = nullptr;
    /// Asked for each new model; null: folders are not watched.
    std::function<std::unique_ptr<FolderWatcher>()> makeWatcher;
    std::unique_ptr<LorvaAppModel> model;

    LibraryFixture()
    {
        systemFont->path = addFamily(QStringLiteral("Stand In"));
        fonts->files.clear();
        fonts->publish();
        makeModel({fonts, systemFont}, nullptr);
    }

    /// A new model, as of a new process, that keeps its caches in `folder`; over other preferences
    /// if some are given.
    void restart(const FilePath &folder, std::unique_ptr<PreferenceStore> otherPreferences = {})
    {
        model.reset();
        if (otherPreferences)
            preferences = std::move(otherPreferences);
        folders.applicationSupport = folder;
        FontLibraryService::Dependencies dependencies{otherFonts ? otherFonts : fonts, systemFont};
        dependencies.cacheFileURL = folder.child("parse-cache.json");
        makeModel(std::move(dependencies),
                  std::make_unique<CatalogCache>(folder.child("catalog.json")));
    }

    void makeModel(FontLibraryService::Dependencies dependencies,
                   std::unique_ptr<CatalogCache> catalogCache)
    {
        model = std::make_unique<LorvaAppModel>(LorvaAppModel::Dependencies{
            std::make_unique<FontLibraryService>(std::move(dependencies)),
            makeActivation ? makeActivation() : makeInstallation(), *preferences,
            std::make_unique<ListedFolders>(watchedFolders), std::move(catalogCache), folders,
            makeWatcher ? makeWatcher() : nullptr, registrar});
    }

    std::unique_ptr<ActivationProvider> makeInstallation()
    {
        auto made = std::make_unique<FontInstallationService>(
            std::make_unique<FontInstallationStore>(*preferences),
            FontInstallationService::Dependencies{folders, registrar,
                                                  std::make_shared<DesktopTrash>()});
        installation = made.get();
        return made;
    }

    /// The built fonts are the system's.
    static PlatformFolders fixtureFolders()
    {
        const TestHome &home = TestHome::instance();
        return {home.home(),
                home.userFonts(),
                home.root().child("all-users"),
                {home.root().child("library"), home.systemFonts()},
                home.root().child("support")};
    }

    FilePath addFamily(const QString &name, const std::u32string &characters = U"Aa 123")
    {
        const QByteArray fileName = name.toUtf8() + ".ttf";
        const FilePath file = writeFile(TestHome::instance().root().child("library"), fileName,
                                        FontBuilder(name)
                                            .postScriptName(QString(name).remove(u' '))
                                            .codePoints(characters)
                                            .build());
        fonts->files.push_back(file);
        fonts->publish();
        return file;
    }

    void addFamilies(const QString &prefix, int count)
    {
        for (int i = 0; i < count; ++i)
            addFamily(QStringLiteral("%1 %2").arg(prefix).arg(i, 3, 10, QChar(u'0')));
    }

    bool load()
    {
        fonts->publish();
        model->loadCatalog();
        return waitUntil([this] { return !model->isLoading(); });
    }

    QStringList visibleNames()
    {
        QStringList names;
        for (const FontFamilyRecord &family : model->visibleFamilies())
            names.append(family.familyName);
        return names;
    }
};

} // namespace lorva::test
