// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#include "support/RowNames.h"
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
    /// Stretches in visual order, "L:abc |R:אב", where the reference shaper must be told them one
    /// by one.
    const char *stretches = nullptr;
};

void PrintTo(const ShapingRow &row, std::ostream *out)
{
    *out << nameText(QString::fromLatin1(row.font).section(u'/', -1)) << ' ' << nameText(row.text)
         << ' ' << nameText(row.features) << ' ' << nameText(row.variations) << ' '
         << nameText(row.language);
}

/// What the reference shaper prints: "[12+600|7@-3,0+0]", in font units.
QString referenceGlyphs(const ShapingRow &row, const QString &text, const char *direction)
{
    QStringList arguments{QStringLiteral("--no-glyph-names"), QStringLiteral("--no-clusters")};
    if (*row.features)
        arguments << QStringLiteral("--features=%1").arg(QLatin1String(row.features));
    if (*row.variations)
        arguments << QStringLiteral("--variations=%1").arg(QLatin1String(row.variations));
    if (*row.language)
        arguments << QStringLiteral("--language=%1").arg(QLatin1String(row.language));
    if (*direction)
        arguments << QStringLiteral("--direction=%1").arg(QLatin1String(direction));
    arguments << realFont(row.font).displayText() << text;
    QProcess process;
    process.start(QStringLiteral("hb-shape"), arguments);
    process.waitForFinished();
    QString glyphs = QString::fromUtf8(process.readAllStandardOutput()).trimmed();
    return glyphs;
}

