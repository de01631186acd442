// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#include "catalog/CacheSaver.h"

#include "CacheSupport.h"
#include "support/AdverseSystem.h"

#include <thread>

namespace lorva {

namespace {

using test::makeCaseFolder;
using test::sampleCache;

TEST(CacheSaver, TakesSavesFromSeveralThreads)
{
    const FilePath file = makeCaseFolder().child("cache.json");
    CacheSaver saver(file);
    {
        std::vector<std::jthread> threads;
        for (int thread = 0; thread < 4; ++thread)
            threads.emplace_back([&saver, cache = sampleCache(thread, 10)] {
                for (int i = 0; i < 25; ++i) {
                    saver.save(cache);
                    if (i % 8 == 7) {
                        EXPECT_TRUE(saver.finish());
                    }
                }
                EXPECT_FALSE(saver.hasFailed());
            });
    }
    EXPECT_TRUE(saver.finish());
    const Result<PersistedCache> cache = readPersistedCache(file);
    ASSERT_TRUE(cache);
    EXPECT_EQ(cache->files.size(), 10);
}

TEST(CacheSaver, SaysThatItFailedUntilItWorksAgain)
{
    const FilePath folder = makeCaseFolder();
    const FilePath inTheWay = test::writeFile(folder, "file", "x");
    CacheSaver saver(inTheWay.child("cache.json"));
    EXPECT_TRUE(saver.finish()) << "nothing was asked for yet";
    saver.save(sampleCache(1, 1));
    const Result<void> saved = saver.finish();
    ASSERT_FALSE(saved);
    EXPECT_TRUE(saved.error().detail.contains(inTheWay.displayText()));
    EXPECT_TRUE(saver.hasFailed());
    EXPECT_EQ(test::readFile(inTheWay), "x");

    ::unlink(inTheWay.c_str());
    saver.save(sampleCache(1, 1));
    EXPECT_TRUE(saver.finish());
    EXPECT_FALSE(saver.hasFailed());
    EXPECT_EQ(readPersistedCache(saver.file()), sampleCache(1, 1));
}

} // namespace

} // namespace lorva
