// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT

#include "commands/FolderCommands.h"
#include "commands/ScriptedPresenter.h"
#include "model/LorvaAppModel.h"
#include "support/AdverseSystem.h"
#include "support/LibraryFixture.h"

#include <gmock/gmock.h>

#include <sys/stat.h>

namespace lorva {
namespace {

using test::FontBuilder;
using test::LibraryFixture;
using test::ScriptedPresenter;
using ::testing::IsEmpty;

class AddingFolders : public testing::Test
{
protected:
    AddingFolders()
    {
        home = test::makeCaseFolder();
        library.addFamily(QStringLiteral("System"));
    }

    LorvaAppModel &model() { return *library.model; }
    FilePath folder(const char *name, const QStringList &families)
    {
        const FilePath made = home.child(name);
        ::mkdir(made.c_str(), 0700);
        for (const QString &family : families)
            test::writeFile(made, family.toUtf8() + ".ttf", FontBuilder(family).build());
        return made;
    }
    bool ends()
    {
        return test::waitUntil(
            [this] { return !presenter.showsProgress() && !model().isLoading(); });
    }
    bool isScanning()
    {
        return test::waitUntil([this] { return library.fonts->isAsked(); });
    }

    FilePath home;
    LibraryFixture library;
    ScriptedPresenter presenter;
    std::unique_ptr<FolderCommands> commands =
        std::make_unique<FolderCommands>(*library.model, presenter);
};

TEST_F(AddingFolders, AsksScansAndTells)
{
    ASSERT_TRUE(library.load());
    presenter.folders = {{folder("two", {"Alpha", "Beta"})}};
    commands->addFolders();
    ASSERT_TRUE(ends());

    EXPECT_EQ(
        presenter.folderQuestions.front(),
        (FolderQuestion{"Choose one or more folders of font files to include in your library.",
                        "Watch", true}));
    EXPECT_EQ(presenter.lines.mid(1),
              (QStringList{QString::fromUtf8("progress: Scanning fonts…"), "progress ends",
                           "alert: Added 2 fonts"}));
    EXPECT_EQ(presenter.lastAlert(),
              (Alert{Alert::Style::informational,
                     "Added 2 fonts",
                     "You can find them in your library.",
                     {{"OK", Alert::Role::accept}}}));
    EXPECT_EQ(presenter.progress.front()->messages().back(), QString::fromUtf8("Preparing…"));
    EXPECT_EQ(model().watchedFolders().size(), 1u);
}

TEST_F(AddingFolders, TellsOfEachOutcome)
{
    const FilePath file = test::writeFile(home, "file", "x");
    const FilePath known = folder("known", {"Known"});
    *library.watchedFolders = {};
    ASSERT_TRUE(library.load());
    const QString none = QStringLiteral("alert: No new fonts added");
    const QString refused = QStringLiteral("alert: This Change Is Not Possible");
    const struct
    {
        const char *what;
        std::vector<FilePath> folders;
        QStringList alerts;
    } rows[]{
        {"nothing was chosen", {}, {}},
        {"one font", {known}, {"alert: Added 1 font"}},
        {"the same again", {known, known}, {none}},
        {"no fonts", {folder("empty", {})}, {none}},
        {"a file and what is not there", {file, home.child("none")}, {refused}},
        {"a file besides", {file, folder("more", {"Mu", "Nu"})}, {refused, "alert: Added 2 fonts"}},
    };
    for (const auto &row : rows) {
        SCOPED_TRACE(row.what);
        presenter.lines.clear();
        commands->addFolders(row.folders);
        ASSERT_TRUE(ends());
        EXPECT_EQ(presenter.lines.filter("alert"), row.alerts);
        presenter.openAlerts.clear();
    }
    EXPECT_TRUE(presenter.alerts[presenter.alerts.size() - 2].body.contains(file.displayText()));
}

TEST_F(AddingFolders, CancelTakesThemBack)
{
    const FilePath kept = folder("kept", {"Kept"});
    commands->addFolders({kept});
    ASSERT_TRUE(ends());
    presenter.lines.clear();
    const FilePath added = folder("added", {"Alpha"});

    library.fonts->hold();
    commands->addFolders({added, kept});
    ASSERT_TRUE(test::waitUntil([this] { return model().watchedFolders().size() == 2; }));
    ASSERT_TRUE(isScanning());
    presenter.cancelProgress();
    library.fonts->letGo();
    ASSERT_TRUE(ends());
    EXPECT_EQ(model().watchedFolders().size(), 1u) << "not the one that was there before";
    EXPECT_EQ(library.visibleNames(), (QStringList{"Kept", "System"}));
    EXPECT_THAT(presenter.lines.filter("alert"), IsEmpty());

    commands->addFolders({added});
    ASSERT_TRUE(ends());
    EXPECT_EQ(presenter.lastAlert().title, "Added 1 font") << "and adds them when asked again";
}

TEST_F(AddingFolders, CancelBeforeTheyAreLookedAtKeepsThemOut)
{
    ASSERT_TRUE(library.load());
    int loads = 0;
    model().onChange = [&] { loads += model().isLoading(); };
    commands->addFolders({folder("added", {"Alpha"})});
    presenter.cancelProgress();
    EXPECT_TRUE(test::waitUntil([&] { return loads > 0 && !model().isLoading(); }));
    EXPECT_THAT(model().watchedFolders(), IsEmpty());
    EXPECT_EQ(library.visibleNames(), QStringList{"System"});
    EXPECT_THAT(presenter.lines.filter("alert"), IsEmpty());
}

TEST_F(AddingFolders, RequestsThatMeetAreCountedTogether)
{
    ASSERT_TRUE(library.load());
    library.fonts->hold();
    commands->addFolders({folder("one", {"Alpha"})});
    ASSERT_TRUE(isScanning());
    commands->addFolders({folder("two", {"Beta", "Gamma"})});
    ASSERT_TRUE(test::waitUntil([this] { return model().watchedFolders().size() == 2; }));
    library.fonts->letGo();
    ASSERT_TRUE(ends());
    EXPECT_EQ(presenter.progress.size(), 1u);
    EXPECT_EQ(presenter.lines.filter("alert"), QStringList{"alert: Added 3 fonts"});
}

TEST_F(AddingFolders, AsksOnceAndOnlyInAWindow)
{
    commands->addFolders();
    commands->addFolders();
    EXPECT_EQ(presenter.folderQuestions.size(), 1u);
    presenter.chooseFolders({});
    commands->addFolders();
    EXPECT_EQ(presenter.folderQuestions.size(), 2u) << "again, once that is answered";
    presenter.hasWindow = false;
    presenter.chooseFolders({folder("late", {"Alpha"})});
    commands->addFolders();
    commands->addFolders({folder("late", {})});
    EXPECT_FALSE(model().isLoading());
    EXPECT_THAT(presenter.progress, IsEmpty());
}

TEST_F(AddingFolders, GoesAwayWhileItAsksAndWhileItScans)
{
    library.fonts->hold();
    commands->addFolders();
    auto second = std::make_unique<FolderCommands>(model(), presenter);
    second->addFolders({folder("one", {"Alpha"})});
    ASSERT_TRUE(isScanning());
    commands.reset();
    second.reset();
    EXPECT_FALSE(presenter.showsProgress());
    presenter.chooseFolders({home});
    library.fonts->letGo();
    ASSERT_TRUE(ends());
    EXPECT_EQ(library.visibleNames(), (QStringList{"Alpha", "System"})) << "the scan goes on";
    EXPECT_THAT(presenter.alerts, IsEmpty());
}

TEST_F(AddingFolders, AFirstLoadIsShownUntilThereIsSomethingToShow)
{
    commands->showFirstLoad();
    EXPECT_THAT(presenter.progress, IsEmpty()) << "nothing runs";
    library.fonts->hold();
    model().loadCatalog();
    commands->showFirstLoad();
    commands->showFirstLoad();
    EXPECT_EQ(presenter.progress.size(), 1u);
    presenter.cancelProgress();
    EXPECT_FALSE(model().isLoading());
    library.fonts->letGo();
    EXPECT_TRUE(ends());

    model().loadCatalog();
    commands->showFirstLoad();
    EXPECT_TRUE(presenter.showsProgress());
    ASSERT_TRUE(ends());
    EXPECT_EQ(library.visibleNames(), QStringList{"System"});
    model().loadCatalog();
    commands->showFirstLoad();
    EXPECT_FALSE(presenter.showsProgress()) << "there is a library to show";
    EXPECT_THAT(presenter.alerts, IsEmpty());
}

TEST_F(AddingFolders, AddingTakesTheFirstLoadsPlace)
{
    library.fonts->hold();
    model().loadCatalog();
    commands->showFirstLoad();
    commands->addFolders({folder("one", {"Alpha"})});
    EXPECT_EQ(presenter.progress.size(), 2u);
    EXPECT_FALSE(presenter.progress.front()->isShown) << "one sheet at a time";
    library.fonts->letGo();
    ASSERT_TRUE(ends());
    EXPECT_EQ(presenter.lines.filter("alert").size(), 1);
}

} // namespace
} // namespace lorva
