// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#include "catalog/FontCatalogLoader.h"
#include "CatalogSupport.h"
#include "support/FailingDisk.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <sys/stat.h>
#include <unistd.h>

namespace lorva {
namespace {

/// A library whose loaders come and go, as processes do, over one cache file.
class LoaderCache : public testing::Test
{
protected:
    LoaderCache()
    {
        static int cases = 0;
        m_folder =
            test::TestHome::instance().makeFolder("remembered" + QByteArray::number(++cases));
        cacheFile = m_folder.child("new/home").child("parse-cache.json");
    }

    FilePath add(const QByteArray &name, const QByteArray &bytes)
    {
        const FilePath file = test::writeFile(m_folder, name, bytes);
        if (std::ranges::find(fonts->files, file) == fonts->files.end())
            fonts->files.push_back(file);
        return file;
    }

    void addThree()
    {
        add("1.ttf", test::face("One", "Bold", "One-B").manufacturer("Maker").build());
        add("2.ttf", test::face("Two", "Regular", "").codePoints(U"あのア").build());
        add("3.ttf", "no font");
    }

    /// What a process would do that scans once and ends.
    FontCatalogResult scan()
    {
        FontCatalogLoader loader({fonts, cacheFile});
        FontCatalogResult result = loader.scan({}, nullptr).value();
        report = loader.lastScan();
        hasSaved = loader.finishSaving().has_value();
        return result;
    }

    void replaceInCache(const QByteArray &from, const QByteArray &to)
    {
        QByteArray json = test::readFile(cacheFile);
        ASSERT_TRUE(json.contains(from)) << json.constData();
        test::writeFile(cacheFile.parent(), cacheFile.fileName(), json.replace(from, to));
    }

    ino_t cacheInode() const
    {
        struct stat info
        {
        };
        return ::stat(cacheFile.c_str(), &info) == 0 ? info.st_ino : 0;
    }

