// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT

// Which face the detail view shows, at which settings, and which family comes next.

#include "ui/detail/DetailFaces.h"
#include "PreviewFonts.h"
#include "ui/DetailNeighbours.h"

#include <gmock/gmock.h>

namespace lorva {
namespace {

using test::FontBuilder;
using testing::ElementsAre;

FontStyleRecord style(const char *label, int weight, bool isItalic = false)
{
    const QString text = QString::fromLatin1(label);
    return {text.toLower(), text, text, weight, isItalic, std::nullopt};
}

TEST(DetailFaces, TheChosenStyleWinsOverTheWeightControl)
{
    const FontVariant variant{QStringLiteral("Regular"),
                              QStringLiteral("Face"),
                              {style("Light", 300), style("Regular", 400), style("Bold", 700),
                               style("Bold Italic", 700, true)}};
    const struct
    {
        const char *chosen;
        int weight;
        const char *shown;
    } rows[]{
        {"", 400, "Regular"},       {"", 300, "Light"},
        {"", 900, "Bold"},          {"bold italic", 300, "Bold Italic"},
        {"another's", 700, "Bold"},
    };
    for (const auto &row : rows) {
        const FontStyleRecord *shown =
            shownStyle({}, variant, QString::fromLatin1(row.chosen), row.weight);
        ASSERT_NE(shown, nullptr);
        EXPECT_EQ(shown->label, QString::fromLatin1(row.shown)) << row.chosen << ' ' << row.weight;
    }
    EXPECT_EQ(shownStyle({}, {}, {}, 400), nullptr);
    const FontVariant withoutRegular{{}, {}, {style("Thin", 100), style("Medium", 500)}};
    FontFamilyRecord family;
    family.styles = {style("Medium", 500), style("Thin", 100)};
    EXPECT_EQ(shownStyle(family, withoutRegular, {}, 400)->label, QStringLiteral("Medium"))
        << "as the card has it, whose order is the font's";
}

TEST(DetailFaces, AxisValuesLieOverTheFacesOwnAndFeaturesOverItsDefaults)
{
    FontBuilder builder;
    builder.codePoints(U"ab").axis("wght", 100, 400, 900).axis("wdth", 50, 100, 200);
    builder.substitution("liga", U'a', U'b').substitution("smcp", U'a', U'b');
    const Font base = test::fontOf(builder).withVariations({{fontTag('w', 'g', 'h', 't'), 700}});
    const std::vector<VariationSetting> width{{fontTag('w', 'd', 't', 'h'), 150}};
    EXPECT_EQ(withSettings(base, {}, {}), base);
    EXPECT_THAT(withSettings(base, std::nullopt, width).variations(),
                ElementsAre(base.variations().front(), width.front()));
    const std::vector smallCapitals{*registeredPair(fontTag('s', 'm', 'c', 'p'))};
    const auto settings = featureSettings(fontFeatures(*base.face()), smallCapitals);
    EXPECT_THAT(withSettings(base, settings, {}).features(),
                testing::UnorderedElementsAre(FeatureSetting{fontTag('s', 'm', 'c', 'p'), 1},
                                              FeatureSetting{fontTag('l', 'i', 'g', 'a'), 0}))
        << "what is on by itself and missing from the list is switched off";
    EXPECT_TRUE(withSettings(Font(), settings, width).isNull());
}

TEST(DetailNeighbours, AreThoseOfTheBrowser)
{
    std::vector<FontFamilyRecord> families(5);
    for (size_t i = 0; i < families.size(); ++i)
        families[i].familyName = QString(QChar(u'A' + char16_t(i)));
    const FontFamilySubset shown(makeFamilyList(families), {0, 2, 4});
    const auto neighbour = [&shown](const char *name, int step) {
        return detailNeighbour(shown, QString::fromLatin1(name), step)
            .value_or(QStringLiteral("none"))
            .toStdString();
    };
    EXPECT_EQ(neighbour("A", 1), "C");
    EXPECT_EQ(neighbour("C", 1), "E");
    EXPECT_EQ(neighbour("E", 1), "none");
    EXPECT_EQ(neighbour("C", -1), "A");
    EXPECT_EQ(neighbour("A", -1), "none");
    EXPECT_EQ(neighbour("B", 1), "none") << "it is not among those that are shown";
}

TEST(DetailFaces, AnAxisThatTheWeightControlMovesIsItsOwnAgain)
{
    FontBuilder builder;
    builder.codePoints(U"a").axis("wght", 100, 400, 900).axis("wdth", 50, 100, 200);
    const Font face = test::fontOf(builder);
    const VariationSetting weight{fontTag('w', 'g', 'h', 't'), 650};
    const VariationSetting width{fontTag('w', 'd', 't', 'h'), 150};
    std::vector<VariationSetting> axes{weight, width};
    dropOverruled(axes, face, face.withPointSize(20));
    EXPECT_THAT(axes, ElementsAre(weight, width));
    dropOverruled(axes, face, face.withVariations({{weight.tag, 700}}));
    EXPECT_THAT(axes, ElementsAre(width));
}

} // namespace
} // namespace lorva
