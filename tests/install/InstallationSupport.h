// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#pragma once

#include "install/ActivationHistory.h"
#include "install/FontInstallationService.h"
#include "install/InstallationJournal.h"
#include "install/Reconciliation.h"
#include "platform/linux/DesktopTrash.h"
#include "platform/linux/LinkFolderRegistrar.h"
#include "platform/SqlitePreferenceStore.h"
#include "support/Waiting.h"

#include <QFile>

namespace lorva::test {

/// A family of these files, one style each.
inline FontFamilyRecord familyOf(const QString &name, const std::vector<FilePath> &files)
{
    FontFamilyRecord family;
    family.familyName = name;
    for (const FilePath &file : files) {
        FontStyleRecord style;
        style.postScriptName = name + QString::fromUtf8(file.fileName());
        style.fileURL = file;
        family.styles.push_back(std::move(style));
    }
    return family;
}

/// The folders of a user whose home is `root`/home, with the fonts of all users in
/// `root`/all-users.
inline PlatformFolders foldersBelow(const FilePath &root)
{
    PlatformFolders folders;
    folders.home = root.child("home");
    const FilePath data = folders.home.child(".local").child("share");
    folders.userFonts = data.child("fonts");
    folders.allUsersFonts = root.child("all-users");
    folders.systemFonts = {root.child("system-fonts")};
    folders.applicationSupport = data.child("Lorva");
    return folders;
}

/// One process that switches fonts on and off.
struct InstallingProcess
{
    using Dependencies = FontInstallationService::Dependencies;
    /// `change` may put others in the place of the real ones.
    explicit InstallingProcess(PlatformFolders given,
                               const std::function<void(Dependencies &)> &change = {})
        : folders(std::move(given))
        , preferences(folders.applicationSupport)
        , registrar(std::make_shared<LinkFolderRegistrar>(folders.registeredLinks()))
        , service(std::make_unique<FontInstallationStore>(preferences), dependencies(change))
    {
    }
    Dependencies dependencies(const std::function<void(Dependencies &)> &change) const
    {
        Dependencies real{folders, registrar, std::make_shared<DesktopTrash>()};
        if (change)
            change(real);
        return real;
    }

    /// Runs `start(done)` to its end. Without one, nothing: a case that waits in vain fails.
    template <class Outcome = InstallationOutcome, class Start>
    Outcome run(const Start &start)
    {
        std::optional<Outcome> outcome;
        start([&outcome](Outcome ended) { outcome = std::move(ended); });
        const bool hasEnded = waitUntil([&] { return outcome.has_value(); });
        return hasEnded ? *std::move(outcome) : Outcome();
    }
    InstallationOutcome copy(const std::vector<FontFamilyRecord> &families)
    {
        return run([&](auto done) { service.activateByCopying(families, done); });
    }
    InstallationOutcome registerInPlace(const std::vector<FontFamilyRecord> &families)
    {
        return run([&](auto done) { service.activateInPlace(families, done); });
    }
    InstallationOutcome deactivate(const std::vector<FontFamilyRecord> &families,
                                   const std::optional<FilePath> &destination = {})
    {
        return run([&](auto done) { service.deactivate(families, destination, done); });
    }
    InstallationOutcome restore(const WithdrawnFonts &withdrawn, const QStringList &families)
    {
        return run([&](auto done) { service.restore(withdrawn, families, done); });
    }
    bool reconcile(const std::vector<FontFamilyRecord> &families)
    {
        bool hasEnded = false;
        service.reconcile(std::make_shared<const std::vector<FontFamilyRecord>>(families),
                          [&hasEnded] { hasEnded = true; });
        return waitUntil([&] { return hasEnded; });
    }
    void watch(const QSet<FilePath> &files) { service.setWatchedFontURLs(files); }
    std::optional<FamilyActivationState> state(const FontFamilyRecord &family) const
    {
        return service.books()->activationState(family);
    }
    std::vector<ActivationHistoryEntry> history() const
    {
        return ActivationHistory(folders.activationHistory()).read().value();
    }
    FontInstallationStore store() { return FontInstallationStore(preferences); }

    PlatformFolders folders;
    SqlitePreferenceStore preferences;
    std::shared_ptr<LinkFolderRegistrar> registrar;
    FontInstallationService service;
};

} // namespace lorva::test