    FilePath m_folder;
    FilePath cacheFile;
    std::shared_ptr<test::ListedFonts> fonts = std::make_shared<test::ListedFonts>();
    ScanReport report;
    bool hasSaved = false;
};

TEST_F(LoaderCache, ANewProcessReadsNothingAgain)
{
    addThree();
    const FontCatalogResult first = scan();
    EXPECT_EQ(report.filesRead, 3);
    const ino_t written = cacheInode();
    EXPECT_NE(written, 0u) << "folders that were missing are made";

    const FontCatalogResult second = scan();
    EXPECT_EQ(report.filesRead, 0);
    EXPECT_EQ(report.filesReused, 3) << "a file without faces, too";
    EXPECT_EQ(report.familiesIdentified, 0);
    EXPECT_EQ(second.families, first.families);
    EXPECT_EQ(second.manufacturers, first.manufacturers);
    EXPECT_EQ(cacheInode(), written) << "nothing changed, nothing is written";
}

TEST_F(LoaderCache, KeepsTheFileTrueToTheFonts)
{
    addThree();
    scan();
    add("1.ttf", test::face("Newer", "Regular", "Newer-R").build());
    ::unlink(fonts->files[1].c_str());
    fonts->files.erase(fonts->files.begin() + 1);
    scan();
    EXPECT_EQ(report.filesRead, 1);
    const PersistedCache cache = readPersistedCache(cacheFile).value();
    EXPECT_EQ(cache.files.size(), 2);
    EXPECT_EQ(cache.identities.keys(), QStringList{"Newer"});
    EXPECT_TRUE(cache.manufacturers.isEmpty());
}

TEST_F(LoaderCache, AScanOfLessDoesNotCostTheNextOneItsFiles)
{
    addThree();
    const FontCatalogResult all = scan();
    const std::vector<FilePath> files = fonts->files;
    fonts->files = {files[2]};
    EXPECT_TRUE(scan().families.empty());
    fonts->files = files;
    const FontCatalogResult again = scan();
    EXPECT_EQ(report.filesRead, 0);
    EXPECT_EQ(report.familiesIdentified, 2) << "identities are those of the last catalog";
    EXPECT_EQ(again.families, all.families);
    EXPECT_EQ(again.manufacturers, all.manufacturers);
}

TEST_F(LoaderCache, AFileThatChangedMakesItsFamiliesNew)
{
    addThree();
    add("4.ttf", test::face("One", "Thin", "One-T").build());
    scan();
    add("1.ttf", test::face("One", "Bold", "One-B").codePoints(U"가나").build());
    const FontCatalogResult result = scan();
    EXPECT_EQ(report.filesRead, 1);
    EXPECT_EQ(report.familiesIdentified, 1);
    EXPECT_EQ(result.families[0].primaryScript, WritingScript::korean);
    EXPECT_EQ(result.manufacturers.value("One"), "Maker") << "nobody says otherwise";
}

TEST_F(LoaderCache, DoesNotHoldAFailingDiskAgainstAFont)
{
    // A table that nobody asks for puts the others behind the first page, which is read at once.
    const auto font = [](const char *filler) {
        return test::face("Far", "Bold", "Far-B").table(filler, QByteArray(8192, 'x')).build();
    };
    const struct
    {
        const char *name;
        const char *filler;
        long long failsFrom;
    } rows[]{
        {"nothing can be read", "AAAA", 0},
        {"no table can be read", "AAAA", 4096},
        {"the character map can be read, names cannot", "dddd", 4096},
    };
    for (const auto &row : rows) {
        fonts->files.clear();
        add("far.ttf", font(row.filler));
        {
            const test::FailingDisk disk(row.failsFrom);
            scan();
            EXPECT_EQ(report.filesRead, 1) << row.name;
        }
        const FontCatalogResult healthy = scan();
        EXPECT_EQ(report.filesRead, 1) << row.name << ": what could not be read is not kept";
        ASSERT_EQ(healthy.families.size(), 1u) << row.name;
        EXPECT_EQ(healthy.families[0].primaryScript, WritingScript::latin) << row.name;
        scan();
        EXPECT_EQ(report.filesRead, 0) << row.name;
        ::unlink(cacheFile.c_str());
    }
}

TEST_F(LoaderCache, TakesFromAnImperfectFileWhatItMay)
{
    const struct
    {
        const char *name;
        const char *from;
        const char *to;
        int read;
        int identified;
    } rows[]{
        {"other format", "\"version\":1", "\"version\":2", 3, 2},
        {"damaged", "\"version\":1", "\"version\":", 3, 2},
        {"older rules", "\"identityVersion\":1", "\"identityVersion\":0", 0, 2},
        {"no rules told", "\"identityVersion\":1", "\"someKey\":1", 0, 2},
    };
    addThree();
    const FontCatalogResult expected = scan();
    for (const auto &row : rows) {
        replaceInCache(row.from, row.to);
        const FontCatalogResult result = scan();
        EXPECT_EQ(report.filesRead, row.read) << row.name;
        EXPECT_EQ(report.familiesIdentified, row.identified) << row.name;
        EXPECT_EQ(result.families, expected.families) << row.name;
        EXPECT_EQ(result.manufacturers, expected.manufacturers) << row.name;
        EXPECT_TRUE(readPersistedCache(cacheFile).has_value()) << row.name << ": not replaced";
    }
}

TEST_F(LoaderCache, WorksWithoutAUsableFile)
{
    addThree();
    ASSERT_EQ(::mkdir(m_folder.child("new").c_str(), 0700), 0);
    ASSERT_EQ(::mkdir(cacheFile.parent().c_str(), 0700), 0);
    ASSERT_EQ(::mkdir(cacheFile.c_str(), 0700), 0);
    EXPECT_EQ(scan().families.size(), 2u);
    EXPECT_FALSE(hasSaved);
    ASSERT_EQ(::rmdir(cacheFile.c_str()), 0);

    ASSERT_EQ(::mkfifo(cacheFile.c_str(), 0600), 0);
    EXPECT_EQ(scan().families.size(), 2u);
    EXPECT_FALSE(hasSaved) << "a pipe is not replaced";
    ASSERT_EQ(::unlink(cacheFile.c_str()), 0);
    EXPECT_EQ(scan().families.size(), 2u);
    EXPECT_TRUE(hasSaved);
}

TEST_F(LoaderCache, TriesAgainWhatCouldNotBeSaved)
{
    addThree();
    const FilePath obstacle = test::writeFile(m_folder, "new", "a file where a folder should be");
    FontCatalogLoader loader({fonts, cacheFile});
    loader.scan({}, nullptr);
    EXPECT_FALSE(loader.finishSaving());
    ::unlink(obstacle.c_str());
    loader.scan({}, nullptr);
    EXPECT_TRUE(loader.finishSaving());
    EXPECT_EQ(readPersistedCache(cacheFile).value().files.size(), 3);
}

TEST_F(LoaderCache, KeepsWhatACancelledScanRead)
{
    for (int i = 0; i < 64; ++i)
        add(QByteArray::number(i) + ".ttf", test::face("Foo", "Regular", "Foo").build());
    {
        FontCatalogLoader loader({fonts, cacheFile, true, 1});
        std::stop_source stop;
        const auto stopAtFirst = [&](const FontScanPhase &phase) {
            if (phase.kind == FontScanPhase::Kind::scanning)
                stop.request_stop();
        };
        EXPECT_FALSE(loader.scan({}, stopAtFirst, stop.get_token()));
    }
    const FontCatalogResult result = scan();
    EXPECT_LE(report.filesRead, 48);
    ASSERT_EQ(result.families.size(), 1u);
    EXPECT_EQ(result.families[0].primaryScript, WritingScript::latin);
}

TEST_F(LoaderCache, AVisitorLeavesTheFileAsItIs)
{
    addThree();
    {
        FontCatalogLoader visitor({fonts, cacheFile, false});
        EXPECT_TRUE(visitor.scan({}, nullptr));
    }
    EXPECT_EQ(cacheInode(), 0u);
    scan();
    FontCatalogLoader visitor({fonts, cacheFile, false});
    EXPECT_TRUE(visitor.scan({}, nullptr));
    EXPECT_EQ(visitor.lastScan().filesRead, 0);
}

TEST_F(LoaderCache, IsNotWrittenForFilesThatItCannotHold)
{
    addThree();
    const FilePath noText = add("caf\xe9.ttf", test::face("Cafe", "Regular", "Cafe").build());
    scan();
    const ino_t written = cacheInode();
    EXPECT_EQ(scan().families.size(), 3u);
    EXPECT_EQ(report.filesRead, 1) << "a name that is no text is read each time";
    EXPECT_EQ(cacheInode(), written);
    // Qt's temporary folder cannot remove what is no text.
    ::unlink(noText.c_str());
}

} // namespace
} // namespace lorva
