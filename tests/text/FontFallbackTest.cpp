// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#include "text/FontFallback.h"

#include "platform/FallbackFontLocator.h"
#include "support/RowNames.h"
#include "text/GlyphPainter.h"
#include "text/LayoutSupport.h"
#include "text/WarmFaces.h"

#include <gmock/gmock.h>

#include <atomic>
#include <thread>

using namespace lorva;
using namespace lorva::test;

namespace {

/// Knows some fonts and what they are said to have; keeps what it was asked.
class ScriptedLocator final : public FallbackFontLocator
{
public:
    struct Known
    {
        Location location;
        std::u32string characters;
        QByteArray language;
    };

    explicit ScriptedLocator(std::vector<Known> fonts)
        : m_fonts(std::move(fonts))
    {
    }

    std::vector<Location> fontsFor(const Wish &wish) const override
    {
        ++asked;
        const std::lock_guard lock(m_mutex);
        lastWeight = wish.weight;
        lastIsItalic = wish.isItalic;
        std::vector<Location> found;
        for (const Known &known : m_fonts) {
            if (known.characters.find(wish.characters.front()) == std::u32string::npos)
                continue;
            const bool isPreferred = known.language == wish.language && !known.language.isEmpty();
            found.insert(isPreferred ? found.begin() : found.end(), known.location);
        }
        return found;
    }

