// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#include "text/LayoutSupport.h"

#include <QProcess>
#include <QStandardPaths>

using namespace lorva;
using namespace lorva::test;

namespace {

struct ShapingRow
{
    const char *font;
    const char *text;
    const char *features = "";
    const char *variations = "";
    const char *language = "";
};

/// "liga=0,wght=700" as tags and values.
template <class Setting>
std::vector<Setting> settings(const char *text)
{
    std::vector<Setting> result;
    for (const QString &part : QString::fromLatin1(text).split(u',', Qt::SkipEmptyParts)) {
        const auto tag = tagFromText(QStringView(part).left(4));
        result.push_back({tag.value_or(0), decltype(Setting::value)(part.mid(5).toDouble())});
    }
    return result;
}

/// What the reference shaper prints: "[12+600|7@-3,0+0]", in font units.
QString referenceGlyphs(const ShapingRow &row)
{
    QStringList arguments{QStringLiteral("--no-glyph-names"), QStringLiteral("--no-clusters")};
    if (*row.features)
        arguments << QStringLiteral("--features=%1").arg(QLatin1String(row.features));
    if (*row.variations)
        arguments << QStringLiteral("--variations=%1").arg(QLatin1String(row.variations));
    if (*row.language)
        arguments << QStringLiteral("--language=%1").arg(QLatin1String(row.language));
    arguments << realFont(row.font).displayText() << QString::fromUtf8(row.text);
    QProcess process;
    process.start(QStringLiteral("hb-shape"), arguments);
    process.waitForFinished();
    return QString::fromUtf8(process.readAllStandardOutput()).trimmed();
}

QString laidOutGlyphs(const ShapingRow &row)
{
    const auto face = openFace(realFont(row.font));
    const Font font(face, face->metrics().unitsPerEm, settings<VariationSetting>(row.variations),
                    settings<FeatureSetting>(row.features));
    TextLayoutOptions options;
    options.language = row.language;
    const TextLayout layout(QString::fromUtf8(row.text), font, options);
    QStringList glyphs;
    double pen = 0;
    for (const PositionedGlyph &glyph : glyphsOf(layout)) {
        const int x = qRound(glyph.position.x() - pen);
        const int y = qRound(-glyph.position.y());
        QString text = QString::number(glyph.glyph);
        if (x != 0 || y != 0)
            text += QStringLiteral("@%1,%2").arg(x).arg(y);
        text += u'+' + QString::number(qRound(glyph.advance));
        glyphs << text;
        pen += glyph.advance;
    }
    return QString(u'[' + glyphs.join(u'|') + u']');
}

class Shaping : public ::testing::TestWithParam<ShapingRow>
{
};

TEST_P(Shaping, placesTheGlyphsThatTheReferenceShaperDoes)
{
    if (QStandardPaths::findExecutable(QStringLiteral("hb-shape")).isEmpty())
        GTEST_SKIP() << "hb-shape is not installed";
    const QString reference = referenceGlyphs(GetParam());
    ASSERT_FALSE(reference.isEmpty());
    EXPECT_EQ(laidOutGlyphs(GetParam()).toStdString(), reference.toStdString());
}

constexpr char kAmiri[] = "opentype/fonts-hosny-amiri/Amiri-Regular.ttf";
constexpr char kLohit[] = "truetype/lohit-devanagari/Lohit-Devanagari.ttf";
constexpr char kGaramond[] = "opentype/ebgaramond/EBGaramond12-Regular.otf";
constexpr char kInter[] = "truetype/inter-vf/Inter-roman.var.ttf";
constexpr char kCjk[] = "opentype/noto/NotoSansCJK-Regular.ttc";

INSTANTIATE_TEST_SUITE_P(
    Fonts, Shaping,
    ::testing::Values(ShapingRow{kAmiri, "السلام عليكم"}, ShapingRow{kAmiri, "مُحَمَّدٌ ﷽"},
                      ShapingRow{kLohit, "अक्षि र्क त्र ह्म"}, ShapingRow{kLohit, "हिन्दी में"},
                      ShapingRow{kGaramond, "AVATAR office fjord"},
                      ShapingRow{kGaramond, "Office 1234", "smcp=1,onum=1,liga=0"},
                      ShapingRow{kInter, "Hamburgefonstiv", "", "wght=850"},
                      ShapingRow{kInter, "0 -> 1", "zero=1,calt=0", "wght=250"},
                      ShapingRow{kCjk, "永和直骨", "", "", "ja"},
                      ShapingRow{kCjk, "永和直骨", "", "", "zh-hans"},
                      ShapingRow{kCjk, "永和直骨", "", "", "zh-hant"},
                      ShapingRow{"truetype/noto/NotoSansHebrew-Regular.ttf", "שָׁלוֹם עֲלֵיכֶם"},
                      ShapingRow{"truetype/firacode/FiraCode-Regular.ttf", "!= => www"}));

TEST(TextLayoutShaping, MixedScriptsAreShapedInTheirOwnDirections)
{
    const Font font = realFontAt(kAmiri, 40);
    const TextLayout mixed(QStringLiteral("abc سلام def"), font);
    const TextLayout alone(QStringLiteral("سلام"), font);
    const LayoutLine &line = mixed.lines().front();
    ASSERT_GE(line.runs.size(), 3u);
    EXPECT_FALSE(line.runs.front().isRightToLeft);
    EXPECT_FALSE(line.runs.back().isRightToLeft);
    std::vector<quint32> joined;
    for (const GlyphRun &run : line.runs) {
        for (const PositionedGlyph &glyph : run.glyphs) {
            if (run.isRightToLeft)
                joined.push_back(glyph.glyph);
        }
    }
    std::vector<quint32> expected;
    for (const PositionedGlyph &glyph : glyphsOf(alone))
        expected.push_back(glyph.glyph);
    EXPECT_EQ(joined, expected);
}

TEST(TextLayoutShaping, LetterSpacingKeepsClustersWholeAndSwitchesLigaturesOff)
{
    const auto glyphCount = [](const Font &font, double spacing) {
        TextLayoutOptions options;
        options.letterSpacing = spacing;
        return glyphsOf(TextLayout(QStringLiteral("fi"), font, options)).size();
    };
    const Font font = realFontAt("opentype/linux-libertine/LinLibertine_R.otf", 30);
    EXPECT_EQ(glyphCount(font, 0), 1u);
    EXPECT_EQ(glyphCount(font, 1), 2u);
    EXPECT_EQ(glyphCount(font.withFeatures({{fontTag('l', 'i', 'g', 'a'), 1}}), 1), 1u);

    const QString conjuncts = QStringLiteral("क्षि त्र"); // two clusters and a space
    TextLayoutOptions spaced;
    spaced.letterSpacing = 5;
    const Font devanagari = realFontAt(kLohit, 30);
    const double plain = TextLayout(conjuncts, devanagari).size().width();
    EXPECT_NEAR(TextLayout(conjuncts, devanagari, spaced).size().width(), plain + 15, 0.01);
}

/// Cutting inside a kerned or joined stretch must leave the widths that the parts have by
/// themselves.
TEST(TextLayoutShaping, LinesAreNeverWiderThanAsked)
{
    for (const char *path : {kAmiri, kGaramond, kLohit}) {
        const Font font = realFontAt(path, 24);
        const QString text =
            QStringLiteral("AVAVAVAVAV officeoffice السلامعليكم क्षित्रह्म ").repeated(3);
        for (double width = 60; width < 200; width += 7) {
            TextLayoutOptions options;
            options.width = width;
            int next = 0;
            for (const LayoutLine &line : TextLayout(text, font, options).lines()) {
                EXPECT_LE(line.width, width + 0.01) << path << " at " << line.textStart;
                EXPECT_EQ(line.textStart, next);
                next = line.textEnd;
            }
            EXPECT_EQ(next, text.size());
        }
    }
}

} // namespace
