// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#include "ui/detail/CssText.h"

#include "PreviewFonts.h"

namespace lorva {
namespace {

using test::FontBuilder;

FontStyleRecord styleOf(qint64 weight, bool isItalic = false)
{
    FontStyleRecord style;
    style.weight = weight;
    style.isItalic = isItalic;
    return style;
}

/// The declarations behind the family's name, without line ends.
QString css(const Font &font, const FontStyleRecord &style, double letterSpacing = 0)
{
    DetailSpecimen specimen;
    specimen.font = font;
    specimen.letterSpacing = letterSpacing;
    const QString text = cssText(specimen, QStringLiteral("F"), style);
    EXPECT_TRUE(text.startsWith(QLatin1String("font-family: \"F\";\n")));
    EXPECT_TRUE(text.endsWith(QLatin1String(";\n")));
    return text.split(u'\n').mid(1).join(QString()).trimmed();
}

std::vector<VariationSetting> at(const char *list)
{
    std::vector<VariationSetting> settings;
    for (const QString &part : QString::fromLatin1(list).split(u' '))
        settings.push_back({*tagFromText(part.left(4)), part.mid(5).toDouble()});
    return settings;
}

TEST(CssTextTest, axesGoToTheirPropertiesAndTheRestToSettings)
{
    FontBuilder roman("Axes");
    const Font font = test::fontOf(roman.axis("wght", 100, 400, 1200)
                                       .axis("wdth", 50, 100, 200)
                                       .axis("opsz", 8, 14, 72)
                                       .axis("slnt", -12, 0, 0)
                                       .axis("ital", 0, 0, 1)
                                       .axis("XTRA", -5, 0, 5)
                                       .axis("GRAD", 0, 0, 100),
                                   20);
    const std::tuple<double, const char *, QString> rows[]{
        {14, "GRAD=0", "font-weight: 400;font-style: normal;font-size: 14px;"},
        {20, "wght=650.5 wdth=87.5 opsz=20",
         "font-weight: 650.5;font-style: normal;font-stretch: 87.5%;font-size: 20px;"},
        {20, "opsz=14",
         "font-weight: 400;font-style: normal;font-size: 20px;font-optical-sizing: none;"},
        {90, "opsz=72", "font-weight: 400;font-style: normal;font-size: 90px;"},
        {20, "opsz=30 XTRA=-2.5 GRAD=7",
         "font-weight: 400;font-style: normal;font-size: 20px;"
         "font-variation-settings: \"GRAD\" 7, \"XTRA\" -2.5, \"opsz\" 30;"},
        {14, "slnt=-8 GRAD=0", "font-weight: 400;font-style: oblique 8deg;font-size: 14px;"},
        {14, "ital=1", "font-weight: 400;font-style: italic;font-size: 14px;"},
        {14, "ital=1 slnt=-8",
         "font-weight: 400;font-style: italic;font-size: 14px;"
         "font-variation-settings: \"slnt\" -8;"},
        {14, "ital=0.5",
         "font-weight: 400;font-style: normal;font-size: 14px;"
         "font-variation-settings: \"ital\" 0.5;"},
        {14, "wght=1100",
         "font-weight: 400;font-style: normal;font-size: 14px;"
         "font-variation-settings: \"wght\" 1100;"},
        {14, "wght=300 wght=99999 zzzz=5",
         "font-weight: 400;font-style: normal;font-size: 14px;"
         "font-variation-settings: \"wght\" 1200;"},
    };
    for (const auto &[size, settings, expected] : rows)
        EXPECT_EQ(css(font.withPointSize(size).withVariations(at(settings)), styleOf(400)),
                  expected)
            << settings;
}

TEST(CssTextTest, featuresThatAreNotAsTheFontHasThem)
{
    FontBuilder builder("Features");
    const Font font = test::fontOf(builder.substitution("liga", U'a', U'b')
                                       .substitution("smcp", U'a', U'c')
                                       .substitution("ss01", U'a', U'd'),
                                   16);
    const QString start = QStringLiteral("font-weight: 700;font-style: italic;font-size: 16px;");
    const auto with = [&](const std::vector<FeatureSetting> &features, double spacing) {
        return css(font.withFeatures(features), styleOf(700, true), spacing).mid(start.size());
    };
    const FontTag liga = fontTag('l', 'i', 'g', 'a');
    const FontTag smcp = fontTag('s', 'm', 'c', 'p');
    const FontTag ss01 = fontTag('s', 's', '0', '1');
    ASSERT_TRUE(css(font, styleOf(700, true)) == start);
    EXPECT_EQ(with({{liga, 1}, {smcp, 0}}, 0), QString());
    EXPECT_EQ(with({{ss01, 2}, {smcp, 1}, {liga, 0}}, 0),
              QStringLiteral("font-feature-settings: \"liga\" 0, \"smcp\" 1, \"ss01\" 2;"));
    EXPECT_EQ(with({{smcp, 1}, {smcp, 0}}, -0.0001), QString());
    EXPECT_EQ(css(font.withFeatures({{liga, 1}}), styleOf(700, true), 0.0254),
              QStringLiteral("font-weight: 700;font-style: italic;font-size: 16px;"
                             "letter-spacing: 0.025em;font-feature-settings: \"liga\" 1;"));
    EXPECT_EQ(with({{fontTag('"', '\\', ' ', 'a'), 1}, {0x01020304, 1}}, 0),
              QStringLiteral("font-feature-settings: \"\\\"\\\\ a\" 1;"));
}

TEST(CssTextTest, namesCannotBreakOut)
{
    const std::pair<QString, QString> rows[]{
        {"EB Garamond", "\"EB Garamond\""},
        {"a\"; color: red; \"", "\"a\\\"; color: red; \\\"\""},
        {"back\\slash", "\"back\\\\slash\""},
        {"two\nlines\r\t", "\"two\\a lines\\d \\9 \""},
        {"</style>", "\"\\3c /style>\""},
        {QString(QChar(u'\0')) + QChar(0xD800), "\"\uFFFD\uFFFD\""},
        {"\u2028本", "\"\\2028 本\""},
        {"", "\"\""},
    };
    for (const auto &[name, quoted] : rows) {
        EXPECT_EQ(
            cssText({}, name, styleOf(5000)),
            QString("font-family: " + quoted + ";\nfont-weight: 1000;\nfont-style: normal;\n"));
    }
}

} // namespace
} // namespace lorva
