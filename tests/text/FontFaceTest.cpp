// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#include "text/FontFace.h"

#include "text/FontLimits.h"
#include "text/ReadingSupport.h"
#include "text/WarmFaces.h"

#include <QtEndian>

#include <gmock/gmock.h>
#include <hb-ot.h>

#include <thread>

namespace lorva::test {

namespace {

using ::testing::ElementsAre;

/// How the catalog's weights divide the trait.
int weightOfTrait(double w)
{
    constexpr std::pair<double, int> kBelow[] = {{-0.65, 100}, {-0.45, 200}, {-0.2, 300},
                                                 {0.1, 400},   {0.25, 500},  {0.4, 600},
                                                 {0.55, 700},  {0.75, 800}};
    for (const auto &[limit, weight] : kBelow)
        if (w < limit)
            return weight;
    return 900;
}

FontBuilder variable()
{
    return FontBuilder("Var Fam", "Regular").postScriptName("VarFam-Regular");
}

class WarmFacesTest : public ::testing::Test
{
protected:
    void SetUp() override { WarmFaces::instance().clear(); }
};

hb_position_t advanceOfA(const FontFace &face, std::span<const VariationSetting> variations)
{
    return hb_font_get_glyph_h_advance(face.shapingFont(variations).get(), *face.glyphFor(U'A'));
}

} // namespace

TEST(WeightTrait, BringsEveryClassBackAndTamesOddOnes)
{
    for (int weight = 100; weight <= 900; weight += 100)
        EXPECT_EQ(weightOfTrait(weightTraitFromClass(weight)), weight);
    struct Case
    {
        double weightClass;
        double trait;
    };
    constexpr Case kCases[] = {{5, 0.23},    {1, -0.8},   {9, 0.8},    {250, -0.5}, {350, -0.2},
                               {450, 0.115}, {850, 0.68}, {0, -0.998}, {28926, 1},  {-3, -0.998}};
    for (const Case &c : kCases)
        EXPECT_NEAR(weightTraitFromClass(c.weightClass), c.trait, 1e-9) << c.weightClass;
}

TEST(FontFace, ReadsTraitsFromWhicheverTableHasThem)
{
    struct Case
    {
        const char *what;
        FontBuilder font;
        FaceTraits traits;
    };
    const Case cases[] = {
        {"plain", FontBuilder(), {0, 0, false}},
        {"old scale", FontBuilder().weightClass(5), {0.23, 0, false}},
        {"absurd class", FontBuilder().weightClass(28926), {1, 0, false}},
        {"italic", FontBuilder().italic(), {0, 0.4, true}},
        {"oblique bit only", FontBuilder().fsSelection(1 << 9), {0, 0, true}},
        {"macStyle only", FontBuilder().macStyle(2), {0, 0, true}},
        {"angle only", FontBuilder().italicAngle(-6), {0, 0.2, false}},
        {"leaning left", FontBuilder().italicAngle(15), {0, -0.5, false}},
        {"absurd angle", FontBuilder().italicAngle(-3000), {0, 1, false}},
        {"no OS/2", FontBuilder().weightClass(900).withoutOs2(), {0, 0, false}},
        {"no OS/2, bold and italic in head",
         FontBuilder().macStyle(3).withoutOs2(),
         {0.4, 0, true}},
        {"no post", FontBuilder().italic().withoutTable("post"), {0, 0, true}},
    };
    for (const Case &c : cases) {
        SCOPED_TRACE(c.what);
        const FilePath path = writeFont(c.font.build());
        EXPECT_EQ(openFont(path)->descriptors()->front().traits, c.traits);
        EXPECT_EQ(openFace(path)->traits(), c.traits);
    }
}

TEST(NamedInstances, AreDescribedWithTheDefaultOnlyIfNoneEqualsIt)
{
    EXPECT_THAT(describe(writeFont(variable()
                                       .axis("wght", 100, 400, 900)
                                       .instance("Thin", {100})
                                       .instance("Extra Black!", {900}, "VF-XBlk")
                                       .build())),
                ElementsAre("0/-1 Var Fam|Regular|VarFam-Regular w0.00 s0.00",
                            "0/0 Var Fam|Thin|VarFam-Thin w-0.80 s0.00",
                            "0/1 Var Fam|Extra Black!|VF-XBlk w0.80 s0.00"));
    EXPECT_THAT(describe(writeFont(variable()
                                       .name(25, "Pre-fix")
                                       .axis("wght", 1, 400, 1000)
                                       .instance("Hair", {2})
                                       .instance("Book", {400})
                                       .build())),
                ElementsAre("0/0 Var Fam|Hair|Prefix-Hair w-0.98 s0.00",
                            "0/1 Var Fam|Book|VarFam-Regular w0.00 s0.00"));
    EXPECT_THAT(describe(writeFont(variable().axis("wdth", 75, 100, 125).build())),
                ElementsAre("0/-1 Var Fam|Regular|VarFam-Regular w0.00 s0.00"));
}

TEST(NamedInstances, LeanAsTheirAxesSay)
{
    EXPECT_THAT(describe(writeFont(variable()
                                       .axis("slnt", -12, 0, 0)
                                       .axis("ital", 0, 0, 1)
                                       .instance("Slanted", {-12, 0})
                                       .instance("Italic", {-12, 1})
                                       .instance("Roman", {0, 0})
                                       .build())),
                ElementsAre("0/0 Var Fam|Slanted|VarFam-Slanted w0.00 s0.40",
                            "0/1 Var Fam|Italic|VarFam-Italic w0.00 s0.40 i",
                            "0/2 Var Fam|Roman|VarFam-Regular w0.00 s0.00"));
}

TEST(NamedInstances, WithoutReadableNamesAreNamedByTheirCoordinates)
{
    const auto lines = describe(writeFont(FontBuilder(u"変"_qs, "Regular")
                                              .postScriptName("Hen-Regular")
                                              .axis("wght", 100, 400, 900)
                                              .instance("", {750.5})
                                              .instance(u"太"_qs, {900})
                                              .build()));
    EXPECT_THAT(lines,
                ElementsAre("0/-1 変|Regular|Hen-Regular w0.00 s0.00",
                            "0/0 変||Hen_750.5wght w0.48 s0.00",
                            "0/1 変|太|Hen_900wght w0.80 s0.00"));
    const QString endless(400, u'n');
    const auto face = builtFace(variable().axis("wght", 1, 4, 9).instance(endless, {5}), {0, 0});
    EXPECT_LE(face->names().postScriptName.size(), kMaxPostScriptNameLength);
    EXPECT_TRUE(face->names().postScriptName.startsWith(QLatin1String("VarFam-")));
}

TEST(NamedInstances, ShowAxesAndCoordinates)
{
    const FontBuilder font = variable()
                                 .axis("wght", 100, 400, 900)
                                 .axis("GRAD", -50, 0, 150, true)
                                 .instance("Bold", {700, 20})
                                 .instance("Too far", {5000, 0});
    const auto face = builtFace(font, {0, 0});
    ASSERT_EQ(face->axes().size(), 2u);
    EXPECT_EQ(tagText(face->axes()[1].tag), QLatin1String("GRAD"));
    EXPECT_TRUE(face->axes()[1].isHidden);
    EXPECT_EQ(face->axes()[1].minValue, -50);
    EXPECT_THAT(face->coordinates(),
                ElementsAre(VariationSetting{fontTag('w', 'g', 'h', 't'), 700},
                            VariationSetting{fontTag('G', 'R', 'A', 'D'), 20}));
    EXPECT_EQ(face->namedInstances()[1].coordinates[0].value, 900);
    EXPECT_EQ(face->names().fullName, QLatin1String("Var Fam Bold"));
    EXPECT_TRUE(builtFace(font)->coordinates().empty());
}

TEST(FontFace, FindsHeightsOfCapitals)
{
    struct Case
    {
        const char *what;
        FontBuilder font;
        double capHeight;
    };
    const Case cases[] = {
        {"OS/2", FontBuilder().capHeight(680), 680},
        {"old OS/2: the height of H", FontBuilder().capHeight(650).os2Version(1), 650},
        {"no OS/2: the height of H", FontBuilder().capHeight(640).withoutOs2(), 640},
        {"neither", FontBuilder().codePoints(U"x").withoutOs2().unitsPerEm(2000), 1400},
    };
    for (const Case &c : cases)
        EXPECT_EQ(builtFace(c.font)->metrics().capHeight, c.capHeight) << c.what;
    const FaceMetrics metrics = builtFace(FontBuilder().xHeight(480))->metrics();
    EXPECT_EQ(metrics.ascender, 800);
    EXPECT_EQ(metrics.descender, -200);
    EXPECT_EQ(metrics.xHeight, 480);
}

TEST(FontFace, NumbersItsFormat)
{
    const QByteArray gsub = FontBuilder().substitution("smcp", U'a', U'A').build();
    EXPECT_EQ(builtFace(FontBuilder())->formatNumber(), 1);
    EXPECT_EQ(builtFace(FontBuilder().sfntVersion(fontTag('t', 'y', 'p', '1')))->formatNumber(), 2);
    EXPECT_EQ(builtFace(FontBuilder().sfntVersion(fontTag('O', 'T', 'T', 'O')))->formatNumber(), 3);
    EXPECT_EQ(openFace(writeFont(gsub))->formatNumber(), 4);
    EXPECT_EQ(builtFace(FontBuilder().withoutTable("glyf"))->formatNumber(), 5);
}

TEST(FontFace, MapsCharactersOfEveryPlane)
{
    const auto face = builtFace(FontBuilder().codePoints(U"A永\U0001F600"));
    EXPECT_EQ(face->glyphCount(), 4);
    EXPECT_EQ(face->glyphFor(U'永'), 2u);
    EXPECT_EQ(face->glyphFor(U'\U0001F600'), 3u);
    EXPECT_EQ(face->glyphFor(U'B'), std::nullopt);
    EXPECT_EQ(face->glyphFor(char32_t(0xFFFFFFFF)), std::nullopt);
}

TEST(FaceReach, SaysWhatIsMappedAndWhatTheFamilyIsCalled)
{
    const auto file = openFont(writeFont(
        FontBuilder("Foo").name(1, u"フー"_qs, 0x411).codePoints(U"A永\U0001F600").build()));
    const std::u32string asked = {U'B', U'永', 0xFFFFFFFF, U'\U0001F600', U'A'};
    const auto reach = file->reach({0, 7}, asked);
    ASSERT_TRUE(reach);
    EXPECT_THAT(reach->isMapped, ElementsAre(false, true, false, true, true));
    EXPECT_THAT(reach->familyNames, ElementsAre(u"Foo"_qs, u"フー"_qs));
    for (const int missing : {-1, 1, 70000}) {
        const auto refused = file->reach({missing, -1}, asked);
        ASSERT_FALSE(refused);
        EXPECT_EQ(refused.error().kind, ErrorKind::notFound);
    }
}

TEST(FaceReach, CountsACharacterMapLargerThanAnyAsEmpty)
{
    QByteArray font = FontBuilder().build();
    const auto lengthAt = font.indexOf("cmap") + 12;
    font.append(5 << 20, '\0');
    const auto mapsA = [&](quint32 length) -> bool {
        qToBigEndian(length, font.data() + lengthAt);
        return openFont(writeFont(font))->reach({}, std::u32string(U"A"))->isMapped.front();
    };
    EXPECT_TRUE(mapsA(3 << 20));
    EXPECT_FALSE(mapsA(5 << 20));
}

TEST_F(WarmFacesTest, AreOnlyThoseThatMayBeDrawn)
{
    const auto file = openFont(realFont("truetype/nanum/NanumGothic.ttf"));
    const qint64 before = WarmFaces::tableBytes();
    EXPECT_TRUE(file->reach({}, std::u32string(U"A"))->isMapped.front());
    EXPECT_TRUE(openFont(writeFont(FontBuilder().withoutNames().build()))->descriptors());
    EXPECT_EQ(WarmFaces::tableBytes(), before);
}

TEST(FontFace, ShapesAtItsInstanceAndAtAskedVariations)
{
    const FilePath path = realFont("truetype/inter-vf/Inter.var.ttf");
    const auto regular = openFace(path);
    const auto thin = openFace(path, {0, 0});
    const VariationSetting black{fontTag('w', 'g', 'h', 't'), 900};
    const hb_position_t thinAdvance = advanceOfA(*thin, {});
    EXPECT_NE(thinAdvance, advanceOfA(*regular, {}));
    EXPECT_EQ(advanceOfA(*thin, {&black, 1}), advanceOfA(*regular, {&black, 1}));
    EXPECT_GT(advanceOfA(*thin, {&black, 1}), thinAdvance);
    EXPECT_TRUE(hb_font_is_immutable(thin->shapingFont({}).get()));
}

TEST(FontTags, RoundTripAndRefuseOtherText)
{
    EXPECT_EQ(tagFromText(u"wght"), fontTag('w', 'g', 'h', 't'));
    EXPECT_EQ(tagFromText(u"ab"), fontTag('a', 'b', ' ', ' '));
    EXPECT_EQ(tagText(fontTag('a', 1, 'b', char(0xE9))), QLatin1String("a?b?"));
    for (const QStringView bad :
         {QStringView(u""), QStringView(u"abcde"), QStringView(u"é"), QStringView(u"a\n")})
        EXPECT_EQ(tagFromText(bad), std::nullopt);
}

TEST_F(WarmFacesTest, LetIdleFacesGoAndMakeThemAnew)
{
    const FilePath path = realFont("opentype/noto/NotoSansCJK-Regular.ttc");
    const auto face = openFace(path);
    auto font = face->shapingFont({});
    const qint64 used = WarmFaces::tableBytes();
    EXPECT_GT(used, 1 << 20);
    WarmFaces::instance().clear();
    EXPECT_EQ(WarmFaces::tableBytes(), used); // in use: stays
    font.reset();
    WarmFaces::instance().clear();
    EXPECT_EQ(WarmFaces::tableBytes(), 0);
    EXPECT_TRUE(face->glyphFor(U'永'));
}

/// A copy of our own of an installed font: its outlines are read, not mapped.
FilePath ownCopy(const QByteArray &name)
{
    return writeFile(TestHome::instance().makeFolder("own"), name.mid(name.lastIndexOf('/') + 1),
                     readFile(realFont(name)));
}

TEST_F(WarmFacesTest, ShareTheOutlinesOfACollection)
{
    const FilePath path = ownCopy("opentype/noto/NotoSansCJK-Regular.ttc");
    const auto first = openFace(path, {0, -1})->shapingFont({});
    const qint64 one = WarmFaces::tableBytes();
    const auto second = openFace(path, {1, -1})->shapingFont({});
    EXPECT_LT(WarmFaces::tableBytes(), one + one / 4);
}

TEST_F(WarmFacesTest, StayWithinTheirBudgetOverManyFaces)
{
    std::vector<std::shared_ptr<const FontFace>> faces;
    qint64 largest = 0;
    for (const char *name :
         {"opentype/noto/NotoSansCJK-Regular.ttc", "opentype/noto/NotoSansCJK-Bold.ttc",
          "opentype/noto/NotoSerifCJK-Regular.ttc", "opentype/noto/NotoSerifCJK-Bold.ttc",
          "truetype/lxgw-wenkai/LXGWWenKai-Regular.ttf"}) {
        const qint64 before = WarmFaces::tableBytes();
        faces.push_back(openFace(ownCopy(name)));
        EXPECT_TRUE(faces.back()->shapingFont({}));
        largest = std::max(largest, WarmFaces::tableBytes() - before);
        EXPECT_LE(WarmFaces::tableBytes(), kWarmTableBytes + largest);
    }
    EXPECT_GT(WarmFaces::tableBytes(), kWarmTableBytes / 2);
    for (const auto &face : faces)
        EXPECT_GT(advanceOfA(*face, {}), 0);
}

TEST_F(WarmFacesTest, SmallFacesAreCountedToo)
{
    const FilePath path = writeFont(FontBuilder().build());
    const auto inUse = openFace(path);
    const auto font = inUse->shapingFont({});
    const qint64 one = WarmFaces::tableBytes();
    std::vector<std::shared_ptr<const FontFace>> faces;
    for (size_t i = 0; i < kWarmFaces + 40; ++i) {
        faces.push_back(openFace(writeFont(FontBuilder(QStringLiteral("F%1").arg(i)).build())));
        EXPECT_TRUE(faces.back()->shapingFont({}));
    }
    EXPECT_LE(WarmFaces::tableBytes(), one * qint64(kWarmFaces + 1) * 5 / 4);
    EXPECT_GE(WarmFaces::tableBytes(), one * qint64(kWarmFaces / 2));
    EXPECT_GT(advanceOfA(*faces.front(), {}), 0) << "an idle one is made anew";
}

TEST_F(WarmFacesTest, ServeManyThreadsAtOnce)
{
    const auto face = openFace(realFont("truetype/inter-vf/Inter.var.ttf"), {0, 0});
    const hb_position_t expected = advanceOfA(*face, {});
    const QString family = openFace(face->path())->names().family;
    WarmFaces::instance().clear();
    std::vector<std::thread> threads;
    for (int t = 0; t < 4; ++t)
        threads.emplace_back([&, t] {
            for (int round = 0; round < 200; ++round) {
                EXPECT_EQ(advanceOfA(*face, {}), expected);
                EXPECT_EQ(face->names().family, family);
                if (t == 0)
                    WarmFaces::instance().clear();
            }
        });
    for (std::thread &thread : threads)
        thread.join();
}

} // namespace lorva::test
