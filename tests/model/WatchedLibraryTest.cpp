// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT

// The user's folders and the library that follows them, over a real preference file, the real
// service that switches fonts on, fontconfig, and the kernel's notices.

#include "model/LibraryWatcher.h"
#include "model/LorvaAppModel.h"
#include "platform/linux/FontconfigAvailableFonts.h"
#include "platform/linux/InotifyFolderWatcher.h"
#include "platform/SqlitePreferenceStore.h"
#include "support/AdverseSystem.h"
#include "support/LibraryFixture.h"

#include <gmock/gmock.h>

#include <sys/stat.h>
#include <unistd.h>

namespace lorva {
namespace {

using test::FontBuilder;
using test::LibraryFixture;
using ::testing::ElementsAre;
using ::testing::IsEmpty;
using ::testing::UnorderedElementsAre;

/// Tells what the case says.
class ScriptedWatcher final : public FolderWatcher
{
public:
    void setFolders(std::vector<FilePath> given) override
    {
        folders = std::move(given);
        ++calls;
    }
    bool isComplete() const override { return isAll; }

    std::vector<FilePath> folders;
    int calls = 0;
    bool isAll = true;
};

bool exists(const FilePath &path)
{
    struct stat info;
    return ::lstat(path.c_str(), &info) == 0;
}

FilePath writeFamily(const FilePath &folder, const QString &family, const QString &style = {})
{
    FontBuilder font(family);
    if (!style.isEmpty())
        font.style(style);
    return test::writeFile(folder, QByteArray(family.toUtf8() + ".ttf"), font.build());
}

class WatchedLibrary : public testing::Test
{
protected:
    WatchedLibrary()
    {
        home = test::makeCaseFolder();
        watched = home.child("watched");
        ::mkdir(watched.c_str(), 0700);
        library.otherFonts =
            std::make_shared<FontconfigAvailableFonts>(library.folders.registeredLinks());
    }

    void restart()
    {
        library.restart(home.child("Lorva"),
                        std::make_unique<SqlitePreferenceStore>(home.child("Lorva")));
    }
    void restartScripted()
    {
        library.makeWatcher = [this] {
            auto made = std::make_unique<ScriptedWatcher>();
            scripted = made.get();
            return made;
        };
        restart();
    }
    /// A process that is told by the kernel.
    void restartLive()
    {
        library.makeWatcher = [this] {
            auto made = std::make_unique<InotifyFolderWatcher>();
            live = made.get();
            return made;
        };
        restart();
    }

    LorvaAppModel &model() { return *library.model; }
    AddedFolders add(const std::vector<FilePath> &folders)
    {
        std::optional<AddedFolders> added;
        model().addWatchedFolders(folders, [&](AddedFolders each) { added = std::move(each); });
        EXPECT_TRUE(test::waitUntil([&] { return added && !model().isLoading(); }));
        return added.value_or(AddedFolders());
    }
    std::vector<FilePath> list() const
    {
        std::vector<FilePath> paths;
        for (const WatchedFolder &folder : library.model->watchedFolders())
            paths.push_back(folder.lastKnownPath);
        return paths;
    }
    bool shows(const QStringList &names)
    {
        return test::waitUntil([&] { return library.visibleNames() == names; });
    }
    bool isEveryFolderWatched()
    {
        return test::waitUntil([&] { return !model().isLoading() && live->isComplete(); });
    }
    std::optional<FontFamilyActivation> activationOf(const QString &name)
    {
        const FontFamilyRecord *family = model().family(name);
        return family ? model().activation(*family) : std::nullopt;
    }

