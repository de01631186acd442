// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#include "base/BoundedCache.h"

#include <gtest/gtest.h>

#include <string>

namespace lorva {

namespace {

std::string held(BoundedCache<char, int> &cache, const std::string &keys)
{
    std::string found;
    for (const char key : keys) {
        if (cache.find(key))
            found += key;
    }
    return found;
}

TEST(BoundedCache, DropsTheLeastRecentlyUsed)
{
    BoundedCache<char, int> cache(3);
    cache.insert('a', 1);
    cache.insert('b', 2);
    cache.insert('c', 3);
    EXPECT_EQ(cache.find('a'), 1); // now b is the oldest
    cache.insert('d', 4);
    EXPECT_EQ(cache.size(), 3U);
    EXPECT_EQ(held(cache, "abcd"), "acd");
}

TEST(BoundedCache, ReplacingAValueCountsAsUse)
{
    BoundedCache<char, int> cache(2);
    cache.insert('a', 1);
    cache.insert('b', 2);
    cache.insert('a', 10);
    cache.insert('c', 3);
    EXPECT_EQ(held(cache, "abc"), "ac");
    EXPECT_EQ(cache.find('a'), 10);
}

TEST(BoundedCache, AMissIsNoUse)
{
    BoundedCache<char, int> cache(1);
    cache.insert('a', 1);
    EXPECT_EQ(cache.find('z'), std::nullopt);
    EXPECT_EQ(cache.find('a'), 1);
    cache.clear();
    EXPECT_EQ(cache.find('a'), std::nullopt);
}

TEST(BoundedCache, ALimitOfZeroKeepsNothing)
{
    BoundedCache<char, int> cache(0);
    cache.insert('a', 1);
    EXPECT_EQ(cache.size(), 0U);
    EXPECT_EQ(cache.find('a'), std::nullopt);
}

} // namespace

} // namespace lorva
