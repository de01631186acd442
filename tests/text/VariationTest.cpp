// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#include "text/FontLimits.h"
#include "text/ItemVariationStore.h"
#include "text/LayoutSupport.h"
#include "text/MadeFonts.h"

#include <gmock/gmock.h>
#include <hb-ot.h>

#include <cmath>
#include <limits>

namespace lorva::test {

namespace {

using ::testing::ElementsAre;

constexpr FontTag kWeight = fontTag('w', 'g', 'h', 't');
constexpr FontTag kWidth = fontTag('w', 'd', 't', 'h');

std::vector<int> normalized(const FontFace &face, std::vector<VariationSetting> settings)
{
    unsigned count = 0;
    const auto font = face.shapingFont(settings);
    const int *values = hb_font_get_var_coords_normalized(font.get(), &count);
    return {values, values + count};
}

hb_glyph_extents_t extentsOf(hb_font_t *font, quint32 glyph)
{
    hb_glyph_extents_t extents = {};
    EXPECT_TRUE(hb_font_get_glyph_extents(font, glyph, &extents));
    return extents;
}

void expectSameGlyph(hb_font_t *varied, hb_font_t *fixed, quint32 glyph)
{
    EXPECT_NEAR(hb_font_get_glyph_h_advance(varied, glyph),
                hb_font_get_glyph_h_advance(fixed, glyph), 1);
    const hb_glyph_extents_t a = extentsOf(varied, glyph);
    const hb_glyph_extents_t b = extentsOf(fixed, glyph);
    EXPECT_NEAR(a.x_bearing, b.x_bearing, 1);
    EXPECT_NEAR(a.y_bearing, b.y_bearing, 1);
    EXPECT_NEAR(a.width, b.width, 2) << "each side within one unit";
    EXPECT_NEAR(a.height, b.height, 2);
}

/// Big-endian words.
QByteArray words(std::initializer_list<int> numbers)
{
    QByteArray bytes;
    for (const int number : numbers)
        bytes.append(char(number >> 8)).append(char(number));
    return bytes;
}

/// Two regions on one axis (0 … 1 … 1 and −1 … −1 … 0); one set of deltas, the first of them wide.
QByteArray variationStore(int wideCount = 1)
{
    QByteArray store = words({1, 0, 32, 1, 0, 12});
    store += words({2, wideCount, 2, 0, 1});
    store += words({1000}).append(char(-10)) + words({-2000}).append(char(20));
    store += words({0, 0}); // what the rows leave until byte 32
    return store + words({1, 2, 0, 16384, 16384, -16384, -16384, 0});
}

} // namespace

TEST(Variations, GiveTheGlyphsThatAStaticInstanceHas)
{
    struct Case
    {
        const char *variable;
        const char *fixed;
        std::vector<VariationSetting> settings;
    };
    const Case cases[] = {
        {"phantom.ttf", "phantom-650-110.ttf", {{kWeight, 650}, {kWidth, 110}}},
        {"phantom.ttf", "phantom-200.ttf", {{kWeight, 200}}},
        {"avar1.ttf", "avar1-650.ttf", {{kWeight, 650}}},
        {"mvar.ttf", "mvar-650.ttf", {{kWeight, 650}}},
        {"cff2.otf", "cff2-650.otf", {{kWeight, 650}}},
        {"inter-part.ttf", "inter-part-650.ttf", {{kWeight, 650}}},
        {"inter-part.ttf", "inter-part-150.ttf", {{kWeight, 150}}},
    };
    for (const Case &c : cases) {
        SCOPED_TRACE(c.fixed);
        const auto variable = openFace(madeFont(c.variable));
        const auto fixed = openFace(madeFont(c.fixed));
        ASSERT_TRUE(fixed->axes().empty());
        ASSERT_EQ(variable->glyphCount(), fixed->glyphCount());
        const auto varied = variable->shapingFont(c.settings);
        const auto unvaried = variable->shapingFont({});
        for (quint32 glyph = 0; glyph < quint32(fixed->glyphCount()); ++glyph)
            expectSameGlyph(varied.get(), fixed->shapingFont({}).get(), glyph);
        EXPECT_NE(hb_font_get_glyph_h_advance(varied.get(), 1),
                  hb_font_get_glyph_h_advance(unvaried.get(), 1));
    }
}

/// Worked out by hand from the tables' own numbers.
TEST(Variations, FollowBothVersionsOfAvar)
{
    struct Case
    {
        const char *font;
        double weight;
        double width;
        std::vector<int> normalized;
    };
    const Case cases[] = {
        {"phantom.ttf", 650, 125, {8192, 16384}},
        {"avar1.ttf", 650, 100, {13107, 0}},
        {"avar1.ttf", 250, 75, {-8192, -16384}},
        {"avar2.ttf", 100, 100, {-16384, 0}},
        {"avar2.ttf", 650, 100, {8192, 4096}},
        {"avar2.ttf", 900, 100, {16384, 8192}},
        // Half of the width axis is a quarter by its segments, before the deltas.
        {"avar2.ttf", 400, 112.5, {0, 4096}},
        {"avar2.ttf", 900, 125, {12288, 16384}},
        {"avar2-mapped.ttf", 650, 100, {12288, 0}},
        {"avar2-mapped.ttf", 900, 125, {16384, 12288}},
    };
    for (const Case &c : cases) {
        const auto face = openFace(madeFont(c.font));
        EXPECT_EQ(normalized(*face, {{kWeight, c.weight}, {kWidth, c.width}}), c.normalized)
            << c.font << c.weight;
    }
    const auto heavy =
        openFace(madeFont("avar2.ttf"))->shapingFont(std::vector<VariationSetting>{{kWeight, 900}});
    EXPECT_EQ(hb_font_get_glyph_h_advance(heavy.get(), 1), 500 + 220 + 50 + 17)
        << "the weight pulls half of the width along";
}

TEST(Variations, OfTheSecondAvarBearDamageAnywhere)
{
    const QByteArray sound = test::readFile(madeFont("avar2.ttf"));
    const auto entry = sound.indexOf("avar");
    const auto offset = qFromBigEndian<quint32>(sound.data() + entry + 8);
    const auto length = qFromBigEndian<quint32>(sound.data() + entry + 12);
    for (quint32 at = 0; at < length; ++at) {
        for (const char byte : {char(0xFF), char(0x7F), char(0)}) {
            QByteArray damaged = sound;
            damaged[qsizetype(offset) + qsizetype(at)] = byte;
            const auto face = openFace(writeFont(damaged));
            for (const int value : normalized(*face, {{kWeight, 650}, {kWidth, 110}}))
                EXPECT_LE(std::abs(value), 1 << 17) << at;
            const Font font(face, 20, {{kWeight, 650}});
            EXPECT_TRUE(std::isfinite(TextLayout(QStringLiteral("AB"), font).size().width()));
        }
    }
}

TEST(Variations, StayWithinTheirAxes)
{
    const auto face = openFace(madeFont("phantom.ttf"));
    constexpr double kNan = std::numeric_limits<double>::quiet_NaN();
    constexpr double kInfinite = std::numeric_limits<double>::infinity();
    struct Case
    {
        std::vector<VariationSetting> settings;
        std::vector<int> normalized;
    };
    const Case cases[] = {
        {{{kWeight, 5000}}, {16384, 0}},
        {{{kWeight, -5000}}, {-16384, 0}},
        {{{kWeight, kInfinite}}, {16384, 0}},
        {{{kWeight, -kInfinite}}, {-16384, 0}},
        {{{kWeight, 1e300}}, {16384, 0}},
        {{{kWeight, 650}, {kWeight, kNan}}, {8192, 0}},
        {{{kWeight, 900}, {kWeight, 650}}, {8192, 0}},
        {{{fontTag('o', 'p', 's', 'z'), 12}, {kWidth, 125}}, {0, 16384}},
    };
    for (const Case &c : cases)
        EXPECT_EQ(normalized(*face, c.settings), c.normalized) << c.settings.front().value;
    EXPECT_THAT(normalized(*openFace(face->path(), {0, -1}), {{kWeight, kNan}}), ElementsAre());
}

TEST(Variations, OfANamedInstanceAreWhereItStarts)
{
    const auto black = openFace(madeFont("phantom.ttf"), {0, 0});
    EXPECT_EQ(normalized(*black, {}), (std::vector<int>{16384, 0}));
    EXPECT_EQ(normalized(*black, {{kWidth, 125}}), (std::vector<int>{16384, 16384}));
    EXPECT_EQ(normalized(*black, {{kWeight, 650}}), (std::vector<int>{8192, 0}));
}

TEST(Variations, MoveTheMetrics)
{
    const auto face = openFace(madeFont("mvar.ttf"));
    const auto fixed = openFace(madeFont("mvar-650.ttf"));
    const Font font(face, 1000);
    EXPECT_NEAR(font.capHeight(), 700, 0.01);
    const Font heavy = font.withVariations({{kWeight, 900}});
    EXPECT_NEAR(heavy.capHeight(), 740, 0.01);
    EXPECT_NEAR(heavy.xHeight(), 560, 0.01);
    EXPECT_NEAR(heavy.ascent(), 900, 0.01);
    EXPECT_NEAR(heavy.descent(), 250, 0.01);
    const Font middle = font.withVariations({{kWeight, 650}});
    EXPECT_NEAR(middle.capHeight(), fixed->metrics().capHeight, 1);
    EXPECT_NEAR(middle.xHeight(), fixed->metrics().xHeight, 1);
    EXPECT_NEAR(middle.ascent(), fixed->metrics().ascender, 1);
    EXPECT_EQ(font.withVariations({{kWeight, 100}}).capHeight(), font.capHeight());
}

TEST(Axes, AreFoundByTheirTags)
{
    const auto face = builtFace(FontBuilder()
                                    .axis("wght", 100, 400, 900, true)
                                    .axis("wght", 1, 2, 3)
                                    .axis("GRAD", 5, 5, 5));
    const auto weight = face->axis(kWeight);
    ASSERT_TRUE(weight);
    EXPECT_EQ(weight->maxValue, 900) << "the first of two";
    EXPECT_TRUE(weight->isHidden);
    EXPECT_EQ(face->axis(fontTag('G', 'R', 'A', 'D'))->minValue, 5);
    EXPECT_FALSE(face->axis(kWidth));
    EXPECT_FALSE(builtFace(FontBuilder())->axis(kWeight));
}

TEST(Axes, ThatCannotBeAreMendedAsTheShaperDoes)
{
    struct Case
    {
        const char *what;
        std::array<double, 3> given;
        std::array<double, 3> kept;
    };
    const Case cases[] = {
        {"minimum above maximum", {900, 400, 100}, {400, 400, 400}},
        {"default below", {300, 100, 900}, {100, 100, 900}},
        {"default above", {100, 1000, 900}, {100, 1000, 1000}},
        {"all zero", {0, 0, 0}, {0, 0, 0}},
        {"as far as numbers go", {-32768, 0, 32767}, {-32768, 0, 32767}},
    };
    for (const Case &c : cases) {
        SCOPED_TRACE(c.what);
        const auto face = builtFace(FontBuilder()
                                        .axis("wght", c.given[0], c.given[1], c.given[2])
                                        .instance("Far", {30000})
                                        .instance("Low", {-30000}));
        const VariationAxis axis = *face->axis(kWeight);
        EXPECT_THAT((std::array<double, 3>{axis.minValue, axis.defaultValue, axis.maxValue}),
                    ::testing::ElementsAreArray(c.kept));
        EXPECT_EQ(face->namedInstances()[0].coordinates[0].value, std::min(30000.0, c.kept[2]));
        EXPECT_EQ(face->namedInstances()[1].coordinates[0].value, std::max(-30000.0, c.kept[0]));
        for (const double value : {-1e9, c.kept[0], c.kept[1], c.kept[2], 1e9}) {
            for (const int coordinate : normalized(*face, {{kWeight, value}}))
                EXPECT_LE(std::abs(coordinate), 16384);
        }
    }
}

TEST(Axes, AreAsManyAsTheLimit)
{
    const auto faceOf = [](int count) {
        FontBuilder font;
        for (int i = 0; i < count; ++i)
            font.axis(QByteArray("A%1").replace("%1", QByteArray::number(100 + i)), 0, 0, 1);
        return builtFace(font);
    };
    EXPECT_EQ(faceOf(kMaxVariationAxes)->axes().size(), size_t(kMaxVariationAxes));
    EXPECT_TRUE(faceOf(kMaxVariationAxes + 1)->axes().empty());
    EXPECT_EQ(
        faceOf(64)
            ->shapingFont(std::vector<VariationSetting>(5000, {fontTag('A', '1', '6', '3'), 1}))
            .use_count(),
        1);
}

TEST(FormatNumber, KnowsCompactOutlinesAndBitmapsAlone)
{
    EXPECT_EQ(openFace(madeFont("cff2.otf"))->formatNumber(), 3);
    EXPECT_EQ(builtFace(FontBuilder().table("CFF2", "\2"))->formatNumber(), 3);
    EXPECT_EQ(openFace(realFont("truetype/noto/NotoColorEmoji.ttf"))->formatNumber(), 5);
    EXPECT_EQ(builtFace(FontBuilder().table("glyf", QByteArray(""))).get()->formatNumber(), 5);
    EXPECT_EQ(openFace(madeFont("phantom.ttf"))->formatNumber(), 1);
}

TEST(ItemVariationStore, AddsTheDeltasOfItsRegions)
{
    const QByteArray bytes = variationStore();
    const ItemVariationStore store{TableView(bytes)};
    struct Case
    {
        DeltaSetIndex index;
        int coordinate;
        double delta;
    };
    const Case cases[] = {
        {{0, 0}, 0, 0},        {{0, 0}, 16384, 1000},
        {{0, 0}, 8192, 500},   {{0, 0}, -16384, -10},
        {{0, 0}, -4096, -2.5}, {{0, 1}, 4096, -500},
        {{0, 1}, -16384, 20},  {{0, 2}, 16384, 0},
        {{1, 0}, 16384, 0},    {{0xFFFF, 0xFFFF}, 16384, 0},
        {{0, 0}, 30000, 0},
    };
    for (const Case &c : cases) {
        const std::vector<int> at{c.coordinate};
        EXPECT_DOUBLE_EQ(store.delta(c.index.outer, c.index.inner, at), c.delta) << c.coordinate;
        EXPECT_DOUBLE_EQ(store.delta(c.index, store.regionScalars(at)), c.delta);
    }
    EXPECT_EQ(store.delta(0, 0, {}), 0) << "a missing coordinate is 0";
    EXPECT_EQ(ItemVariationStore().delta(0, 0, {}), 0);
    // All wide: two words a row, so that the second row begins two bytes later.
    const QByteArray wide = variationStore(2);
    EXPECT_EQ(ItemVariationStore{TableView(wide)}.delta(0, 0, std::vector<int>{16384}), 1000);
    EXPECT_EQ(ItemVariationStore{TableView(wide)}.delta(0, 0, std::vector<int>{-16384}),
              0xF6F8 - 0x10000);
}

TEST(ItemVariationStore, ReadsLongWords)
{
    QByteArray store = words({1, 0, 32, 1, 0, 12});
    store += words({1, 0x8001, 2, 0, 1, 1, 0x86A0, -300});
    store += QByteArray(32 - store.size(), '\0');
    store += words({1, 2, 0, 16384, 16384, -16384, -16384, 0});
    const ItemVariationStore reader{TableView(store)};
    EXPECT_EQ(reader.delta(0, 0, std::vector<int>{16384}), 100000);
    EXPECT_EQ(reader.delta(0, 0, std::vector<int>{-16384}), -300);
}

TEST(ItemVariationStore, BearsDamageAnywhere)
{
    const QByteArray sound = variationStore();
    const std::vector<int> at{8192};
    for (qsizetype i = 0; i < sound.size(); ++i) {
        QByteArray largest = sound;
        largest[i] = char(0xFF);
        for (const QByteArray &bytes : {sound.first(i), largest}) {
            const ItemVariationStore store{TableView(bytes)};
            EXPECT_LE(store.regionScalars(at).size(), size_t(kMaxVariationRegions));
            for (const quint16 inner : {quint16(0), quint16(1), quint16(0xFFFE)})
                EXPECT_LE(std::abs(store.delta(0, inner, at)), 1e6) << i;
        }
    }
}

TEST(DeltaSetIndexMap, SplitsItsEntries)
{
    struct Case
    {
        const char *what;
        QByteArray table;
        quint32 index;
        DeltaSetIndex mapped;
    };
    const QByteArray narrow = QByteArray("\0\x03\0\3\x12\x34\xFF", 7);
    const QByteArray wide = QByteArray("\1\x37\0\0\0\1\x12\x34\x56\x78", 10);
    const Case cases[] = {
        {"none", {}, 0x00020003, {2, 3}},
        {"one byte, four bits", narrow, 0, {1, 2}},
        {"the second", narrow, 1, {3, 4}},
        {"beyond the last", narrow, 70000, {15, 15}},
        {"four bytes, eight bits", wide, 0, {0x3456, 0x78}},
        {"unknown format", QByteArray("\2\x03\0\1\x12", 5), 0x00020003, {2, 3}},
        {"cut", narrow.first(6), 0x00020003, {2, 3}},
    };
    for (const Case &c : cases)
        EXPECT_EQ(DeltaSetIndexMap(TableView(c.table)).map(c.index), c.mapped) << c.what;
}

} // namespace lorva::test
