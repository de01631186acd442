// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#include "catalog/VariableWeight.h"

#include "catalog/FaceResolver.h"
#include "catalog/FontCatalogLoader.h"
#include "CatalogSupport.h"
#include "text/TextLayout.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>

namespace lorva {
namespace {

using namespace std::chrono_literals;

/// A resolver over the font files that a case names.
class WeightTest : public testing::Test
{
protected:
    FilePath add(const QByteArray &name, const QByteArray &bytes)
    {
        return test::writeFile(m_folder, name, bytes);
    }

    void build(std::vector<FilePath> files)
    {
        const auto fonts = std::make_shared<test::ListedFonts>();
        fonts->files = std::move(files);
        families = makeFamilyList(FontCatalogLoader({fonts}).scan({}, nullptr)->families);
        const FilePath system = add("system-ui", test::face("System", "Regular", "System").build());
        resolver.emplace(
            families,
            std::make_shared<SystemFont>(std::make_shared<test::ListedSystemFont>(system)),
            [] { return SteadyTime(1000s); });
    }

    /// The first family's style of that label.
    const FontStyleRecord &style(const QString &label) const
    {
        for (const FontStyleRecord &each : families->front().styles) {
            if (each.label == label)
                return each;
        }
        throw std::runtime_error("no such style in the fixture");
    }

    const FilePath m_folder = test::TestHome::instance().makeFolder("weights");
    FontFamilyList families;
    std::optional<FaceResolver> resolver;
};

TEST_F(WeightTest, OffersTheSlidersWeightsThatTheAxisReaches)
{
    struct Row
    {
        const char *tag;
        double minimum;
        double standard;
        double maximum;
        std::optional<ClosedRange> range;
    };
    const Row rows[]{
        {"wght", 100, 400, 900, ClosedRange{100, 900}},
        {"wght", 300, 300, 700, ClosedRange{300, 700}},
        {"wght", 1, 400, 1000, ClosedRange{100, 900}},
        {"wght", 850, 900, 1000, ClosedRange{850, 900}},
        {"wght", 400, 400, 400, std::nullopt},
        {"wght", 900, 400, 100, std::nullopt},
        {"wght", 0.5, 1, 3, std::nullopt},
        {"wght", 900, 950, 1000, std::nullopt},
        {"wdth", 50, 100, 200, std::nullopt},
        {"WGHT", 100, 400, 900, std::nullopt},
    };
    for (const Row &row : rows) {
        test::FontBuilder builder = test::face("Foo", "Regular", "Foo");
        builder.axis("opsz", 6, 12, 72).axis(row.tag, row.minimum, row.standard, row.maximum);
        build({add("axes.ttf", builder.build())});
        const auto variable = resolver->variableWeight("Foo", style("Regular"));
        ASSERT_EQ(variable.has_value(), row.range.has_value()) << row.minimum << row.tag;
        if (!variable)
            continue;
        EXPECT_EQ(variable->style, style("Regular"));
        EXPECT_EQ(variable->axis, (ClosedRange{row.minimum, row.maximum}));
        EXPECT_EQ(variable->range, *row.range);
    }
}

TEST_F(WeightTest, HasNoneForAFaceThatIsNotVariableOrCannotBeFound)
{
    build({add("static.ttf", test::face("Foo", "Regular", "Foo").build())});
    EXPECT_FALSE(resolver->variableWeight("Foo", style("Regular")));
    FontStyleRecord lost;
    lost.id = lost.postScriptName = "Lost";
    EXPECT_FALSE(resolver->variableWeight("Unknown", lost));
    const VariableWeight made{lost, {100, 900}, {100, 900}};
    const Font standIn = resolver->fontAtWeight("Unknown", made, 700, 20);
    EXPECT_TRUE(standIn.isStandIn());
    EXPECT_TRUE(standIn.variations().empty()) << "the system font stays as it is";
}

TEST_F(WeightTest, MakesFontsOfAWeightWithinTheAxis)
{
    test::FontBuilder builder = test::face("Foo", "Regular", "Foo");
    builder.axis("wght", 200, 400, 800);
    build({add("weights.ttf", builder.build())});
    const VariableWeight variable = *resolver->variableWeight("Foo", style("Regular"));
    const FontTag tag = fontTag('w', 'g', 'h', 't');
    const struct
    {
        double asked;
        double given;
    } rows[]{
        {550, 550}, {200, 200},          {100, 200},
        {900, 800}, {std::nan(""), 400}, {std::numeric_limits<double>::infinity(), 800},
    };
    for (const auto &row : rows) {
        const Font font = resolver->fontAtWeight("Foo", variable, row.asked, 20);
        EXPECT_EQ(font.variations(), (std::vector<VariationSetting>{{tag, row.given}}));
        EXPECT_EQ(font.pointSize(), 20);
    }
    EXPECT_EQ(resolver->fontAtWeight("Foo", variable, 550, 20).face(),
              resolver->resolve("Foo", style("Regular"), 20).face());
    EXPECT_TRUE(resolver->resolve("Foo", style("Regular"), 20).variations().empty())
        << "weights have entries of their own in the cache";
    const Font again = withWeight(resolver->fontAtWeight("Foo", variable, 550, 20), 600);
    EXPECT_EQ(again.variations(), (std::vector<VariationSetting>{{tag, 600}}));
}

TEST_F(WeightTest, GivesRealFacesTheirWeights)
{
    build({FilePath("/usr/share/fonts/truetype/inter-vf/Inter-roman.var.ttf")});
    ASSERT_FALSE(families->empty()) << "the package fonts-inter-variable is missing";
    const QString family = families->front().familyName;
    for (const QString &label : QStringList{"Regular", "Bold"}) {
        const auto variable = resolver->variableWeight(family, style(label));
        ASSERT_TRUE(variable) << label.toStdString();
        EXPECT_EQ(variable->axis, (ClosedRange{100, 900}));
        EXPECT_EQ(variable->range, (ClosedRange{100, 900}));
        double widest = 0;
        for (const double weight : {100.0, 400.0, 900.0}) {
            const Font font = resolver->fontAtWeight(family, *variable, weight, 100);
            const double width = TextLayout(QStringLiteral("lillw"), font, {}).size().width();
            EXPECT_GT(width, widest) << label.toStdString() << weight;
            widest = width;
        }
    }
}

} // namespace
} // namespace lorva