QString referenceGlyphs(const ShapingRow &row)
{
    if (!row.stretches)
        return referenceGlyphs(row, QString::fromUtf8(row.text), "");
    QStringList glyphs;
    for (const QString &stretch : QString::fromUtf8(row.stretches).split(u'|')) {
        const bool isRightToLeft = stretch.startsWith(u'R');
        glyphs << referenceGlyphs(row, stretch.mid(2), isRightToLeft ? "rtl" : "ltr");
    }
    return glyphs.join(QString()).replace(QStringLiteral("]["), QStringLiteral("|"));
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
constexpr char kHebrew[] = "truetype/noto/NotoSansHebrew-Regular.ttf";
constexpr char kThai[] = "truetype/noto/NotoSansThai-Regular.ttf";
constexpr char kKhmer[] = "truetype/noto/NotoSansKhmer-Regular.ttf";
constexpr char kLibertine[] = "opentype/linux-libertine/LinLibertine_R.otf";
constexpr char kCjk[] = "opentype/noto/NotoSansCJK-Regular.ttc";

INSTANTIATE_TEST_SUITE_P(
    Fonts, Shaping,
    ::testing::Values(
        ShapingRow{kAmiri, "السلام عليكم"}, ShapingRow{kAmiri, "مُحَمَّدٌ ﷽"},
        ShapingRow{kLohit, "अक्षि र्क त्र ह्म"}, ShapingRow{kLohit, "हिन्दी में"},
        ShapingRow{kGaramond, "AVATAR office fjord"},
        ShapingRow{kGaramond, "Office 1234", "smcp=1,onum=1,liga=0"},
        ShapingRow{kInter, "Hamburgefonstiv", "", "wght=850"},
        ShapingRow{kInter, "0 -> 1", "zero=1,calt=0", "wght=250"},
        ShapingRow{kCjk, "永和直骨", "", "", "ja"}, ShapingRow{kCjk, "永和直骨", "", "", "zh-hans"},
        ShapingRow{kCjk, "永和直骨", "", "", "zh-hant"}, ShapingRow{kHebrew, "שָׁלוֹם עֲלֵיכֶם"},
        ShapingRow{"truetype/firacode/FiraCode-Regular.ttf", "!= => www"},
        ShapingRow{kHebrew, "שלום 12", "", "", "", "L:12|R:שלום "},
        ShapingRow{kHebrew, "(שָׁלוֹם)", "", "", "", "R:(שָׁלוֹם)"},
        ShapingRow{kAmiri, "abc سلام def", "", "", "", "L:abc |R:سلام|L: |L:def"},
        ShapingRow{kAmiri, "لا إله ١٢٣", "", "", "", "L:١٢٣|R:لا إله "},
        ShapingRow{kAmiri, "سـلام", "ss01=1,liga=0"},
        ShapingRow{kLohit,
                   "श्री क्ष्म्य र्द्ध्र ज्ञान ऱ्य "
                   "क्‍ष "
                   "क्‌ष"},
        ShapingRow{kThai, "กำ น้ำ ปู่ ญี่ปุ่น ฎูฐิ"}, ShapingRow{kKhmer, "ខ្មែរ ស្ត្រី ក្រោម"},
        ShapingRow{"truetype/noto/NotoSansMyanmar-Regular.ttf", "မြန်မာ ကျွန်ုပ်"},
        ShapingRow{"truetype/noto/NotoSansTamil-Regular.ttf", "தமிழ் க்ஷௌ"},
        ShapingRow{"truetype/noto/NotoColorEmoji.ttf",
                   "👩‍👩‍👧 🇩🇪 1️⃣ 👍🏽"},
        ShapingRow{kCjk, "日本語、「漢字」。", "palt=1", "", "ja"},
        ShapingRow{kCjk, "각하", "", "", "ko"}, ShapingRow{kCjk, "骨直", "", "", "ko"},
        ShapingRow{kInter, "Type 1/2 (A)", "frac=1,case=1,ss01=1,cv11=1"},
        ShapingRow{"truetype/inter-vf/Inter.var.ttf", "AVAhog", "", "wght=333,slnt=-7"},
        ShapingRow{kLibertine, "ſtaff Qu fi ffl", "dlig=1,hlig=1"},
        ShapingRow{kLibertine, "0123", "lnum=0,onum=1,tnum=0,pnum=1"}));

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

/// Whatever script stands before them, emoji sequences are one glyph.
TEST(TextLayoutShaping, EmojiAreShapedApartFromTheTextAround)
{
    const Font font = realFontAt("truetype/noto/NotoColorEmoji.ttf", 20);
    for (const char *before : {"", "a ", "ខ្មែ", "س", "क्"}) {
        for (const char *emoji :
             {"👩‍👩‍👧", "❤️‍🔥", "☝🏽", "🇩🇪", "1️⃣",
              "👁️‍🗨️", "🏳️‍🌈", "🏴󠁧󠁢󠁥󠁮󠁧󠁿"}) {
            const QString lead = QString::fromUtf8(before);
            std::set<quint32> glyphs;
            for (const PositionedGlyph &glyph :
                 glyphsOf(TextLayout(lead + QString::fromUtf8(emoji), font))) {
                if (glyph.cluster >= lead.size() && glyph.advance > 0)
                    glyphs.insert(glyph.glyph);
            }
            EXPECT_EQ(glyphs.size(), 1u) << before << emoji;
            EXPECT_FALSE(glyphs.contains(0)) << before << emoji;
        }
    }
}

TEST(TextLayoutShaping, LetterSpacingNeverCutsJoinedLetters)
{
    struct Row
    {
        const char *font;
        const char *text;
        /// How often the spacing is added.
        int gaps;
    };
    for (const Row &row :
         std::initializer_list<Row>{{kAmiri, "سلام", 1},
                                    {kAmiri, "سَلَامٌ دار", 3},
                                    {kAmiri, "ab سلام 12", 7},
                                    {"truetype/noto/NotoSansMongolian-Regular.ttf", "ᠮᠣᠩᠭᠣᠯ", 1},
                                    {kHebrew, "שלום", 4},
                                    {kThai, "น้ำใจ", 3}}) {
        TextLayoutOptions spaced;
        spaced.letterSpacing = 5;
        const QString text = QString::fromUtf8(row.text);
        const Font font = realFontAt(row.font, 30);
        EXPECT_NEAR(TextLayout(text, font, spaced).size().width(),
                    TextLayout(text, font).size().width() + 5 * row.gaps, 0.01)
            << row.text;
    }
}

/// The same ideographs have forms of their own in each language, and the language may stand in the
/// text itself.
TEST(TextLayoutShaping, IdeographsTakeTheFormsOfTheLanguage)
{
    const Font font = realFontAt(kCjk, 20);
    const auto formOf = [&](const char *text, const char *language) {
        TextLayoutOptions options;
        options.language = language;
        return glyphsOf(TextLayout(QString::fromUtf8(text), font, options)).front().glyph;
    };
    for (const char *ideograph : {"骨", "直"}) {
        std::set<quint32> forms;
        for (const char *language : {"ja", "ko", "zh-Hans", "zh-Hant"})
            forms.insert(formOf(ideograph, language));
        EXPECT_GE(forms.size(), 2u) << ideograph;
        EXPECT_NE(formOf(ideograph, "ja"), formOf(ideograph, "zh-Hans")) << ideograph;
    }
    EXPECT_EQ(formOf("骨ガ", ""), formOf("骨", "ja"));
    EXPECT_EQ(formOf("骨 뼈", ""), formOf("骨", "ko"));
    EXPECT_EQ(formOf("骨ㄍ", ""), formOf("骨", "zh-Hant"));
    EXPECT_EQ(formOf("骨ガ", "zh-Hans"), formOf("骨", "zh-Hans"));
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
