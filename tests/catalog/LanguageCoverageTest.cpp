// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#include "catalog/LanguageCoverage.h"

#include "platform/linux/FontconfigOrthographies.h"
#include "text/FontFile.h"

#include "support/TestHome.h"

#include <gmock/gmock.h>

#include <numeric>

namespace lorva {
namespace {

using testing::Contains;
using testing::ElementsAre;
using testing::Not;

Orthography written(const char *language, char32_t first, int count)
{
    std::vector<char32_t> characters(size_t(count), first);
    std::iota(characters.begin(), characters.end(), first);
    return {language, std::move(characters)};
}

/// "de", or "fr -2" where two are missing.
std::vector<std::string> lines(const std::vector<LanguageCoverage> &coverage)
{
    std::vector<std::string> all;
    for (const LanguageCoverage &each : coverage) {
        const std::string lack =
            each.missing.empty() ? "" : " -" + std::to_string(each.missing.size());
        all.push_back(each.language.toStdString() + lack);
    }
    return all;
}

TEST(LanguageCoverage, TellsWholeFromNearlySupportedLanguages)
{
    const std::vector<Orthography> book{
        written("empty", 0x100, 0),         written("tenth", 0x100, 10),
        written("whole", 0x101, 9),         written("more-than-a-tenth", 0x0FF, 11),
        written("twenty", 0x101 - 20, 400), written("twenty-one", 0x101 - 21, 400),
        written("none", 0x5000, 30),
    };
    const CharacterSet face({{0x101, 0x4FFF}});
    EXPECT_THAT(lines(languageCoverage(book, face)),
                ElementsAre("whole", "tenth -1", "twenty -20"));
    EXPECT_THAT(languageCoverage(book, face)[1],
                testing::Eq(LanguageCoverage{"tenth", 10, {0x100}}));
    EXPECT_THAT(languageCoverage(book, CharacterSet()), testing::IsEmpty());
    EXPECT_THAT(languageCoverage({}, face), testing::IsEmpty());
}

TEST(LanguageCoverage, OfRealFontsIsWhatTheyAreMadeFor)
{
    struct Row
    {
        const char *font;
        std::vector<std::string> supported;
        std::vector<std::string> others;
    };
    const Row rows[] = {
        {"truetype/inter-vf/Inter.var.ttf", {"de", "fr", "ru", "vi", "el"}, {"ar", "ja", "hi"}},
        {"opentype/fonts-hosny-amiri/Amiri-Regular.ttf", {"ar", "fa", "ur"}, {"ja", "ru"}},
        {"opentype/noto/NotoSansCJK-Regular.ttc", {"ja", "ko", "zh-CN", "zh-TW"}, {"ar", "hi"}},
    };
    const FontconfigOrthographies book;
    for (const Row &row : rows) {
        SCOPED_TRACE(row.font);
        const auto file = FontFile::open(test::realFont(row.font));
        ASSERT_TRUE(file);
        const auto face = (*file)->face({0, -1});
        ASSERT_TRUE(face);
        const auto found = lines(languageCoverage(*book.orthographies(), readCharacters(**face)));
        for (const std::string &language : row.supported)
            EXPECT_THAT(found, Contains(language));
        for (const std::string &language : row.others)
            EXPECT_THAT(found, Not(Contains(language)));
    }
}

} // namespace
} // namespace lorva
