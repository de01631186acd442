// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#include "cli/ActivationChecks.h"

#include "cli/Texts.h"
#include "cli/Words.h"
#include "install/FontPlaces.h"
#include "install/Reconciliation.h"
#include "install/WatchedFolderStore.h"
#include "platform/FileDescriptor.h"
#include "platform/linux/LinkFolderRegistrar.h"
#include "platform/linux/MountTable.h"
#include "platform/MemoryPreferenceStore.h"

#include <algorithm>
#include <cerrno>

#include <fcntl.h>
#include <sys/file.h>
#include <unistd.h>

namespace lorva::cli {

namespace {

using State = Finding::State;

/// The preferences that were looked at, for the stores that read them.
class LookedAt
{
public:
    explicit LookedAt(const PreferenceLook &look)
    {
        if (!look.rows)
            return;
        for (const auto &[key, row] : *look.rows) {
            if (const std::optional<PreferenceValue> value = preferenceOfRow(row))
                std::visit([&, &name = key](const auto &held) { set(name, held); }, *value);
        }
    }

    PreferenceStore &preferences() { return m_preferences; }

private:
    void set(const QString &key, const QByteArray &value) { m_preferences.setData(key, value); }
    void set(const QString &key, const QString &value) { m_preferences.setString(key, value); }
    void set(const QString &key, const QStringList &value)
    {
        m_preferences.setStringArray(key, value);
    }
    void set(const QString &key, const QHash<QString, QString> &value)
    {
        m_preferences.setStringDictionary(key, value);
    }
    void set(const QString &key, bool value) { m_preferences.setBoolean(key, value); }

    MemoryPreferenceStore m_preferences;
};

std::shared_ptr<const ActivationBooks> booksOf(const Examined &examined)
{
    LookedAt looked(examined.preferences);
    const FontInstallationStore store(looked.preferences());
    ActivationBooks::Contents contents;
    contents.folders = examined.folders;
    contents.fontsFolder = listFontsFolder(examined.folders.userFonts);
    contents.registeredURLs = store.registeredURLs();
    contents.methods = store.methods();
    contents.origins = store.origins();
    return std::make_shared<ActivationBooks>(std::move(contents));
}

/// One line for each file that reconcile would deal with, and what it would do.
void addFiles(const std::vector<FilePath> &files, State state, const QString &text,
              Findings &findings)
{
    for (const FilePath &file : files)
        findings.push_back({state, file.displayText(), text});
}

void addDiskFindings(const DiskFindings &found, Findings &findings)
{
    addFiles(found.lostRegistrations, State::wrong,
             Texts::tr("registered, but its link is missing, so that no program sees it; the "
                       "next activation makes it again"),
             findings);
    addFiles(found.goneFiles, State::note,
             Texts::tr("registered, but gone; its registration will be withdrawn"), findings);
    addFiles(found.unknownRegistrations, State::note,
             Texts::tr("active by a link that the books do not know; they will take it in"),
             findings);
    addFiles(found.brokenRegistrations, State::note,
             Texts::tr("gone, and the books do not know its link, which will be removed"),
             findings);
    addFiles(found.goneCopies, State::note,
             Texts::tr("a copy that has gone from the Fonts folder; the books will forget it"),
             findings);
}

/// Held by a run that goes on. Nothing is made or kept.
bool isLocked(const FilePath &lock)
{
    const FileDescriptor file(::open(lock.c_str(), O_RDONLY | O_CLOEXEC | O_NOCTTY | O_NONBLOCK));
    return file.isOpen() && ::flock(file.number(), LOCK_SH | LOCK_NB) != 0 && errno == EWOULDBLOCK;
}

/// True when a run goes on: then nothing here is what it will be.
bool addRunFindings(const PlatformFolders &folders, Findings &findings)
{
    const FilePath lock = folders.activationLock();
    if (isLocked(lock)) {
        findings.push_back({State::note, lock.displayText(),
                            Texts::tr("another program is switching fonts on or off now")});
        return true;
    }
    const FilePath journal = folders.activationJournal();
    if (::access(journal.c_str(), F_OK) == 0)
        findings.push_back({State::note, journal.displayText(),
                            Texts::tr("a program ended while it switched fonts on or off; the "
                                      "next activation finishes its books")});
    return false;
}

void addPlaceFinding(const WatchedFolder &folder, const MountTable &mounts, Findings &findings)
{
    const QString about = folder.lastKnownPath.displayText();
    const FilePath url = folderURL(folder);
    const Result<FilePath> resolved = resolvedFolder(url);
    if (url.isEmpty() || !resolved)
        findings.push_back(
            {State::note, about, Texts::tr("not there now; its place in the list is kept")});
    else if (mounts.isRemote(*resolved))
        findings.push_back({State::note, about,
                            Texts::tr("on a volume where others' changes are not noticed; "
                                      "the window looks when it becomes active")});
    else
        findings.push_back({State::well, about, Texts::tr("watched")});
}

void addOverlaps(const std::vector<WatchedFolder> &folders, Findings &findings)
{
    for (size_t inner = 0; inner < folders.size(); ++inner) {
        for (size_t outer = 0; outer < folders.size(); ++outer) {
            const FilePath &path = folders[inner].lastKnownPath;
            const FilePath &other = folders[outer].lastKnownPath;
            const bool isRepeated = path == other && inner > outer;
            if (isRepeated || (path != other && path.isInside(other)))
                findings.push_back({State::note, path.displayText(),
                                    Texts::tr("lies in %1, which is watched too; each font "
                                              "counts once")
                                        .arg(other.displayText())});
        }
    }
}

} // namespace

void checkActivation(Examined &examined, Findings &findings)
{
    if (!examined.preferences.rows || addRunFindings(examined.folders, findings))
        return;
    const PlatformFolders &folders = examined.folders;
    const InstallationTools tools{folders,
                                  std::make_shared<LinkFolderRegistrar>(folders.registeredLinks()),
                                  nullptr,
                                  booksOf(examined),
                                  {}};
    const size_t before = findings.size();
    addDiskFindings(lookAtDisk(tools), findings);
    if (findings.size() > before)
        return;
    const ActivationBooks::Contents &books = tools.books->contents();
    findings.push_back({State::well, folders.userFonts.displayText(),
                        Texts::tr("books and disk agree: %1 copied, %2 registered")
                            .arg(books.origins.size())
                            .arg(books.registeredURLs.size())});
}

void checkSandbox(Examined &examined, Findings &findings)
{
    const std::shared_ptr<const ActivationBooks> books = booksOf(examined);
    const FontPlaces places(examined.folders);
    const QSet<FilePath> &registered = books->contents().registeredURLs;
    const auto outside = std::ranges::count_if(registered, [&](const FilePath &file) {
        return places.placeOf(file) != FontPlace::fontsFolder;
    });
    if (outside > 0)
        findings.push_back(
            {State::note, QStringLiteral("sandboxes"),
             Texts::tr("%n font files outside the Fonts folder registered in place: programs in "
                       "sandboxes, such as those from Flatpak or Snap, cannot see what is not "
                       "copied",
                       nullptr, int(outside))});
}

void checkWatchedFolders(Examined &examined, Findings &findings)
{
    LookedAt looked(examined.preferences);
    const std::vector<WatchedFolder> folders = WatchedFolderStore(looked.preferences()).load();
    const MountTable mounts = MountTable::current();
    for (const WatchedFolder &folder : folders)
        addPlaceFinding(folder, mounts, findings);
    addOverlaps(folders, findings);
}

} // namespace lorva::cli
