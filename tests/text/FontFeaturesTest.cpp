// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#include "text/FontFeatures.h"

#include "text/LayoutSupport.h"
#include "text/MadeFonts.h"

#include <QtEndian>

#include <gmock/gmock.h>
#include <hb-aat.h>

namespace lorva {
namespace {

using test::madeFont;
using test::openFace;
using testing::ElementsAre;
using testing::IsEmpty;

const char kGaramond[] = "opentype/ebgaramond/EBGaramond12-Regular.otf";
const char kInter[] = "truetype/inter-vf/Inter.var.ttf";
const char kAmiri[] = "opentype/fonts-hosny-amiri/Amiri-Regular.ttf";
const char kCjk[] = "opentype/noto/NotoSansCJK-Regular.ttc";
const char kLibertine[] = "opentype/linux-libertine/LinLibertine_R.otf";

FontTag tag(const char *text)
{
    return fontTag(text[0], text[1], text[2], text[3]);
}

/// "37/1 smcp Lower Case: Small Capitals (exclusive, on)"; a packed type is written as its tag.
std::string line(const FontFeature &feature)
{
    const bool isPacked = feature.tag != 0 && feature.pair.type == int(feature.tag);
    QString text = isPacked ? tagText(feature.tag) : QString::number(feature.pair.type);
    text += u'/' + QString::number(feature.pair.selector) + u' ';
    if (feature.tag != 0)
        text += tagText(feature.tag) + (feature.value == 1 ? u"" : u" off") + u' ';
    text += feature.typeName + u": " + feature.name;
    QStringList kinds;
    if (feature.isExclusive)
        kinds << QStringLiteral("exclusive");
    if (feature.isDefaultOn)
        kinds << QStringLiteral("on");
    if (!kinds.isEmpty())
        text += u" (" + kinds.join(u", ") + u')';
    return text.toStdString();
}

std::vector<std::string> lines(const std::vector<FontFeature> &features)
{
    std::vector<std::string> all;
    for (const FontFeature &feature : features)
        all.push_back(line(feature));
    return all;
}

std::vector<FontFeature> offeredBy(const FilePath &file)
{
    return fontFeatures(*openFace(file));
}

std::string settingsText(const std::vector<FontFeature> &offered,
                         const std::vector<FeaturePair> &enabled)
{
    QStringList parts;
    for (const FeatureSetting &setting : featureSettings(offered, enabled))
        parts << QString(tagText(setting.tag) + u'=' + QString::number(setting.value));
    return parts.join(u' ').toStdString();
}

TEST(FeatureRegistry, KnowsThePublishedPairs)
{
    struct Row
    {
        const char *tag;
        int type;
        int selector;
    };
#define TYPE(name) HB_AAT_LAYOUT_FEATURE_TYPE_##name
#define SELECTOR(name) HB_AAT_LAYOUT_FEATURE_SELECTOR_##name
    const Row rows[] = {
        {"rlig", TYPE(LIGATURES), SELECTOR(REQUIRED_LIGATURES_ON)},
        {"liga", TYPE(LIGATURES), SELECTOR(COMMON_LIGATURES_ON)},
        {"dlig", TYPE(LIGATURES), SELECTOR(RARE_LIGATURES_ON)},
        {"clig", TYPE(LIGATURES), SELECTOR(CONTEXTUAL_LIGATURES_ON)},
        {"hlig", TYPE(LIGATURES), SELECTOR(HISTORICAL_LIGATURES_ON)},
        {"hist", TYPE(LIGATURES), SELECTOR(HISTORICAL_LIGATURES_ON)},
        {"unic", TYPE(LETTER_CASE), 14},
        {"vert", TYPE(VERTICAL_SUBSTITUTION), SELECTOR(SUBSTITUTE_VERTICAL_FORMS_ON)},
        {"vrt2", TYPE(VERTICAL_SUBSTITUTION), SELECTOR(SUBSTITUTE_VERTICAL_FORMS_ON)},
        {"tnum", TYPE(NUMBER_SPACING), SELECTOR(MONOSPACED_NUMBERS)},
        {"pnum", TYPE(NUMBER_SPACING), SELECTOR(PROPORTIONAL_NUMBERS)},
        {"sups", TYPE(VERTICAL_POSITION), SELECTOR(SUPERIORS)},
        {"subs", TYPE(VERTICAL_POSITION), SELECTOR(INFERIORS)},
        {"ordn", TYPE(VERTICAL_POSITION), SELECTOR(ORDINALS)},
        {"sinf", TYPE(VERTICAL_POSITION), SELECTOR(SCIENTIFIC_INFERIORS)},
        {"afrc", TYPE(FRACTIONS), SELECTOR(VERTICAL_FRACTIONS)},
        {"frac", TYPE(FRACTIONS), SELECTOR(DIAGONAL_FRACTIONS)},
        {"zero", TYPE(TYPOGRAPHIC_EXTRAS), SELECTOR(SLASHED_ZERO_ON)},
        {"mgrk", TYPE(MATHEMATICAL_EXTRAS), SELECTOR(MATHEMATICAL_GREEK_ON)},
        {"titl", TYPE(STYLE_OPTIONS), SELECTOR(TITLING_CAPS)},
        {"trad", TYPE(CHARACTER_SHAPE), SELECTOR(TRADITIONAL_CHARACTERS)},
        {"smpl", TYPE(CHARACTER_SHAPE), SELECTOR(SIMPLIFIED_CHARACTERS)},
        {"jp78", TYPE(CHARACTER_SHAPE), SELECTOR(JIS1978_CHARACTERS)},
        {"jp83", TYPE(CHARACTER_SHAPE), SELECTOR(JIS1983_CHARACTERS)},
        {"jp90", TYPE(CHARACTER_SHAPE), SELECTOR(JIS1990_CHARACTERS)},
        {"jp04", TYPE(CHARACTER_SHAPE), SELECTOR(JIS2004_CHARACTERS)},
        {"expt", TYPE(CHARACTER_SHAPE), SELECTOR(EXPERT_CHARACTERS)},
        {"hojo", TYPE(CHARACTER_SHAPE), SELECTOR(HOJO_CHARACTERS)},
        {"nlck", TYPE(CHARACTER_SHAPE), SELECTOR(NLCCHARACTERS)},
        {"tnam", TYPE(CHARACTER_SHAPE), SELECTOR(TRADITIONAL_NAMES_CHARACTERS)},
        {"onum", TYPE(NUMBER_CASE), SELECTOR(LOWER_CASE_NUMBERS)},
        {"lnum", TYPE(NUMBER_CASE), SELECTOR(UPPER_CASE_NUMBERS)},
        {"pwid", TYPE(TEXT_SPACING), SELECTOR(PROPORTIONAL_TEXT)},
        {"pkna", TYPE(TEXT_SPACING), SELECTOR(PROPORTIONAL_TEXT)},
        {"fwid", TYPE(TEXT_SPACING), SELECTOR(MONOSPACED_TEXT)},
        {"hwid", TYPE(TEXT_SPACING), SELECTOR(HALF_WIDTH_TEXT)},
        {"twid", TYPE(TEXT_SPACING), SELECTOR(THIRD_WIDTH_TEXT)},
        {"qwid", TYPE(TEXT_SPACING), SELECTOR(QUARTER_WIDTH_TEXT)},
        {"palt", TYPE(TEXT_SPACING), SELECTOR(ALT_PROPORTIONAL_TEXT)},
        {"vpal", TYPE(TEXT_SPACING), SELECTOR(ALT_PROPORTIONAL_TEXT)},
        {"valt", TYPE(TEXT_SPACING), SELECTOR(ALT_PROPORTIONAL_TEXT)},
        {"halt", TYPE(TEXT_SPACING), SELECTOR(ALT_HALF_WIDTH_TEXT)},
        {"vhal", TYPE(TEXT_SPACING), SELECTOR(ALT_HALF_WIDTH_TEXT)},
        {"hngl", TYPE(TRANSLITERATION), SELECTOR(HANJA_TO_HANGUL)},
        {"ruby", TYPE(RUBY_KANA), SELECTOR(RUBY_KANA_ON)},
        {"ital", TYPE(ITALIC_CJK_ROMAN), SELECTOR(CJK_ITALIC_ROMAN_ON)},
        {"case", TYPE(CASE_SENSITIVE_LAYOUT), SELECTOR(CASE_SENSITIVE_LAYOUT_ON)},
        {"cpsp", TYPE(CASE_SENSITIVE_LAYOUT), SELECTOR(CASE_SENSITIVE_SPACING_ON)},
        {"hkna", TYPE(ALTERNATE_KANA), SELECTOR(ALTERNATE_HORIZ_KANA_ON)},
        {"vkna", TYPE(ALTERNATE_KANA), SELECTOR(ALTERNATE_VERT_KANA_ON)},
        {"ss01", TYPE(STYLISTIC_ALTERNATIVES), SELECTOR(STYLISTIC_ALT_ONE_ON)},
        {"ss12", TYPE(STYLISTIC_ALTERNATIVES), SELECTOR(STYLISTIC_ALT_TWELVE_ON)},
        {"ss20", TYPE(STYLISTIC_ALTERNATIVES), SELECTOR(STYLISTIC_ALT_TWENTY_ON)},
        {"calt", TYPE(CONTEXTUAL_ALTERNATIVES), SELECTOR(CONTEXTUAL_ALTERNATES_ON)},
        {"swsh", TYPE(CONTEXTUAL_ALTERNATIVES), SELECTOR(SWASH_ALTERNATES_ON)},
        {"cswh", TYPE(CONTEXTUAL_ALTERNATIVES), SELECTOR(CONTEXTUAL_SWASH_ALTERNATES_ON)},
        {"smcp", TYPE(LOWER_CASE), SELECTOR(LOWER_CASE_SMALL_CAPS)},
        {"pcap", TYPE(LOWER_CASE), SELECTOR(LOWER_CASE_PETITE_CAPS)},
        {"c2sc", TYPE(UPPER_CASE), SELECTOR(UPPER_CASE_SMALL_CAPS)},
        {"c2pc", TYPE(UPPER_CASE), SELECTOR(UPPER_CASE_PETITE_CAPS)},
    };
#undef TYPE
#undef SELECTOR
    for (const Row &row : rows)
        EXPECT_EQ(registeredPair(tag(row.tag)), (FeaturePair{row.type, row.selector})) << row.tag;
    for (const char *without : {"ss00", "ss21", "cv01", "kern", "salt", "numr", "ss0x", "\0\0\0"})
        EXPECT_EQ(registeredPair(tag(without)), std::nullopt) << without;
    EXPECT_EQ(featureTagName(tag("dlig")), "Discretionary Ligatures");
    EXPECT_EQ(featureTagName(tag("aalt")), "Access All Alternates");
    EXPECT_EQ(featureTagName(tag("zero")), "Slashed Zero");
    EXPECT_EQ(featureTagName(tag("ss09")), "Stylistic Set 9");
    EXPECT_EQ(featureTagName(tag("cv99")), "Character Variant 99");
    EXPECT_EQ(featureTagName(tag("XYZ ")), "");
}

TEST(FontFeatures, OffersWhatTheLayoutTablesHold)
{
    EXPECT_THAT(lines(offeredBy(madeFont("features.ttf"))),
                ElementsAre("38/1 c2sc Upper Case: Small Capitals (exclusive)",
                            "36/0 calt Contextual Alternatives: Contextual Alternates (on)",
                            "cv01/1 cv01 : Tails", "1/4 dlig Ligatures: Rare Ligatures",
                            "hist/1 hist : hist", "1/20 hlig Ligatures: Historical Ligatures",
                            "1/2 liga Ligatures: Common Ligatures (on)",
                            "21/1 lnum Number Case: Upper Case Numbers (exclusive)",
                            "21/0 onum Number Case: Lower Case Numbers (exclusive)",
                            "37/1 smcp Lower Case: Small Capitals (exclusive)",
                            "35/2 ss01 Stylistic Alternatives: Round a",
                            "35/4 ss02 Stylistic Alternatives: Stylistic Alternative 2",
                            "kern/1 kern : kern (on)"));
    EXPECT_THAT(featureTags(*openFace(madeFont("features.ttf"))),
                testing::IsSupersetOf({tag("aalt"), tag("ccmp"), tag("kern"), tag("ss02")}));
    EXPECT_THAT(fontFeatures(*test::builtFace(test::FontBuilder("Plain"))), IsEmpty());
}

TEST(FontFeatures, OffersWhatRealFontsHold)
{
    struct Row
    {
        const char *font;
        size_t count;
        std::vector<std::string> some;
    };
    const Row rows[] = {
        {kGaramond,
         41,
         {"33/0 case Case-Sensitive Layout: Case-Sensitive Layout",
          "1/20 hlig Ligatures: Historical Ligatures", "salt/1 salt : salt",
          "35/2 ss01 Stylistic Alternatives: Cyrillic alternate de, el and elj",
          "10/3 ordn Vertical Position: Ordinals (exclusive)",
          "6/0 tnum Number Spacing: Monospaced Numbers (exclusive)"}},
        {kInter,
         31,
         {"cv05/1 cv05 : Lower-case L with tail",
          "35/4 ss02 Stylistic Alternatives: Disambiguation",
          "14/4 zero Typographic Extras: Slashed Zero",
          "33/2 cpsp Case-Sensitive Layout: Case-Sensitive Spacing"}},
        {kAmiri,
         14,
         {"35/16 ss08 Stylistic Alternatives: Inverted Arabic comma", "kern/1 kern : kern (on)"}},
        {kCjk,
         16,
         {"20/2 jp78 Character Shape: JIS 1978 Characters (exclusive)",
          "20/13 nlck Character Shape: NLC Characters (exclusive)",
          "4/0 vert Vertical Substitution: Vertical Forms", "28/2 ruby Ruby Kana: Ruby Kana",
          "22/5 palt Text Spacing: Alternate Proportional Text (exclusive)"}},
        {kLibertine,
         24,
         {"nalt/1 nalt : nalt", "37/1 smcp Lower Case: Small Capitals (exclusive)"}},
    };
    for (const Row &row : rows) {
        const std::vector<std::string> offered = lines(offeredBy(test::realFont(row.font)));
        EXPECT_THAT(offered, testing::IsSupersetOf(row.some)) << row.font;
        EXPECT_EQ(offered.size(), row.count) << row.font;
    }
}

TEST(FontFeatures, TurnsEnabledPairsIntoSettings)
{
    const std::vector<FontFeature> made = offeredBy(madeFont("features.ttf"));
    const std::vector<FeaturePair> standard{{1, 2}, {36, 0}, {int(tag("kern")), 1}};
    const auto with = [&](std::initializer_list<FeaturePair> more) {
        std::vector<FeaturePair> pairs = standard;
        pairs.insert(pairs.end(), more);
        return settingsText(made, pairs);
    };
    EXPECT_EQ(with({}), "");
    EXPECT_EQ(settingsText(made, {}), "calt=0 liga=0 kern=0");
    EXPECT_EQ(settingsText(made, {{1, 2}, {35, 2}}), "calt=0 kern=0 ss01=1");
    EXPECT_EQ(with({{1, 4}, {1, 20}}), "dlig=1 hlig=1") << "ligatures add up";
    EXPECT_EQ(with({{21, 0}, {21, 1}}), "lnum=1") << "one case of numbers at a time";
    EXPECT_EQ(with({{21, 1}, {37, 1}, {21, 0}}), "smcp=1 onum=1");
    EXPECT_EQ(with({{35, 40}, {99, 9}, {int(tag("cv01")), 1}}), "cv01=1") << "not offered";
}

TEST(FontFeatures, ReadsAndSwitchesAppleSelectors)
{
    const FilePath file = madeFont("features-aat.ttf");
    const std::vector<FontFeature> offered = offeredBy(file);
    EXPECT_THAT(lines(offered),
                ElementsAre("1/2 liga Joins: Plain joins (on)", "1/4 dlig Joins: Rare Ligatures",
                            "21/0 onum Number Case: Lower Case Numbers (exclusive)",
                            "21/1 lnum Number Case: Upper Case Numbers (exclusive, on)",
                            "37/0 Lower Case: Plain (exclusive, on)",
                            "37/1 smcp Lower Case: Small Capitals (exclusive)",
                            "200/0 House: Secret"));
    struct Row
    {
        std::vector<FeaturePair> enabled;
        const char *settings;
        /// Advances of "fca1" in thousandths of the size.
        std::vector<int> advances;
    };
    const Row rows[] = {
        {{{1, 2}, {21, 1}, {37, 0}}, "", {700, 596, 582, 778}},
        {{{21, 1}, {37, 0}}, "liga=0", {617, 596, 582, 778}},
        {{{1, 2}, {1, 4}, {21, 1}, {37, 0}, {37, 1}}, "dlig=1 smcp=1", {700, 710, 510, 778}},
        {{{1, 2}, {21, 1}, {21, 0}, {37, 1}, {37, 0}}, "onum=1", {700, 596, 582, 590}},
        {{{1, 2}, {21, 1}, {37, 0}, {200, 0}}, "", {700, 596, 582, 778}},
    };
    for (const Row &row : rows) {
        EXPECT_EQ(settingsText(offered, row.enabled), row.settings);
        const Font font(openFace(file), 1000, {}, featureSettings(offered, row.enabled));
        std::vector<int> advances;
        for (const PositionedGlyph &glyph : test::glyphsOf(TextLayout("fca1", font)))
            advances.push_back(qRound(glyph.advance));
        EXPECT_EQ(advances, row.advances) << row.settings;
    }
}

TEST(FontFeatures, TellsTheFontsOwnWords)
{
    const auto face = openFace(madeFont("features.ttf"));
    const FeatureTexts variant = featureTexts(*face, tag("cv01"));
    EXPECT_EQ(variant.name, "Tails");
    EXPECT_EQ(variant.toolTip, "How the tail ends");
    EXPECT_EQ(variant.sampleText, "gag");
    EXPECT_THAT(variant.valueNames, ElementsAre(QStringLiteral("Long"), QStringLiteral("Short")));
    EXPECT_THAT(variant.characters, ElementsAre(U'g', U'y'));
    EXPECT_EQ(featureTexts(*face, tag("ss01")).name, "Round a");
    EXPECT_EQ(featureTexts(*face, tag("ss02")).name, "");
    EXPECT_EQ(featureTexts(*face, tag("liga")).name, "");
    EXPECT_EQ(featureTexts(*openFace(test::realFont(kInter)), tag("cv06")).name,
              "r with curved tail");
}

/// Whatever the tables hold, there is an answer, and what is offered can be asked for. A sample
/// takes long, so it is asked for one feature in turn.
void expectAnswers(const QByteArray &font, size_t turn)
{
    const auto file = FontFile::open(test::writeFont(font, "damaged.ttf"));
    const auto face = file ? (*file)->face({}) : failure(ErrorKind::malformed, {});
    if (!face)
        return;
    const std::vector<FontFeature> offered = fontFeatures(**face);
    std::vector<FeaturePair> all;
    for (const FontFeature &feature : offered) {
        all.push_back(feature.pair);
        EXPECT_LE(featureEffect(**face, feature.tag).touchedGlyphs, (*face)->glyphCount());
        EXPECT_LE(featureTexts(**face, feature.tag).characters.size(), 4096);
    }
    EXPECT_LE(featureSettings(offered, all).size(), offered.size());
    if (!offered.empty()) {
        EXPECT_LE(featureSample(**face, offered[turn % offered.size()].tag, 4).size(), 20);
    }
}

TEST(FontFeatures, SurvivesDamage)
{
    for (const char *name : {"features.ttf", "features-aat.ttf"}) {
        const QByteArray sound = test::readFile(madeFont(name));
        for (const char *table : {"GSUB", "GPOS", "feat", "morx"}) {
            const qsizetype record = sound.first(400).indexOf(table);
            if (record < 0)
                continue;
            const auto length = qFromBigEndian<quint32>(sound.data() + record + 12);
            const auto start = qFromBigEndian<quint32>(sound.data() + record + 8);
            for (quint32 kept = 0; kept < length; kept += 7) {
                QByteArray cut = sound;
                qToBigEndian(kept, cut.data() + record + 12);
                expectAnswers(cut, kept / 7);
                QByteArray wild = sound;
                wild[qsizetype(start) + qsizetype(kept)] = char(0xFF);
                expectAnswers(wild, kept / 7);
            }
        }
    }
}

} // namespace
} // namespace lorva
