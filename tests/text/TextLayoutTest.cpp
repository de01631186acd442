// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#include "support/RowNames.h"
#include "text/LayoutSupport.h"

#include <gmock/gmock.h>

#include <QTextBoundaryFinder>

using namespace lorva;
using namespace lorva::test;

namespace {

struct LinesRow
{
    const char *text;
    double width;
    const char *lines;
    double inset = 0;
};

void PrintTo(const LinesRow &row, std::ostream *out)
{
    *out << nameText(row.text) << ' ' << row.width << ' ' << row.inset;
}

class Wrapping : public ::testing::TestWithParam<LinesRow>
{
};

TEST_P(Wrapping, breaksWhereTheTextAllows)
{
    const LinesRow &row = GetParam();
    const QString text = QString::fromUtf8(row.text);
    TextLayoutOptions options;
    options.width = row.width;
    options.firstLineInset = row.inset;
    const TextLayout layout(text, boxFont(), options);
    EXPECT_EQ(linesText(text, layout).toStdString(), row.lines);
}

INSTANTIATE_TEST_SUITE_P(
    Lines, Wrapping,
    ::testing::Values(
        LinesRow{"", 100, ""}, LinesRow{"aaa bbb ccc", 42, "aaa bbb |ccc"},
        LinesRow{"aaa bbb ccc", 41, "aaa |bbb |ccc"}, LinesRow{"aaa bbb     ", 42, "aaa bbb     "},
        LinesRow{"aaaaaaaaaaa b", 30, "aaaaa|aaaaa|a b"},
        LinesRow{"a aaaaaaaa", 30, "a |aaaaa|aaa"}, LinesRow{"abc", 0, "a|b|c"},
        LinesRow{"a\n\nb", 100, "a||b"}, LinesRow{"a\r\nb\rc", 100, "a|b|c"},
        LinesRow{"a\n", 100, "a|"}, LinesRow{"a\u2029b\u2028c", 100, "a|b|c"},
        LinesRow{"aaa-bbb", 30, "aaa-|bbb"}, LinesRow{"aa\u00a0bb cc", 36, "aa\u00a0bb |cc"},
        LinesRow{"天地玄黄", 12, "天地|玄黄"}, LinesRow{"天。地", 6, "天|。|地"},
        LinesRow{"天地。玄", 12, "天|地。|玄"}, LinesRow{"aaa bbb", 42, "aaa |bbb", 20},
        LinesRow{"e\u0301e\u0301", 1, "e\u0301|e\u0301"}));

/// UAX #14. Every character is 6 points wide, so that a width of 1 shows all that may break between
/// words and the rest between clusters: these rows are wide enough for their longest word.
INSTANTIATE_TEST_SUITE_P(
    LineBreaks, Wrapping,
    ::testing::Values(
        LinesRow{"ภาษาไทยง่าย", 24, "ภาษา|ไทย|ง่าย"}, LinesRow{"「天地」、玄", 18, "「天|地」、|玄"},
        LinesRow{"天ー地ッ玄", 12, "天ー|地ッ|玄"}, LinesRow{"10 km 5%, $7", 18, "10 |km |5%, |$7"},
        LinesRow{"10\u00a0km ab", 30, "10\u00a0km |ab"}, LinesRow{"3,141.59 a", 48, "3,141.59 |a"},
        LinesRow{"\"ab\" (cd)", 24, "\"ab\" |(cd)"}, LinesRow{"a\u2011b c", 18, "a\u2011b |c"},
        LinesRow{"ab\u200bcd", 12, "ab\u200b|cd"}, LinesRow{"ab\u2060cd ef", 24, "ab\u2060cd |ef"},
        LinesRow{"co\u00adop", 12, "co\u00ad|op"},
        LinesRow{"http://a.b/cc/dd", 54, "http://|a.b/cc/dd"}, LinesRow{"a/b-c d", 30, "a/b-c |d"},
        LinesRow{"ab — cd", 24, "ab — |cd"}, LinesRow{"a…b !", 18, "a…|b !"},
        LinesRow{"각나다 라", 18, "각나다 |라"}, LinesRow{"ខ្ញុំទៅសាលា", 24, "ខ្ញុំ|ទៅ|សាលា"}));

struct TruncationRow
{
    const char *text;
    double width;
    int maximumLines;
    const char *lines;
};

void PrintTo(const TruncationRow &row, std::ostream *out)
{
    *out << nameText(row.text) << ' ' << row.width << ' ' << row.maximumLines;
}

class Truncation : public ::testing::TestWithParam<TruncationRow>
{
};

TEST_P(Truncation, endsTheLastLineInAnEllipsis)
{
    const TruncationRow &row = GetParam();
    const QString text = QString::fromUtf8(row.text);
    TextLayoutOptions options;
    options.width = row.width;
    options.lineBreakMode = LineBreakMode::truncateTail;
    options.maximumLines = row.maximumLines;
    const TextLayout layout(text, boxFont(), options);
    const QString lines = linesText(text, layout);
    EXPECT_EQ(lines.toStdString(), row.lines);
    EXPECT_EQ(layout.isTruncated(), lines.contains(QStringLiteral("…")));
    EXPECT_LE(layout.size().width(), std::max(row.width, 6.0) + 0.01);
}

INSTANTIATE_TEST_SUITE_P(
    Lines, Truncation,
    ::testing::Values(TruncationRow{"aaa bbb ccc", 48, 1, "aaa bbb…"},
                      TruncationRow{"aaa bbb ccc", 42, 1, "aaa bb…"},
                      TruncationRow{"aaa bbb", 30, 1, "aaa…"}, TruncationRow{"ab", 12, 1, "ab"},
                      TruncationRow{"abcdef", 3, 1, "…"},
                      TruncationRow{"aaa bbb ccc ddd", 42, 2, "aaa bbb |ccc ddd"},
                      TruncationRow{"aaa bbb ccc ddd e", 42, 2, "aaa bbb |ccc dd…"},
                      TruncationRow{"ab\ncd", 100, 1, "ab…"},
                      TruncationRow{"ab\n \n", 100, 1, "ab"},
                      TruncationRow{"abcdefgh\nab", 30, 0, "abcd…|ab"},
                      // Conjuncts, jamo syllables and stacked consonants go as a whole.
                      TruncationRow{"अक्षत्र", 18, 1, "अ…"},
                      TruncationRow{"a\u1100\u1161\u11A8"
                                    "b",
                                    18, 1, "a…"},
                      TruncationRow{"aខ្ញុំbcd", 12, 1, "a…"},
                      TruncationRow{"a\xF0\x9F\x91\xA9\xE2\x80\x8D\xF0\x9F\x91\xA9", 12, 1, "a…"}));

TEST(TextLayout, TruncatesWithWhatTheFaceCanDraw)
{
    const auto shown = [](const std::u32string &characters) {
        const QByteArray bytes = FontBuilder("Few").codePoints(characters).build();
        TextLayoutOptions options;
        options.width = 30;
        options.lineBreakMode = LineBreakMode::truncateTail;
        options.maximumLines = 1;
        const Font font(openFace(writeFont(bytes, QByteArray::number(int(characters.size())))), 10);
        return runsText(TextLayout(QStringLiteral("aaaaaaaa"), font, options).lines().front());
    };
    EXPECT_EQ(shown(U"a"), "L:0,1,2,3,4");
    EXPECT_EQ(shown(U"a."), "L:0,1 L:2,2,2");
    EXPECT_EQ(shown(U"a.\u2026"), "L:0,1,2,3 L:4");
}

TEST(TextLayout, NeverSplitsAGraphemeWhateverTheWidth)
{
    const QString text =
        QString::fromUtf8("क्षिe\u0301🇩🇪👩‍👩‍👧ก็각 ab");
    QTextBoundaryFinder graphemes(QTextBoundaryFinder::Grapheme, text);
    std::set<int> boundaries{0};
    while (graphemes.toNextBoundary() >= 0)
        boundaries.insert(int(graphemes.position()));
    const Font font = boxFont();
    for (double width = 0; width < 100; width += 3) {
        for (const LineBreakMode mode : {LineBreakMode::truncateTail, LineBreakMode::wordWrap}) {
            TextLayoutOptions options;
            options.width = width;
            options.lineBreakMode = mode;
            for (const LayoutLine &line : TextLayout(text, font, options).lines())
                EXPECT_TRUE(boundaries.contains(line.textEnd)) << line.textEnd << " at " << width;
        }
    }
}

struct RunsRow
{
    const char *text;
    TextDirection direction;
    const char *runs;
    double width = std::numeric_limits<double>::infinity();
};

void PrintTo(const RunsRow &row, std::ostream *out)
{
    *out << nameText(row.text) << ' ' << int(row.direction) << ' ' << row.width;
}

class Runs : public ::testing::TestWithParam<RunsRow>
{
};

TEST_P(Runs, standInVisualOrder)
{
    TextLayoutOptions options;
    options.direction = GetParam().direction;
    options.width = GetParam().width;
    options.lineBreakMode = LineBreakMode::truncateTail;
    const TextLayout layout(QString::fromUtf8(GetParam().text), boxFont(), options);
    EXPECT_EQ(runsText(layout.lines().front()), GetParam().runs);
}

constexpr TextDirection kAuto = TextDirection::automatic;
INSTANTIATE_TEST_SUITE_P(
    Bidi, Runs,
    ::testing::Values(RunsRow{"abc", kAuto, "L:0,1,2"}, RunsRow{"אבג", kAuto, "R:2,1,0"},
                      RunsRow{"ab אבג cd", kAuto, "L:0,1,2 R:5,4,3 L:6 L:7,8"},
                      RunsRow{"אב cd", kAuto, "L:3,4 R:2,1,0"},
                      RunsRow{"אב 12", kAuto, "L:3,4 R:2,1,0"},
                      RunsRow{"ab אב", TextDirection::rightToLeft, "R:4,3 R:2 L:0,1"},
                      RunsRow{"אב ab", TextDirection::leftToRight, "R:1,0 L:2 L:3,4"},
                      RunsRow{"a(א)b", kAuto, "L:0,1 R:2 L:3,4"},
                      // The ellipsis stands at the end that the paragraph's direction has.
                      RunsRow{"אבגדה", kAuto, "R:3 R:2,1,0", 24},
                      RunsRow{"אב cdef", kAuto, "R:5 L:3,4 R:2,1,0", 36},
                      RunsRow{"ab אבגד", kAuto, "L:0,1,2 R:4,3 L:5", 36}));

TEST(TextLayout, AlignsEveryLineInItsBox)
{
    struct Row
    {
        const char *text;
        TextAlignment alignment;
        double width;
        std::vector<double> origins;
    };
    const double infinite = std::numeric_limits<double>::infinity();
    const Font font = boxFont();
    for (const Row &row :
         {Row{"ab", TextAlignment::left, 100, {0}}, Row{"ab", TextAlignment::right, 100, {88}},
          Row{"ab", TextAlignment::center, 100, {44}}, Row{"ab  ", TextAlignment::right, 100, {88}},
          Row{"ab", TextAlignment::natural, 100, {0}},
          Row{"אב ", TextAlignment::natural, 100, {88}}, Row{"אב", TextAlignment::left, 100, {0}},
          Row{"a\nabc", TextAlignment::right, infinite, {12, 0}},
          Row{"a\nאב", TextAlignment::natural, 100, {0, 88}}}) {
        TextLayoutOptions options;
        options.alignment = row.alignment;
        options.width = row.width;
        std::vector<double> origins;
        for (const LayoutLine &line :
             TextLayout(QString::fromUtf8(row.text), font, options).lines())
            origins.push_back(line.origin.x());
        EXPECT_THAT(origins, ::testing::Pointwise(::testing::DoubleNear(0.001), row.origins))
            << row.text;
    }
}

TEST(TextLayout, HangsTrailingWhiteSpaceOverTheLineEnd)
{
    const TextLayout layout(QStringLiteral("אב "), boxFont());
    EXPECT_NEAR(layout.size().width(), 12, 0.001);
    EXPECT_NEAR(glyphsOf(layout)[0].position.x(), -6, 0.001);
    EXPECT_NEAR(glyphsOf(layout)[2].position.x(), 6, 0.001);
}

TEST(TextLayout, JustifiesAllButTheLastLine)
{
    TextLayoutOptions options;
    options.width = 46;
    options.alignment = TextAlignment::justified;
    const TextLayout layout(QStringLiteral("aaa bbb ccc ddd"), boxFont(), options);
    ASSERT_EQ(layout.lines().size(), 2u);
    EXPECT_NEAR(layout.lines()[0].width, 46, 0.001);
    EXPECT_NEAR(layout.lines()[0].runs[0].glyphs[4].position.x(), 28, 0.001);
    EXPECT_NEAR(layout.lines()[1].width, 42, 0.001);
}

TEST(TextLayout, LeavesRoomBeforeTheFirstLine)
{
    TextLayoutOptions options;
    options.firstLineInset = 20;
    const TextLayout leftToRight(QStringLiteral("ab\nc"), boxFont(), options);
    EXPECT_NEAR(leftToRight.lines()[0].runs[0].glyphs[0].position.x(), 20, 0.001);
    EXPECT_NEAR(leftToRight.lines()[0].width, 32, 0.001);
    EXPECT_NEAR(leftToRight.lines()[1].runs[0].glyphs[0].position.x(), 0, 0.001);
    const TextLayout rightToLeft(QStringLiteral("אב"), boxFont(), options);
    EXPECT_NEAR(rightToLeft.lines()[0].runs[0].glyphs[0].position.x(), 0, 0.001);
    EXPECT_NEAR(rightToLeft.lines()[0].width, 32, 0.001);
}

TEST(TextLayout, StopsAtTheMaximumOfWrappedLines)
{
    TextLayoutOptions options;
    options.width = 20;
    options.maximumLines = 2;
    const QString text = QStringLiteral("aaa bbb ccc");
    const TextLayout layout(text, boxFont(), options);
    EXPECT_EQ(linesText(text, layout).toStdString(), "aaa |bbb ");
    EXPECT_TRUE(layout.isTruncated());
    options.maximumLines = 3;
    EXPECT_FALSE(TextLayout(text, boxFont(), options).isTruncated());
}

TEST(TextLayout, SpacesClustersInReadingDirection)
{
    TextLayoutOptions options;
    options.letterSpacing = 2;
    const std::vector<PositionedGlyph> latin =
        glyphsOf(TextLayout(QStringLiteral("ab"), boxFont(), options));
    EXPECT_NEAR(latin[1].position.x(), 8, 0.001);
    const std::vector<PositionedGlyph> hebrew =
        glyphsOf(TextLayout(QStringLiteral("אב"), boxFont(), options));
    EXPECT_NEAR(hebrew[0].position.x(), 2, 0.001);
    EXPECT_NEAR(hebrew[1].position.x(), 10, 0.001);
}

TEST(TextLayout, WithoutAFontStillHasLines)
{
    const TextLayout layout(QStringLiteral("a\nb"), Font());
    EXPECT_EQ(layout.lines().size(), 2u);
    EXPECT_TRUE(glyphsOf(layout).empty());
    EXPECT_TRUE(layout.inkBounds().isNull());
}

TEST(TextLayout, ShowsCharactersThatTheFaceLacksAsItsMissingGlyph)
{
    const TextLayout layout(QStringLiteral("aя"), boxFont());
    EXPECT_NE(glyphsOf(layout)[0].glyph, 0u);
    EXPECT_EQ(glyphsOf(layout)[1].glyph, 0u);
    EXPECT_FALSE(layout.inkBounds().isNull());
}

} // namespace