    mutable std::atomic<int> asked = 0;
    mutable int lastWeight = 0;
    mutable bool lastIsItalic = false;

private:
    mutable std::mutex m_mutex;
    const std::vector<Known> m_fonts;
};

ScriptedLocator::Known built(const QString &name, const std::u32string &characters,
                             const QByteArray &language = {}, int capHeight = 700)
{
    FontBuilder builder(name);
    builder.postScriptName(name).codePoints(characters).capHeight(capHeight);
    return {{writeFont(builder.build(), name.toUtf8() + ".ttf")}, characters, language};
}

const std::u32string kHan = U"天地日本語";

std::shared_ptr<const ScriptedLocator> someFonts()
{
    static const auto locator =
        std::make_shared<const ScriptedLocator>(std::vector<ScriptedLocator::Known>{
            {{FilePath("/nowhere/gone.ttf")}, kHan + U"😀", {}},
            // Said to have what it lacks.
            {built(QStringLiteral("Liar"), U"x").location, kHan, {}},
            built(QStringLiteral("Ja"), kHan + U"の", "ja"),
            built(QStringLiteral("Zh"), kHan, "zh-Hans"),
            built(QStringLiteral("Part"), U"я"),
            built(QStringLiteral("Whole"), U"я\u0301\u0432"),
            built(QStringLiteral("Emoji"), U"😀👩\U0001F1E9\U0001F1EA1\u20E3\uE000"),
            built(QStringLiteral("Arab"), U"سلام")});
    return locator;
}

TextLayoutOptions withFallback(const QByteArray &language = {})
{
    TextLayoutOptions options;
    options.fallback = std::make_shared<const FontFallback>(someFonts());
    options.language = language;
    return options;
}

/// "Main:0,1 Ja:2,3": fonts of the first line's runs and their clusters.
std::string fontsText(const TextLayout &layout)
{
    QStringList runs;
    for (const GlyphRun &run : layout.lines().front().runs) {
        QStringList clusters;
        for (const PositionedGlyph &glyph : run.glyphs)
            clusters << QString::number(glyph.cluster) + (glyph.glyph == 0 ? u"!" : u"");
        const QString name = run.font.face()->names().postScriptName;
        runs << QString((name.isEmpty() ? QStringLiteral("Main") : name) + u':'
                        + clusters.join(u','));
    }
    return runs.join(u' ').toStdString();
}

struct FallbackRow
{
    const char *text;
    const char *runs;
    const char *language = "";
};

void PrintTo(const FallbackRow &row, std::ostream *out)
{
    *out << nameText(row.text) << ' ' << row.language;
}

class Fallback : public ::testing::TestWithParam<FallbackRow>
{
};

TEST_P(Fallback, takesWholeClustersThatTheFaceLacks)
{
    const FallbackRow &row = GetParam();
    const TextLayout layout(QString::fromUtf8(row.text), boxFont(), withFallback(row.language));
    EXPECT_EQ(fontsText(layout), row.runs) << row.text;
}

INSTANTIATE_TEST_SUITE_P(
    Runs, Fallback,
    ::testing::Values(FallbackRow{"abc", "Main:0,1,2"},
                      FallbackRow{"a天地b", "Main:0 Ja:1,2 Main:3"},
                      FallbackRow{"天", "Ja:0", "ja"}, FallbackRow{"天", "Zh:0", "zh-Hans"},
                      // Kana tell the language of the ideographs around them.
                      FallbackRow{"日の本", "Ja:0 Ja:1 Ja:2"},
                      // Punctuation and spaces that the face has stay with it.
                      FallbackRow{"日, 本", "Ja:0 Main:1,2 Ja:3"},
                      // A font that has only the first character is the last resort.
                      FallbackRow{"я\u0301", "Whole:0,0"}, FallbackRow{"я\u0302", "Part:0,0!"},
                      // What no font has shows as the face's own missing glyph.
                      FallbackRow{"a\u0531", "Main:0 Main:1!"}, FallbackRow{"\uE000", "Main:0!"},
                      // Joiners, selectors and controls are not missed, and never cut a cluster.
                      FallbackRow{"a\u200Db", "Main:0,0,2"},
                      FallbackRow{"a\x01"
                                  "b",
                                  "Main:0,1,2"},
                      FallbackRow{"👩\u200D👩!", "Emoji:0,0 Main:5"},
                      FallbackRow{"1\uFE0F\u20E3"
                                  "1",
                                  "Emoji:0,0 Main:3"},
                      FallbackRow{"\U0001F1E9\U0001F1EA", "Emoji:0,0"},
                      FallbackRow{"سلام ab", "Main:5,6 Main:4 Arab:3,2,1,0"},
                      // Spaces and the no-break hyphen have stand-ins in the face itself.
                      FallbackRow{"a\u2003b", "Main:0,1,2"}));

TEST(FontFallback, LeavesAloneWhatTheShaperComposes)
{
    const Font main = boxFont(U"\u00E9\u0301x");
    const TextLayout composed(QString::fromUtf8("e\u0301"), main, withFallback());
    EXPECT_EQ(fontsText(composed), "Main:0");
    const int before = someFonts()->asked;
    const TextLayout plain(QStringLiteral("plain text"), main, withFallback());
    EXPECT_EQ(someFonts()->asked, before);
}

TEST(FontFallback, ChangesNothingWithoutIt)
{
    const TextLayout layout(QString::fromUtf8("a天"), boxFont());
    EXPECT_EQ(fontsText(layout), "Main:0 Main:1!");
}

TEST(FontFallback, KeepsTheSizeAndDropsTheFeatures)
{
    const Font main = boxFont().withFeatures({{fontTag('s', 's', '0', '1'), 1}});
    const TextLayout layout(QString::fromUtf8("天"), main, withFallback());
    const Font &used = layout.lines().front().runs.front().font;
    EXPECT_EQ(used.pointSize(), main.pointSize());
    EXPECT_TRUE(used.features().empty());
}

TEST(FontFallback, LinesGrowWithAHigherFontAndOnlyThose)
{
    const Font main = realFontAt("truetype/dejavu/DejaVuSans.ttf", 20);
    const auto locator = std::make_shared<ScriptedLocator>(std::vector<ScriptedLocator::Known>{
        {{realFont("opentype/noto/NotoSansCJK-Regular.ttc")}, U"天", {}}});
    TextLayoutOptions options;
    options.fallback = std::make_shared<const FontFallback>(locator);
    const TextLayout layout(QString::fromUtf8("a\n天\na"), main, options);
    const std::vector<LayoutLine> &lines = layout.lines();
    EXPECT_NEAR(lines[0].ascent, main.ascent(), 0.001);
    EXPECT_NEAR(lines[1].ascent, lines[1].runs[0].font.ascent(), 0.001);
    EXPECT_GT(lines[1].ascent, lines[0].ascent);
    for (size_t i = 1; i < lines.size(); ++i)
        EXPECT_NEAR(lines[i].origin.y() - lines[i].ascent,
                    lines[i - 1].origin.y() + lines[i - 1].descent + main.lineGap(), 0.001);
}

TEST(FontFallback, TheEllipsisStaysTheFacesOwn)
{
    TextLayoutOptions options = withFallback();
    options.width = 18;
    options.lineBreakMode = LineBreakMode::truncateTail;
    EXPECT_EQ(fontsText(TextLayout(QString::fromUtf8("天地日本"), boxFont(), options)),
              "Ja:0,1 Main:2");
}

TEST(FontFallback, RemembersAnswersWithinABound)
{
    const auto locator = std::make_shared<ScriptedLocator>(
        std::vector<ScriptedLocator::Known>{built(QStringLiteral("Han"), kHan)});
    const FontFallback fallback(locator);
    const Font like = boxFont();
    const auto ask = [&](char32_t c) { return fallback.fontFor({&c, 1}, {}, like); };
    const Font first = ask(U'天');
    EXPECT_FALSE(first.isNull());
    EXPECT_EQ(ask(U'天'), first);
    EXPECT_TRUE(ask(0x5000).isNull());
    EXPECT_TRUE(ask(0x5000).isNull());
    EXPECT_EQ(locator->asked, 2);
    for (char32_t c = 0x6000; c < 0x6000 + 5000; ++c)
        ask(c);
    const int before = locator->asked;
    EXPECT_EQ(ask(U'天'), first);
    EXPECT_EQ(locator->asked, before + 1);
}

TEST(FontFallback, AsksForTheWeightAndSlantOfTheFace)
{
    struct Row
    {
        const char *font;
        std::vector<VariationSetting> variations;
        int weight;
        bool isItalic;
    };
    const FontTag weight = fontTag('w', 'g', 'h', 't');
    for (const Row &row : std::initializer_list<Row>{
             {"truetype/dejavu/DejaVuSans.ttf", {}, 400, false},
             {"opentype/inter/Inter-SemiBoldItalic.otf", {}, 600, true},
             {"truetype/inter-vf/Inter-roman.var.ttf", {{weight, 870}}, 900, false},
             {"truetype/inter-vf/Inter-roman.var.ttf", {{weight, std::nan("")}}, 400, false}}) {
        const auto locator = std::make_shared<ScriptedLocator>(
            std::vector<ScriptedLocator::Known>{built(QStringLiteral("Han"), kHan)});
        const char32_t c = U'天';
        const Font like = realFontAt(row.font, 12).withVariations(row.variations);
        EXPECT_FALSE(FontFallback(locator).fontFor({&c, 1}, {}, like).isNull());
        EXPECT_EQ(locator->lastWeight, row.weight) << row.font;
        EXPECT_EQ(locator->lastIsItalic, row.isItalic) << row.font;
    }
}

TEST(FontFallback, VariableFontsTakeTheWeight)
{
    const auto locator = std::make_shared<ScriptedLocator>(std::vector<ScriptedLocator::Known>{
        {{realFont("truetype/inter-vf/Inter-roman.var.ttf")}, U"я", {}}});
    const Font like = realFontAt("opentype/inter/Inter-Bold.otf", 12);
    const char32_t c = U'я';
    const Font font = FontFallback(locator).fontFor({&c, 1}, {}, like);
    const std::vector<VariationSetting> bold{{fontTag('w', 'g', 'h', 't'), 700}};
    EXPECT_EQ(font.variations(), bold);
}

TEST(FontFallback, AsksNobodyForNothing)
{
    const char32_t joiner = 0x200D;
    const Font like = boxFont();
    EXPECT_TRUE(FontFallback(nullptr).fontFor({&joiner, 1}, {}, like).isNull());
    EXPECT_TRUE(FontFallback(someFonts()).fontFor({}, {}, like).isNull());
    EXPECT_TRUE(FontFallback(someFonts()).fontFor({&joiner, 1}, {}, like).isNull());
    const char32_t han = U'天';
    EXPECT_TRUE(FontFallback(someFonts()).fontFor({&han, 1}, {}, Font()).isNull());
}

/// Faces, the fallback and what is warm are shared; every thread must lay out what one alone does.
TEST(FontFallback, IsSharedBetweenThreads)
{
    const auto locator = std::make_shared<ScriptedLocator>(std::vector<ScriptedLocator::Known>{
        {{realFont("opentype/fonts-hosny-amiri/Amiri-Regular.ttf")}, U"سلام", {}},
        {{realFont("truetype/lohit-devanagari/Lohit-Devanagari.ttf")}, U"क", {}},
        {{realFont("truetype/noto/NotoSansThai-Regular.ttf")}, U"ภไ", {}},
        {{FilePath("/nowhere/gone.ttf")}, U"天", {}}});
    const QString text = QString::fromUtf8("office سلام क्षत्रिय ภาษาไทย 天 ").repeated(5);
    const Font font = realFontAt("opentype/ebgaramond/EBGaramond12-Regular.otf", 18);
    TextLayoutOptions options;
    options.width = 150;
    options.fallback = std::make_shared<const FontFallback>(locator);
    const auto lay = [&] {
        const TextLayout layout(text, font, options);
        return std::pair(fontsText(layout), layout.inkBounds());
    };
    const auto alone = lay();
    std::atomic<int> same = 0;
    std::vector<std::jthread> threads;
    for (int i = 0; i < 4; ++i) {
        threads.emplace_back([&, i] {
            for (int round = 0; round < 8; ++round) {
                if (i == 0)
                    WarmFaces::instance().clear();
                // A second one begins empty, so that files are opened side by side too.
                TextLayoutOptions fresh = options;
                fresh.fallback = std::make_shared<const FontFallback>(locator);
                const TextLayout other(text, font, round % 2 == 0 ? options : fresh);
                same += fontsText(other) == alone.first && lay() == alone;
            }
        });
    }
    threads.clear();
    EXPECT_EQ(same, 32);
}

} // namespace
