// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT

#include "model/LorvaAppModel.h"
#include "support/LibraryFixture.h"

#include <gmock/gmock.h>

#include <sys/stat.h>
#include <unistd.h>

namespace lorva {
namespace {

using test::LibraryFixture;
using ::testing::ElementsAre;

/// A library whose models come and go, as processes do, over one home.
class CatalogStart : public testing::Test
{
protected:
    CatalogStart()
    {
        static int cases = 0;
        home = test::TestHome::instance().makeFolder("start" + QByteArray::number(++cases));
        watched = home.child("watched");
        ::mkdir(watched.c_str(), 0700);
        library.addFamily(QStringLiteral("Beta"));
        test::writeFile(watched, "a.ttf", test::FontBuilder(QStringLiteral("Alpha")).build());
        restart();
    }

    /// A new process that has not begun to load.
    void restart()
    {
        library.restart(home.child("Lorva"));
        *library.watchedFolders = {watched};
    }

    FilePath snapshotFile() const { return home.child("Lorva/catalog.json"); }

    /// Starts a load and holds its scan back once the snapshot is shown.
    ::testing::AssertionResult showSnapshot()
    {
        library.fonts->hold();
        library.model->loadCatalog();
        if (test::waitUntil([&] { return library.model->catalogGeneration() == 1; }))
            return ::testing::AssertionSuccess();
        return ::testing::AssertionFailure() << "no snapshot was shown";
    }

    bool endLoad()
    {
        library.fonts->letGo();
        return test::waitUntil([&] { return !library.model->isLoading(); });
    }

    ino_t snapshotInode() const
    {
        struct stat info
        {
        };
        return ::stat(snapshotFile().c_str(), &info) == 0 ? info.st_ino : 0;
    }

    FilePath home;
    FilePath watched;
    LibraryFixture library;
};

TEST_F(CatalogStart, ShowsTheLastLibraryWhileTheScanRuns)
{
    ASSERT_TRUE(library.load());
    const FontFamilyList before = library.model->allFamilies();
    restart();
    const ino_t written = snapshotInode();
    ASSERT_NE(written, 0u) << "the last model has ended, so its snapshot is on disk";

    ASSERT_TRUE(showSnapshot());
    EXPECT_TRUE(library.model->isLoading());
    EXPECT_EQ(*library.model->allFamilies(), *before);
    const FontFamilyRecord alpha = library.model->allFamilies()->front();
    EXPECT_FALSE(library.model->fontLibraryService().resolve("Alpha", {}, 12).isStandIn());
    EXPECT_EQ(library.model->activation(alpha), FontFamilyActivation::inactive())
        << "of the first screen it is known with the first picture";

    library.model->selectFamily(QStringLiteral("Beta"));
    ASSERT_TRUE(endLoad());
    EXPECT_EQ(*library.model->allFamilies(), *before);
    EXPECT_EQ(library.model->activation(alpha), FontFamilyActivation::inactive());
    EXPECT_EQ(library.model->selectedFamilyName(), QStringLiteral("Beta"));
    library.model.reset();
    EXPECT_EQ(snapshotInode(), written) << "nothing new, so nothing is written";
}

TEST_F(CatalogStart, TakesTheFreshResultAndRemembersIt)
{
    ASSERT_TRUE(library.load());
    restart();
    ASSERT_TRUE(showSnapshot());
    library.model->selectFamily(QStringLiteral("Beta"));
    library.addFamily(QStringLiteral("Aardvark"));
    ::unlink(watched.child("a.ttf").c_str());
    ASSERT_TRUE(endLoad());
    EXPECT_THAT(library.visibleNames(),
                ElementsAre(QStringLiteral("Aardvark"), QStringLiteral("Beta")));
    EXPECT_EQ(library.model->selectedFamilyName(), QStringLiteral("Beta"));
    EXPECT_FALSE(library.model->fontLibraryService().resolve("Aardvark", {}, 12).isStandIn());

    restart();
    ASSERT_TRUE(showSnapshot());
    EXPECT_THAT(library.visibleNames(),
                ElementsAre(QStringLiteral("Aardvark"), QStringLiteral("Beta")));
}

TEST_F(CatalogStart, ReplacesASnapshotThatCannotBeUsed)
{
    ASSERT_TRUE(library.load());
    restart();
    const QByteArray sound = test::readFile(snapshotFile());
    for (const QByteArray &damaged :
         {QByteArray(), sound.first(sound.size() - 1), QByteArray(sound).replace("manuf", "manif"),
          QByteArray(sound).replace("\"weight\":400", "\"weight\":\"400\"")}) {
        restart();
        test::writeFile(snapshotFile().parent(), "catalog.json", damaged);
        ASSERT_TRUE(library.load());
        EXPECT_EQ(library.visibleNames().size(), 2);
        EXPECT_EQ(library.model->catalogGeneration(), 1) << "only the scan's result was shown";
        library.model.reset();
        EXPECT_EQ(test::readFile(snapshotFile()), sound);
    }
}

TEST_F(CatalogStart, GoesOnWhereNothingCanBeWritten)
{
    ::unlink(home.child("Lorva/catalog.json").c_str());
    ASSERT_EQ(::rmdir(home.child("Lorva").c_str()), 0);
    test::writeFile(home, "Lorva", "a file where a folder should be");
    ASSERT_TRUE(library.load());
    EXPECT_EQ(library.visibleNames().size(), 2);
    library.model.reset();
    EXPECT_EQ(test::readFile(home.child("Lorva")), "a file where a folder should be");
}

TEST_F(CatalogStart, ASecondLoadDoesNotWaitForTheSnapshot)
{
    ASSERT_TRUE(library.load());
    restart();
    library.addFamily(QStringLiteral("Gamma"));
    library.model->loadCatalog();
    library.model->loadCatalog();
    ASSERT_TRUE(test::waitUntil([&] { return !library.model->isLoading(); }));
    EXPECT_EQ(library.visibleNames().size(), 3);
    EXPECT_LE(library.model->catalogGeneration(), 2);
}

TEST_F(CatalogStart, GoesAwayWhileTheSnapshotIsRead)
{
    ASSERT_TRUE(library.load());
    restart();
    library.model->loadCatalog();
    library.model.reset();
    restart();
    ASSERT_TRUE(library.load());
}

} // namespace
} // namespace lorva
