// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#include "catalog/CacheSaver.h"

#include "CacheSupport.h"
#include "support/AdverseSystem.h"

#include <QProcess>
#include <QRandomGenerator>

namespace lorva {

namespace {

using test::makeCaseFolder;
using test::sampleCache;

void saveNow(CacheSaver &saver, const PersistedCache &cache)
{
    saver.save(cache);
    saver.finish();
}

TEST(CacheSaver, MakesItsFolderAndWrites)
{
    const FilePath file = makeCaseFolder().child("a").child("b").child("cache.json");
    CacheSaver saver(file);
    EXPECT_TRUE(test::readFile(file).isEmpty());
    saver.finish();
    for (int seed = 1; seed < 4; ++seed) {
        saveNow(saver, sampleCache(seed, 20));
        EXPECT_EQ(readPersistedCache(file), sampleCache(seed, 20));
        EXPECT_FALSE(saver.hasFailed());
        // Somebody clears the user's cache folder.
        ::unlink(file.c_str());
        ::rmdir(file.parent().c_str());
    }
}

TEST(CacheSaver, WritesTheLastOfSeveral)
{
    const FilePath file = makeCaseFolder().child("cache.json");
    CacheSaver saver(file);
    for (int seed = 0; seed < 50; ++seed)
        saver.save(sampleCache(seed, 20));
    saver.finish();
    EXPECT_EQ(readPersistedCache(file), sampleCache(49, 20));
}

TEST(CacheSaver, WritesTheLastBeforeItIsGone)
{
    const FilePath file = makeCaseFolder().child("cache.json");
    for (int seed = 0; seed < 20; ++seed) {
        {
            CacheSaver saver(file);
            saver.save(sampleCache(100, 50));
            saver.save(sampleCache(seed, 20));
        }
        EXPECT_EQ(readPersistedCache(file), sampleCache(seed, 20));
    }
}

TEST(CacheSaver, TakesSavesFromSeveralThreads)
{
    const FilePath file = makeCaseFolder().child("cache.json");
    CacheSaver saver(file);
    {
        std::vector<std::jthread> threads;
        for (int thread = 0; thread < 4; ++thread)
            threads.emplace_back([&saver, cache = sampleCache(thread, 10)] {
                for (int i = 0; i < 25; ++i)
                    i % 8 == 7 ? saver.finish() : saver.save(cache);
                saver.hasFailed();
            });
    }
    saver.finish();
    const Result<PersistedCache> cache = readPersistedCache(file);
    ASSERT_TRUE(cache);
    EXPECT_EQ(cache->files.size(), 10);
}

TEST(CacheSaver, KeepsTheOldFileWhereItMayNotWrite)
{
    const FilePath folder = makeCaseFolder();
    const FilePath file = folder.child("cache.json");
    CacheSaver saver(file);
    saveNow(saver, sampleCache(1, 20));
    ::chmod(folder.c_str(), 0555);
    {
        const test::AsOrdinaryUser user;
        saveNow(saver, sampleCache(2, 20));
        EXPECT_TRUE(saver.hasFailed());
    }
    ::chmod(folder.c_str(), 0755);
    EXPECT_EQ(readPersistedCache(file), sampleCache(1, 20));
    saveNow(saver, sampleCache(3, 20));
    EXPECT_FALSE(saver.hasFailed());
    EXPECT_EQ(readPersistedCache(file), sampleCache(3, 20));
}

TEST(CacheSaver, KeepsTheOldFileOnAFullDisk)
{
    const FilePath file = makeCaseFolder().child("cache.json");
    CacheSaver saver(file);
    saveNow(saver, sampleCache(1, 2));
    {
        const test::FullDisk disk(4096);
        saveNow(saver, sampleCache(2, 100));
    }
    EXPECT_TRUE(saver.hasFailed());
    EXPECT_EQ(readPersistedCache(file), sampleCache(1, 2));
}

TEST(CacheSaver, FailsWhereAFolderOrAFileIsInTheWay)
{
    const FilePath folder = makeCaseFolder();
    CacheSaver overFolder(folder);
    saveNow(overFolder, sampleCache(1, 1));
    EXPECT_TRUE(overFolder.hasFailed());
    EXPECT_EQ(readPersistedCache(folder).error().kind, ErrorKind::notRegularFile);

    const FilePath file = test::writeFile(folder, "file", "x");
    CacheSaver belowFile(file.child("cache.json"));
    saveNow(belowFile, sampleCache(1, 1));
    EXPECT_TRUE(belowFile.hasFailed());
    EXPECT_EQ(test::readFile(file), "x");
}

/// Which of the probe's two libraries the file holds; 0 for neither.
int parseCacheIn(const FilePath &file)
{
    const Result<PersistedCache> cache = readPersistedCache(file);
    if (!cache)
        return 0;
    return *cache == sampleCache(1, 200) ? 1 : *cache == sampleCache(2, 200) ? 2 : 0;
}

int snapshotIn(const FilePath &file)
{
    const std::optional<CatalogSnapshot> snapshot = CatalogCache(file).load();
    if (!snapshot)
        return 0;
    return *snapshot == test::sampleSnapshot(1, 200) ? 1
        : *snapshot == test::sampleSnapshot(2, 200)  ? 2
                                                     : 0;
}

/// Lets the probe save until its second library was seen and a few more reads went well; then it
/// dies wherever it stands.
void killWhileSaving(const QString &kind, const FilePath &file, int (*whatIsIn)(const FilePath &))
{
    QProcess probe;
    probe.start(QStringLiteral(LORVA_CACHE_SAVING_PROBE), {kind, file.displayText()});
    ASSERT_TRUE(probe.waitForStarted());
    int seen = 1;
    while (seen == 1 && !probe.waitForFinished(0))
        seen = whatIsIn(file);
    for (int more = QRandomGenerator::global()->bounded(6); more > 0 && seen != 0; --more)
        seen = whatIsIn(file);
    EXPECT_NE(seen, 0) << "a reader saw a broken file";
    EXPECT_EQ(probe.state(), QProcess::Running);
    probe.kill();
    probe.waitForFinished();
    EXPECT_NE(whatIsIn(file), 0) << "a broken file was left";
}

TEST(CacheSaver, LeavesAWholeFileWhenItIsKilled)
{
    const FilePath file = makeCaseFolder().child("cache.json");
    for (int round = 0; round < 20 && !HasFailure(); ++round) {
        CacheSaver(file).save(sampleCache(1, 200));
        killWhileSaving(QStringLiteral("parse"), file, parseCacheIn);
    }
}

TEST(CatalogCache, LeavesAWholeFileWhenItIsKilled)
{
    const FilePath file = makeCaseFolder().child("catalog.json");
    for (int round = 0; round < 20 && !HasFailure(); ++round) {
        CatalogCache(file).save(test::sampleSnapshot(1, 200));
        killWhileSaving(QStringLiteral("snapshot"), file, snapshotIn);
    }
}

} // namespace

} // namespace lorva
