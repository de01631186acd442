// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#include "text/LayoutSupport.h"

using namespace lorva;
using namespace lorva::test;

namespace {

TEST(Font, MetricsAreInPointsAtItsSize)
{
    const auto face =
        openFace(writeFont(FontBuilder("M").unitsPerEm(2000).capHeight(1400).xHeight(900).build()));
    const Font font(face, 20);
    EXPECT_NEAR(font.capHeight(), 14, 0.001);
    EXPECT_NEAR(font.xHeight(), 9, 0.001);
    EXPECT_NEAR(font.withPointSize(40).capHeight(), 28, 0.001);
    EXPECT_GT(font.ascent(), 0);
    EXPECT_GT(font.descent(), 0);
}

TEST(Font, IsNamedByItsPostScriptNameElseByItsFile)
{
    EXPECT_EQ(Font(builtFace(FontBuilder("A").postScriptName("A-Bold")), 10).name(), "A-Bold");
    const FilePath path = writeFont(FontBuilder().withoutNames().build(), "plain.ttf");
    EXPECT_EQ(Font(openFace(path), 10).name(), "plain.ttf#0");
    EXPECT_EQ(Font().name(), "");
}

TEST(Font, IsEqualWhenFaceSizeAndSettingsAre)
{
    const auto face = builtFace(FontBuilder());
    const Font font(face, 10);
    const std::vector<VariationSetting> bold{{fontTag('w', 'g', 'h', 't'), 700}};
    EXPECT_EQ(font, Font(face, 10));
    EXPECT_EQ(font.withVariations(bold), Font(face, 10, bold));
    EXPECT_NE(font, font.withPointSize(11));
    EXPECT_NE(font, font.withVariations(bold));
    EXPECT_NE(font, font.withFeatures({{fontTag('s', 'm', 'c', 'p'), 1}}));
    EXPECT_NE(font, font.asStandIn());
    EXPECT_NE(font, Font(builtFace(FontBuilder()), 10));
    EXPECT_EQ(Font(), Font(nullptr, 10));
}

TEST(Font, VariationsChangeAdvancesAndFeaturesGlyphs)
{
    const auto face = openFace(realFont("truetype/inter-vf/Inter-roman.var.ttf"));
    const QString text = QStringLiteral("Hamburg");
    const auto widthAt = [&](double weight) {
        const Font font(face, 40, {{fontTag('w', 'g', 'h', 't'), weight}});
        return TextLayout(text, font).size().width();
    };
    EXPECT_LT(widthAt(100), widthAt(400));
    EXPECT_LT(widthAt(400), widthAt(900));
    EXPECT_DOUBLE_EQ(widthAt(400), TextLayout(text, Font(face, 40)).size().width());

    const auto swapped =
        openFace(writeFont(FontBuilder().substitution("ss01", U'a', U'b').build(), "swap.ttf"));
    const Font on(swapped, 10, {}, {{fontTag('s', 's', '0', '1'), 1}});
    const Font off(swapped, 10);
    const QString letters = QStringLiteral("ab");
    EXPECT_EQ(glyphsOf(TextLayout(letters, on))[0].glyph,
              glyphsOf(TextLayout(letters, on))[1].glyph);
    EXPECT_NE(glyphsOf(TextLayout(letters, off))[0].glyph,
              glyphsOf(TextLayout(letters, off))[1].glyph);
}

} // namespace
