// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#include "catalog/StyleWeight.h"

#include "support/RowNames.h"

#include <gtest/gtest.h>

namespace lorva {
namespace {

struct LabelCase
{
    const char *label;
    /// 0: the label names none.
    int weight;
};

void PrintTo(const LabelCase &row, std::ostream *out)
{
    *out << test::nameText(row.label);
}

class LabelWeight : public testing::TestWithParam<LabelCase>
{
};

TEST_P(LabelWeight, IsReadFromTheLabel)
{
    const std::optional<int> weight = weightFromStyleLabel(QString::fromUtf8(GetParam().label));
    EXPECT_EQ(weight.value_or(0), GetParam().weight) << GetParam().label;
}

INSTANTIATE_TEST_SUITE_P(
    NumberedScale, LabelWeight,
    testing::Values(LabelCase{"W3", 300}, LabelCase{"W6", 600}, LabelCase{"W0", 100},
                    LabelCase{"W00", 100}, LabelCase{"W1", 100}, LabelCase{"W9", 900},
                    LabelCase{"W12", 900}, LabelCase{"W99", 900}, LabelCase{"Bold W3", 300},
                    LabelCase{"(W4)", 400}, LabelCase{"W8 Light", 800}, LabelCase{"W٣", 300},
                    LabelCase{"W123", 0}, LabelCase{"w6", 0}, LabelCase{"XW6", 0},
                    LabelCase{"W6b", 0}, LabelCase{"_W6", 0}, LabelCase{"W", 0},
                    LabelCase{"W123 W2", 200}));

INSTANTIATE_TEST_SUITE_P(Words, LabelWeight,
                         testing::Values(LabelCase{"Hairline", 100}, LabelCase{"Thin", 100},
                                         LabelCase{"UltraLight", 200},
                                         LabelCase{"Extra Light", 200}, LabelCase{"Semi Bold", 600},
                                         LabelCase{"Demi-Bold", 600}, LabelCase{"Semi_Bold", 600},
                                         LabelCase{"SEMIBOLD", 600}, LabelCase{"Demi Light", 300},
                                         LabelCase{"SemiLight", 300}, LabelCase{"Extra Bold", 800},
                                         LabelCase{"Ultrabold", 800}, LabelCase{"Light", 300},
                                         LabelCase{"Medium", 500}, LabelCase{"Bold", 700},
                                         LabelCase{"Black", 900}, LabelCase{"Heavy", 900},
                                         LabelCase{"Regular", 400}, LabelCase{"Normal", 400},
                                         LabelCase{"Book", 400}, LabelCase{"Roman", 400}));

INSTANTIATE_TEST_SUITE_P(
    SlantAndWidthBesideTheWeight, LabelWeight,
    testing::Values(LabelCase{"Semi Bold Italic", 600}, LabelCase{"Bold Oblique", 700},
                    LabelCase{"Condensed Light", 300}, LabelCase{"Book Italic Condensed", 400},
                    LabelCase{"Condensed Italic", 400}, LabelCase{"Display-Oblique", 400}));

INSTANTIATE_TEST_SUITE_P(
    TheTableDecidesBetweenWords, LabelWeight,
    testing::Values(LabelCase{"Bold Thin", 100}, LabelCase{"Black Regular", 900},
                    LabelCase{"Light Semi Bold", 600}, LabelCase{"Light Extra Bold", 800},
                    LabelCase{"Medium Light", 300}, LabelCase{"Semi  Bold", 700}));

INSTANTIATE_TEST_SUITE_P(NeutralWords, LabelWeight,
                         testing::Values(LabelCase{"", 400}, LabelCase{"   ", 400},
                                         LabelCase{"Condensed", 400},
                                         LabelCase{"Display Narrow", 400},
                                         LabelCase{"Semi Mono", 400}, LabelCase{"Mono\tWide", 400},
                                         LabelCase{"Trial Plus Variable", 400}));

INSTANTIATE_TEST_SUITE_P(NamesThatSayNothing, LabelWeight,
                         testing::Values(LabelCase{"Poster", 0}, LabelCase{"Italic", 0},
                                         LabelCase{"Oblique", 0}, LabelCase{"Boldface", 0},
                                         LabelCase{"SemiBoldItalic", 0}, LabelCase{"Semi", 0},
                                         LabelCase{"Semi Condensed", 0},
                                         LabelCase{"Condensed Poster", 0}, LabelCase{"Lite", 0},
                                         LabelCase{"Fett", 0}, LabelCase{"Normál", 0},
                                         LabelCase{"太字", 0}));

TEST(TraitWeight, FollowsItsThresholds)
{
    struct Case
    {
        double trait;
        int weight;
    };
    constexpr Case kCases[]{{-1, 100},    {-0.651, 100}, {-0.65, 200}, {-0.45, 300}, {-0.2, 400},
                            {0, 400},     {0.099, 400},  {0.1, 500},   {0.25, 600},  {0.4, 700},
                            {0.549, 700}, {0.55, 800},   {0.75, 900},  {1, 900}};
    for (const Case &each : kCases)
        EXPECT_EQ(weightFromTrait(each.trait), each.weight) << each.trait;
}

TEST(TraitWeight, BringsEachWeightClassBackAsItself)
{
    for (int weight = 100; weight <= 900; weight += 100)
        EXPECT_EQ(weightFromTrait(weightTraitFromClass(weight)), weight);
}

TEST(StyleWeight, LetsTheTraitDecideOnlyWhenTheLabelIsSilent)
{
    const FaceTraits heavy{0.8, 0, false};
    EXPECT_EQ(styleWeight(u"Poster", heavy), 900);
    EXPECT_EQ(styleWeight(u"Light", heavy), 300);
    EXPECT_EQ(styleWeight(u"Condensed", heavy), 400);
}

TEST(ItalicStyle, TakesAnyOfSlantBitAndLabel)
{
    struct Case
    {
        const char *label;
        FaceTraits traits;
        bool isItalic;
    };
    const Case cases[]{
        {"Regular", {0, 0.005, false}, false}, {"Regular", {0, 0.01, false}, false},
        {"Regular", {0, 0.011, false}, true},  {"Regular", {0, -0.4, false}, false},
        {"Regular", {0, 0, true}, true},       {"Oblique", {0, 0, false}, true},
        {"Bold ITALIC", {0, 0, false}, true},  {"Bold-Italic", {0, 0, false}, true},
        {"BoldItalic", {0, 0, false}, false},  {"Italics", {0, 0, false}, false},
        {"Bold_Italic", {0, 0, false}, false}, {"Italicized Italic", {0, 0, false}, true},
    };
    for (const Case &each : cases)
        EXPECT_EQ(isItalicStyle(QString::fromUtf8(each.label), each.traits), each.isItalic)
            << each.label << ' ' << each.traits.slant;
}

} // namespace
} // namespace lorva