    FilePath home;
    FilePath watched;
    LibraryFixture library;
    ScriptedWatcher *scripted = nullptr;
    InotifyFolderWatcher *live = nullptr;
};

TEST_F(WatchedLibrary, TakesInEachFolderOnceAndSaysWhyNotOthers)
{
    writeFamily(watched, QStringLiteral("Alpha"));
    const FilePath second = home.child("second");
    writeFamily(second, QStringLiteral("Beta"));
    const FilePath link = home.child("link");
    ASSERT_EQ(::symlink(watched.c_str(), link.c_str()), 0);
    const FilePath file = test::writeFile(home, "file", "no folder");
    const FilePath missing = home.child("missing");
    const FilePath unspeakable = home.child("\xff");
    ::mkdir(unspeakable.c_str(), 0700);
    restart();

    const AddedFolders added = add({second, link, watched, file, missing, unspeakable, second});
    EXPECT_THAT(list(), ElementsAre(second, watched)) << "in the order given, links resolved";
    EXPECT_EQ(added.records, model().watchedFolders());
    ::rmdir(unspeakable.c_str());
    std::map<FilePath, ErrorKind> kinds;
    for (const auto &[folder, error] : added.failures)
        kinds.emplace(folder, error.kind);
    EXPECT_THAT(kinds,
                UnorderedElementsAre(std::pair(file, ErrorKind::notRegularFile),
                                     std::pair(missing, ErrorKind::notFound),
                                     std::pair(unspeakable, ErrorKind::invalidValue)));
    EXPECT_EQ(library.visibleNames(), (QStringList{"Alpha", "Beta"}));
    EXPECT_THAT(add({link}).records, IsEmpty());
    EXPECT_EQ(list().size(), 2u);

    *library.watchedFolders = {watched, home.child("given")};
    writeFamily(home.child("given"), QStringLiteral("Gamma"));
    restart();
    ASSERT_TRUE(library.load());
    EXPECT_THAT(list(), ElementsAre(second, watched)) << "a folder of one run is not stored";
    EXPECT_EQ(library.visibleNames(), (QStringList{"Alpha", "Beta", "Gamma"}));
}

TEST_F(WatchedLibrary, ARemovedFolderTakesItsFontsOutOfTheProcessOnly)
{
    const FilePath font = writeFamily(watched, QStringLiteral("Alpha"));
    restart();
    const QString id = add({watched}).records.front().id;
    FontRegistrar &registrar = *library.registrar;
    ASSERT_FALSE(registrar.registerFont(font, RegistrationScope::process));
    ASSERT_FALSE(registrar.registerFont(font, RegistrationScope::user));

    EXPECT_EQ(model().removeWatchedFolder(QStringLiteral("other")).error().kind,
              ErrorKind::notFound);
    ASSERT_TRUE(model().removeWatchedFolder(id));
    EXPECT_THAT(list(), IsEmpty());
    EXPECT_TRUE(test::waitUntil([&] {
        const auto again = registrar.registerFont(font, RegistrationScope::process);
        return !again;
    }));
    EXPECT_THAT(registrar.registeredFonts(), ElementsAre(font));
    EXPECT_FALSE(registrar.unregisterFont(font, RegistrationScope::user));
    EXPECT_TRUE(exists(font));
}

TEST_F(WatchedLibrary, FoldersOfAnotherProcessAreShownAndGoAgain)
{
    writeFamily(watched, QStringLiteral("Alpha"));
    restart();
    ASSERT_TRUE(library.load());
    SqlitePreferenceStore others(home.child("Lorva"));
    WatchedFolderStore store(others);
    const auto records = store.add({watched});
    EXPECT_TRUE(shows({"Alpha"}));
    EXPECT_EQ(model().watchedFolders(), records);
    store.remove(records.front().id);
    EXPECT_TRUE(shows({}));
}

TEST_F(WatchedLibrary, ShowsWhatHappensInItsFoldersWithoutBeingAsked)
{
    const FilePath userFonts = library.folders.userFonts;
    writeFamily(watched, QStringLiteral("Alpha"));
    restartLive();
    add({watched});
    // Whether or not the watches are there yet.
    writeFamily(watched, QStringLiteral("Beta"));
    writeFamily(watched.child("new folder"), QStringLiteral("Delta"));
    EXPECT_TRUE(shows({"Alpha", "Beta", "Delta"}));

    ASSERT_TRUE(isEveryFolderWatched());
    ::unlink(watched.child("Beta.ttf").c_str());
    const FilePath own = writeFamily(userFonts, QStringLiteral("Own"));
    EXPECT_TRUE(shows({"Alpha", "Delta", "Own"}));

    ASSERT_TRUE(isEveryFolderWatched());
    test::writeFile(watched.child("new folder"), "Delta.ttf", FontBuilder("Epsilon").build());
    ::unlink(own.c_str());
    EXPECT_TRUE(shows({"Alpha", "Epsilon"})) << "a file that is written over";
}

TEST_F(WatchedLibrary, AFolderThatWasAwayComesBackWithWhatTheUserSaidOfIt)
{
    writeFamily(watched, QStringLiteral("Alpha"));
    restartLive();
    add({watched});
    const QString logos = model().createCollection(QStringLiteral("Logos")).value();
    ASSERT_TRUE(model().addFamilies(logos, {"Alpha"}));
    ASSERT_TRUE(isEveryFolderWatched());

    const FilePath away = home.child("away");
    ASSERT_EQ(::rename(watched.c_str(), away.c_str()), 0);
    EXPECT_TRUE(shows({}));
    EXPECT_THAT(list(), ElementsAre(watched));
    ASSERT_TRUE(isEveryFolderWatched());
    ASSERT_EQ(::rename(away.c_str(), watched.c_str()), 0);
    EXPECT_TRUE(shows({"Alpha"}));
    EXPECT_TRUE(model().isMember(QStringLiteral("Alpha"), logos));
}

TEST_F(WatchedLibrary, LooksWhenTheUserIsBackWhereNobodyTells)
{
    restartScripted();
    add({watched});
    ASSERT_TRUE(test::waitUntil([&] { return scripted->calls > 0; }));
    EXPECT_THAT(scripted->folders, ::testing::Contains(watched));
    EXPECT_THAT(scripted->folders, ::testing::Contains(library.folders.userFonts));
    EXPECT_THAT(scripted->folders, ::testing::Contains(library.folders.allUsersFonts))
        << "which is not there yet";
    writeFamily(watched, QStringLiteral("Alpha"));
    scripted->isAll = false;
    model().becomeActive();
    EXPECT_TRUE(shows({"Alpha"}));
}

TEST_F(WatchedLibrary, ANoticeDuringALoadLeadsToAnotherOneAfterIt)
{
    library.otherFonts = nullptr;
    restartScripted();
    add({watched});
    ASSERT_TRUE(test::waitUntil([&] { return scripted->calls > 0; }));
    library.fonts->hold();
    model().loadCatalog();
    ASSERT_TRUE(test::waitUntil([&] { return library.fonts->isAsked(); }));
    writeFamily(watched, QStringLiteral("Alpha"));
    Q_EMIT scripted->foldersChanged({watched});
    bool hasAsked = false;
    QTimer::singleShot(2 * LorvaAppModel::kReconcileDelay, &model(), [&] { hasAsked = true; });
    ASSERT_TRUE(test::waitUntil([&] { return hasAsked; })) << "the request has come to its turn";
    EXPECT_TRUE(model().isLoading());
    library.fonts->letGo();
    ASSERT_TRUE(test::waitUntil([&] { return !model().isLoading(); }));
    EXPECT_THAT(library.visibleNames(),
                ::testing::Not(::testing::Contains(QStringLiteral("Alpha"))))
        << "the scan had been there already";
    EXPECT_TRUE(test::waitUntil([&] { return model().family(QStringLiteral("Alpha")); }));
}

/// What the library's watcher makes of notices.
class LibraryWatcherNotices : public testing::Test
{
protected:
    LibraryWatcherNotices()
    {
        root = test::makeCaseFolder();
        fonts = root.child("fonts");
        font = writeFamily(fonts, QStringLiteral("Alpha"));
        ::mkdir(fonts.child("inner").c_str(), 0700);
        folders.userFonts = root.child("user-fonts");
        folders.applicationSupport = fonts.child("Lorva");
        test::writeFile(folders.applicationSupport, "preferences", "");
        auto made = std::make_unique<ScriptedWatcher>();
        scripted = made.get();
        watcher = std::make_unique<LibraryWatcher>(std::move(made), folders);
        QObject::connect(watcher.get(), &LibraryWatcher::libraryChanged, [this] { ++changes; });
    }

