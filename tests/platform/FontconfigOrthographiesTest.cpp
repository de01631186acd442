// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#include "platform/linux/FontconfigOrthographies.h"

#include <gmock/gmock.h>

#include <thread>

namespace lorva {
namespace {

const Orthography *find(const std::vector<Orthography> &all, const char *language)
{
    const auto found = std::find_if(all.begin(), all.end(),
                                    [&](const Orthography &o) { return o.language == language; });
    return found == all.end() ? nullptr : &*found;
}

TEST(FontconfigOrthographies, HoldTheLettersOfLanguagesByTheirTags)
{
    const FontconfigOrthographies book;
    const auto all = book.orthographies();
    struct Row
    {
        const char *language;
        std::u32string has;
        std::u32string lacks;
    };
    const Row rows[] = {
        {"de", U"azäßÜ", U"éя"},       {"fr", U"éàœç", U"ßя"},    {"ru", U"яёЖ", U"ß"},
        {"ar", U"\u0628\u0644", U"я"}, {"zh-CN", U"门国", U"門"}, {"zh-TW", U"門國", U"门"},
        {"ko", U"가힝", U"\u0628"},
    };
    for (const Row &row : rows) {
        SCOPED_TRACE(row.language);
        const Orthography *found = find(*all, row.language);
        ASSERT_TRUE(found);
        EXPECT_TRUE(std::is_sorted(found->characters.begin(), found->characters.end()));
        for (const char32_t c : row.has)
            EXPECT_THAT(found->characters, testing::Contains(c));
        for (const char32_t c : row.lacks)
            EXPECT_THAT(found->characters, testing::Not(testing::Contains(c)));
    }
    EXPECT_TRUE(std::is_sorted(all->begin(), all->end(), [](const auto &l, const auto &r) {
        return l.language < r.language;
    }));
    for (const Orthography &orthography : *all)
        EXPECT_FALSE(orthography.language.startsWith("und")) << "signs are no language";
}

TEST(FontconfigOrthographies, WriteTagsAsOthersDo)
{
    const std::pair<const char *, const char *> rows[] = {
        {"de", "de"},           {"zh-cn", "zh-CN"},   {"zh_TW", "zh-TW"},
        {"sr-latn", "sr-Latn"}, {"pap-aw", "pap-AW"}, {"", ""}};
    for (const auto &[name, tag] : rows)
        EXPECT_EQ(languageTagOf(name), tag) << name;
}

TEST(FontconfigOrthographies, AreReadOnceForAllThreads)
{
    const FontconfigOrthographies book;
    std::vector<const void *> seen(4);
    {
        std::vector<std::jthread> threads;
        for (const void *&place : seen)
            threads.emplace_back([&] { place = book.orthographies().get(); });
    }
    EXPECT_THAT(seen, testing::Each(book.orthographies().get()));
}

} // namespace
} // namespace lorva
