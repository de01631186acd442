// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#include "platform/linux/FontconfigFallbackFonts.h"

#include "support/FontBuilder.h"
#include "support/TestHome.h"

#include <fontconfig/fontconfig.h>
#include <gmock/gmock.h>

#include <atomic>
#include <thread>

namespace lorva {
namespace {

using test::FontBuilder;
using test::TestHome;
using test::writeFile;
using testing::ElementsAre;
using testing::IsEmpty;

const std::u32string kLatin = [] {
    std::u32string characters;
    for (char32_t c = 0x20; c < 0x180; ++c)
        characters += c;
    return characters;
}();
const std::u32string kHebrew = [] {
    std::u32string characters;
    for (char32_t c = 0x5D0; c <= 0x5EA; ++c)
        characters += c;
    return characters;
}();

class FontconfigFallbackFontsTest : public testing::Test
{
protected:
    static void addFont(const QByteArray &name, FontBuilder builder)
    {
        writeFile(TestHome::instance().systemFonts(), name, builder.build());
    }

    static void addFont(const QByteArray &name, const std::u32string &characters)
    {
        addFont(name, FontBuilder(QString::fromLatin1(name)).codePoints(characters));
    }

    static FallbackFontLocator::Wish wish(const std::u32string &characters,
                                          const QByteArray &language = {}, int weight = 400,
                                          bool isItalic = false)
    {
        return {characters, language, weight, isItalic};
    }

    std::vector<std::string> names(const FallbackFontLocator::Wish &wish) const
    {
        std::vector<std::string> names;
        for (const FallbackFontLocator::Location &location : m_fonts.fontsFor(wish)) {
            std::string name = location.path.fileName().toStdString();
            if (location.faceIndex != 0 || location.namedInstance != -1)
                name += "#" + std::to_string(location.faceIndex) + "/"
                    + std::to_string(location.namedInstance);
            names.push_back(name);
        }
        return names;
    }

    const FontconfigFallbackFonts m_fonts;
};

TEST_F(FontconfigFallbackFontsTest, systemWithoutSuchAFontGivesNone)
{
    EXPECT_THAT(names(wish(U"天")), IsEmpty());
    addFont("latin.ttf", kLatin);
    EXPECT_THAT(names(wish(U"天")), IsEmpty());
    EXPECT_THAT(names(wish(U"")), IsEmpty());
    EXPECT_THAT(names(wish(U"\u200D")), IsEmpty());
}

TEST_F(FontconfigFallbackFontsTest, fontsWithAllCharactersComeFirst)
{
    addFont("a.ttf", U"я");
    addFont("b.ttf", U"\u0301");
    addFont("c.ttf", U"я\u0301");
    EXPECT_EQ(names(wish(U"я\u0301")), (std::vector<std::string>{"c.ttf", "a.ttf"}));
    EXPECT_THAT(names(wish(U"\u0301")), testing::UnorderedElementsAre("b.ttf", "c.ttf"));
    // A selector changes how it looks, not who has it.
    EXPECT_EQ(names(wish(U"я\u0301\uFE0E")).front(), "c.ttf");
}

TEST_F(FontconfigFallbackFontsTest, languageDecidesBetweenFonts)
{
    addFont("hebrew.ttf", kHebrew + U"a");
    addFont("latin.ttf", kLatin + U"א");
    EXPECT_EQ(names(wish(U"א", "he")).front(), "hebrew.ttf");
    EXPECT_EQ(names(wish(U"א", "he-Hebr-IL")).front(), "hebrew.ttf");
    EXPECT_EQ(names(wish(U"א", "en-GB")).front(), "latin.ttf");
}

TEST_F(FontconfigFallbackFontsTest, weightAndSlantDecideBetweenStyles)
{
    const QString family = QStringLiteral("One");
    addFont("regular.ttf", FontBuilder(family).codePoints(kLatin + U"天"));
    addFont(
        "bold.ttf",
        FontBuilder(family, QStringLiteral("Bold")).weightClass(700).codePoints(kLatin + U"天"));
    addFont("italic.ttf",
            FontBuilder(family, QStringLiteral("Italic")).italic().codePoints(kLatin + U"天"));
    EXPECT_EQ(names(wish(U"天")).front(), "regular.ttf");
    EXPECT_EQ(names(wish(U"天", {}, 800)).front(), "bold.ttf");
    EXPECT_EQ(names(wish(U"天", {}, 400, true)).front(), "italic.ttf");
}

TEST_F(FontconfigFallbackFontsTest, emojiTakeAColourFont)
{
    // Two palette entries and a base glyph list of none are enough to count as colour.
    const QByteArray cpal = QByteArray::fromHex("0000000100010001000000"
                                                "0e0000000000ff");
    const QByteArray colr = QByteArray::fromHex("0000000000000000000000000000");
    addFont("plain.ttf", kLatin + U"😀☺");
    addFont("color.ttf",
            FontBuilder(QStringLiteral("Color"))
                .codePoints(U"😀☺")
                .table("CPAL", cpal)
                .table("COLR", colr));
    EXPECT_EQ(names(wish(U"😀")).front(), "color.ttf");
    EXPECT_EQ(names(wish(U"☺\uFE0F")).front(), "color.ttf");
    EXPECT_EQ(names(wish(U"☺", "en")).front(), "plain.ttf");
    EXPECT_EQ(names(wish(U"😀\uFE0E", "en")).front(), "plain.ttf");
}

TEST_F(FontconfigFallbackFontsTest, givesAtMostEightFacesAndEachOnce)
{
    for (int i = 0; i < 12; ++i)
        addFont("f" + QByteArray::number(i) + ".ttf", U"天");
    EXPECT_EQ(names(wish(U"天")).size(), 8u);
}

TEST_F(FontconfigFallbackFontsTest, namesFacesOfCollectionsAndVariableFontsOnce)
{
    writeFile(TestHome::instance().systemFonts(), "z.ttc",
              FontBuilder::collection(
                  {FontBuilder("One").build(), FontBuilder("Two").codePoints(U"天").build()}));
    addFont("variable.ttf",
            FontBuilder("Var")
                .codePoints(U"地")
                .axis("wght", 100, 400, 900)
                .instance(QStringLiteral("Light"), {300})
                .instance(QStringLiteral("Bold"), {700}));
    EXPECT_THAT(names(wish(U"天")), ElementsAre("z.ttc#1/-1"));
    EXPECT_EQ(names(wish(U"地", {}, 700)).size(), 1u);
}

TEST_F(FontconfigFallbackFontsTest, leavesTheCurrentConfigurationAloneAndTakesManyThreads)
{
    addFont("han.ttf", U"天");
    addFont("latin.ttf", kLatin);
    FcConfig *const current = FcConfigGetCurrent();
    std::atomic<int> right = 0;
    {
        std::vector<std::jthread> threads;
        for (int i = 0; i < 4; ++i) {
            threads.emplace_back([&, i] {
                for (int weight = 100; weight <= 900; weight += 100) {
                    const QByteArray language = i % 2 == 0 ? "ja" : "zh-Hant";
                    const auto found = m_fonts.fontsFor(wish(U"天", language, weight));
                    right += found.size() == 1 && found[0].path.fileName() == "han.ttf";
                }
            });
        }
    }
    EXPECT_EQ(right, 36);
    EXPECT_EQ(FcConfigGetCurrent(), current);
    EXPECT_EQ(FontconfigFallbackFonts::shared(), FontconfigFallbackFonts::shared());
}

} // namespace
} // namespace lorva