    bool watch(LibraryWatcher::Time since)
    {
        watcher->watch({fonts}, since);
        return isQuiet();
    }
    bool isQuiet()
    {
        return test::waitUntil([this] { return watcher->isComplete(); });
    }
    /// How often it asked for a scan when these were told of.
    int changesAfter(const std::vector<FilePath> &told)
    {
        changes = 0;
        Q_EMIT scripted->foldersChanged(told);
        EXPECT_TRUE(isQuiet());
        return changes;
    }

    static constexpr std::chrono::hours kLong{1};
    const LibraryWatcher::Time later = std::chrono::system_clock::now() + kLong;
    FilePath root;
    FilePath fonts;
    FilePath font;
    PlatformFolders folders;
    ScriptedWatcher *scripted = nullptr;
    std::unique_ptr<LibraryWatcher> watcher;
    int changes = 0;
};

TEST_F(LibraryWatcherNotices, OnlyWhatTheLibrarySeesCounts)
{
    ASSERT_TRUE(watch(later));
    EXPECT_THAT(scripted->folders,
                UnorderedElementsAre(fonts, fonts.child("inner"), folders.userFonts))
        << "neither its own folder nor what is below";
    const FilePath inner = fonts.child("inner");
    const FilePath links = folders.registeredLinks();
    const struct
    {
        const char *what;
        std::function<void()> change;
        std::vector<FilePath> told;
        int expected;
    } rows[]{
        {"nothing", [] {}, {fonts}, 0},
        {"a text", [&] { test::writeFile(fonts, "notes.txt", "x"); }, {fonts}, 0},
        {"a hidden font", [&] { test::writeFile(fonts, ".new.ttf", "x"); }, {fonts}, 0},
        {"a package", [&] { ::mkdir(fonts.child("X.app").c_str(), 0700); }, {fonts}, 0},
        {"an inner folder's file, of the outer one",
         [&] { test::writeFile(inner, "i.ttf", "x"); },
         {fonts},
         0},
        {"of the inner one", [] {}, {inner}, 1},
        {"that is known now", [] {}, {}, 0},
        {"its end, told as everything", [&] { ::unlink(inner.child("i.ttf").c_str()); }, {}, 1},
        {"the font folder appears",
         [&] { ::mkdir(folders.userFonts.c_str(), 0700); },
         {folders.userFonts},
         1},
        {"other bytes", [&] { test::writeFile(fonts, "Alpha.ttf", "other"); }, {fonts}, 1},
        {"a link to a folder", [&] { ::symlink("..", fonts.child("link").c_str()); }, {fonts}, 1},
        {"a link that leads nowhere", [&] { ::symlink("x", fonts.child("y.ttf").c_str()); }, {}, 0},
        {"the folder goes", [&] { ::rename(fonts.c_str(), root.child("x").c_str()); }, {fonts}, 1},
    };
    for (const auto &row : rows) {
        row.change();
        EXPECT_EQ(changesAfter(row.told), row.expected) << row.what;
    }
    ::mkdir(links.c_str(), 0700);
    ASSERT_TRUE(watch(later));
    ASSERT_EQ(::symlink("/nowhere", links.child("a.ttf").c_str()), 0);
    EXPECT_EQ(changesAfter({}), 0) << "registration keeps its own books";
}

TEST_F(LibraryWatcherNotices, AFolderThatWentBeforeItWasWatchedIsTold)
{
    const auto earlier = std::chrono::system_clock::now() - kLong;
    ASSERT_EQ(::rename(fonts.c_str(), root.child("away").c_str()), 0);
    ASSERT_TRUE(watch(earlier));
    EXPECT_EQ(changes, 1) << "it may have been read";
    ASSERT_TRUE(watch(earlier));
    EXPECT_EQ(changes, 1) << "once";
}

TEST_F(LibraryWatcherNotices, WhatChangedSinceTheReadingBeganIsToldWithoutANotice)
{
    ASSERT_TRUE(watch(later));
    EXPECT_EQ(changes, 0) << "read after its last change";
    const auto earlier = std::chrono::system_clock::now() - kLong;
    ASSERT_TRUE(watch(earlier));
    EXPECT_EQ(changes, 0) << "known as it is";
    writeFamily(fonts, QStringLiteral("Beta"));
    ASSERT_TRUE(watch(earlier));
    EXPECT_EQ(changes, 1);
    ASSERT_TRUE(watch(earlier));
    EXPECT_EQ(changes, 1) << "once";
    ASSERT_EQ(::rename(fonts.c_str(), root.child("away").c_str()), 0);
    ASSERT_TRUE(watch(later));
    EXPECT_EQ(changes, 2) << "nobody knows when it went";
}

/// One file of two families is switched on and off, with everything real.
TEST_F(WatchedLibrary, AnActivationIsShownAndSettles)
{
    const FilePath font = writeFamily(watched, QStringLiteral("Alpha"));
    writeFamily(watched, QStringLiteral("Beta"));
    restartLive();
    add({watched});
    ASSERT_TRUE(isEveryFolderWatched());
    const QString alpha = QStringLiteral("Alpha");
    EXPECT_EQ(activationOf(alpha), FontFamilyActivation::inactive());

    qint64 generation = model().catalogGeneration();
    const auto isLoadedAnew = [&] {
        return model().catalogGeneration() > generation && !model().isLoading();
    };
    std::optional<InstallationOutcome> outcome;
    const auto done = [&](InstallationOutcome ended) { outcome = std::move(ended); };
    library.installation->activateByCopying({*model().family(alpha)}, done);
    ASSERT_TRUE(test::waitUntil([&] { return outcome && isLoadedAnew(); }));
    EXPECT_THAT(outcome->failures, IsEmpty());
    const FilePath copy = library.folders.userFonts.child("Alpha.ttf");
    EXPECT_EQ(test::readFile(copy), test::readFile(font));
    EXPECT_EQ(activationOf(alpha), FontFamilyActivation::active(InstallMethod::copy, false));
    model().select(BrowserSource::active());
    EXPECT_EQ(library.visibleNames(), QStringList{"Alpha"}) << "one family, not two";
    ASSERT_TRUE(isEveryFolderWatched());

    generation = model().catalogGeneration();
    outcome.reset();
    library.installation->deactivate({*model().family(alpha)}, std::nullopt, done);
    ASSERT_TRUE(test::waitUntil([&] { return outcome && isLoadedAnew(); }));
    EXPECT_THAT(outcome->failures, IsEmpty());
    EXPECT_FALSE(exists(copy));
    EXPECT_TRUE(exists(library.folders.userFonts.parent().child("Trash/files/Alpha.ttf")));
    EXPECT_THAT(library.visibleNames(), IsEmpty());
    EXPECT_EQ(activationOf(alpha), FontFamilyActivation::inactive());
}

/// The same work as a load's end does, seen by a watcher as a load leaves it.
TEST_F(WatchedLibrary, WhatAReconcileWritesAsksForNoLoad)
{
    const FilePath font = writeFamily(watched, QStringLiteral("Alpha"));
    restart();
    add({watched});
    std::optional<InstallationOutcome> outcome;
    library.installation->activateByCopying(
        {*model().family(QStringLiteral("Alpha"))},
        [&](InstallationOutcome ended) { outcome = std::move(ended); });
    ASSERT_TRUE(test::waitUntil([&] { return outcome.has_value(); }));
    ASSERT_FALSE(library.registrar->registerFont(font, RegistrationScope::user));

    auto made = std::make_unique<InotifyFolderWatcher>();
    InotifyFolderWatcher &kernel = *made;
    LibraryWatcher watcher(std::move(made), library.folders);
    int changes = 0;
    QObject::connect(&watcher, &LibraryWatcher::libraryChanged, [&] { ++changes; });
    // Its own folder lies in a watched one here: the worst case.
    watcher.watch({home}, std::chrono::system_clock::now() + std::chrono::hours(1));
    ASSERT_TRUE(test::waitUntil([&] { return watcher.isComplete(); }));

    std::set<FilePath> told;
    QObject::connect(
        &kernel, &FolderWatcher::foldersChanged,
        [&](const std::vector<FilePath> &each) { told.insert(each.begin(), each.end()); });
    bool isReconciled = false;
    library.installation->reconcile(model().allFamilies(), [&] { isReconciled = true; });
    ASSERT_TRUE(test::waitUntil([&] { return isReconciled; }));
    EXPECT_THAT(library.installation->books()->contents().registeredURLs, ElementsAre(font))
        << "it had something to write";
    // The kernel tells in order: what came before this has been told.
    test::writeFile(watched, "notes.txt", "no font");
    ASSERT_TRUE(test::waitUntil([&] { return told.contains(watched) && watcher.isComplete(); }));
    EXPECT_EQ(changes, 0);
    EXPECT_FALSE(library.registrar->unregisterFont(font, RegistrationScope::user));
}

} // namespace
} // namespace lorva
