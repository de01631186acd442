// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#include "text/TextCarets.h"

#include "support/RowNames.h"
#include "text/FontLimits.h"
#include "text/LayoutSupport.h"

#include <gmock/gmock.h>

using namespace lorva;
using namespace lorva::test;

namespace {

constexpr char kAmiriPath[] = "opentype/fonts-hosny-amiri/Amiri-Regular.ttf";
constexpr double kEndless = std::numeric_limits<double>::infinity();

TextCarets caretsOf(const QString &text, const Font &font, const TextLayoutOptions &options = {})
{
    return TextCarets(text, TextLayout(text, font, options));
}

/// "3", or "3^" for the place that belongs to the character before.
QString positionText(TextPosition position)
{
    QString text = QString::number(position.index);
    if (position.isAfterPrevious)
        text += u'^';
    return text;
}

/// The x of the caret at every index, rounded; "x/y" where an index has two places, "|" where the
/// next line begins.
std::string placesText(const TextCarets &carets, int length)
{
    QStringList places;
    int line = 0;
    for (int index = 0; index <= length; ++index) {
        const TextPosition after{index, false};
        const TextPosition before{index, true};
        QString place = QString::number(qRound(carets.caretRect(after).x()));
        if (carets.caretRect(after) != carets.caretRect(before))
            place += u'/' + QString::number(qRound(carets.caretRect(before).x()));
        if (carets.lineOf(after) != line)
            place.prepend(u'|');
        line = carets.lineOf(after);
        places << place;
    }
    return places.join(u' ').toStdString();
}

struct PlacesRow
{
    const char *text;
    const char *places;
    TextLayoutOptions options = {};
};

void PrintTo(const PlacesRow &row, std::ostream *out)
{
    *out << nameText(row.text) << ' ' << nameText(row.places);
}

class Places : public ::testing::TestWithParam<PlacesRow>
{
};

TEST_P(Places, standBetweenTheClustersThatAreSeen)
{
    const QString text = QString::fromUtf8(GetParam().text);
    const TextCarets carets = caretsOf(text, boxFont(), GetParam().options);
    EXPECT_EQ(placesText(carets, int(text.size())), GetParam().places) << GetParam().text;
}

TextLayoutOptions wide(double width, TextAlignment alignment = TextAlignment::natural)
{
    TextLayoutOptions options;
    options.width = width;
    options.alignment = alignment;
    return options;
}

TextLayoutOptions truncated(double width, int lines = 1)
{
    TextLayoutOptions options = wide(width);
    options.lineBreakMode = LineBreakMode::truncateTail;
    options.maximumLines = lines;
    return options;
}

TextLayoutOptions rightToLeft(double width = kEndless)
{
    TextLayoutOptions options = wide(width);
    options.direction = TextDirection::rightToLeft;
    return options;
}

TextLayoutOptions spaced(double letterSpacing, double inset = 0)
{
    TextLayoutOptions options;
    options.letterSpacing = letterSpacing;
    options.firstLineInset = inset;
    return options;
}

INSTANTIATE_TEST_SUITE_P(
    Carets, Places,
    ::testing::Values(PlacesRow{"", "0"}, PlacesRow{"", "50", rightToLeft(50)},
                      PlacesRow{"", "7", spaced(0, 7)}, PlacesRow{"abc", "0 6 12 18"},
                      PlacesRow{"a\n", "0 6 |0"}, PlacesRow{"a\n\nb", "0 6 |0 |0 6"},
                      PlacesRow{"a\r\nb", "0 6 6 |0 6"}, PlacesRow{"אב\n", "12 6 0 |0"},
                      // Two directions: the same index has a place in each.
                      PlacesRow{"ab אבג", "0 6 12 36/18 30 24 36/18"},
                      PlacesRow{"ab אבג cd", "0 6 12 36/18 30 24 36/18 42 48 54"},
                      PlacesRow{"אב cd", "30 24 18 0/12 6 0/12"},
                      PlacesRow{"ab", "0/12 6 0/12", rightToLeft()},
                      PlacesRow{"אב 12", "30 24 18 0/12 6 0/12"},
                      // Lines that wrap: the end of one is the start of the next; hanging spaces
                      // keep their places.
                      PlacesRow{"aaa bbb", "0 6 12 18 |0/24 6 12 18", wide(24)},
                      PlacesRow{"aaa   bbb", "0 6 12 18 24 30 |0/36 6 12 18", wide(20)},
                      PlacesRow{"אב גד", "20 14 8 |20/2 14 8", wide(20)},
                      PlacesRow{"ab ", "88 94 100 106", wide(100, TextAlignment::right)},
                      PlacesRow{"aa bb c", "0 6 12 25 31 37 |0/43 6",
                                wide(37, TextAlignment::justified)},
                      // Clusters: marks, surrogates, joined emoji, conjuncts; an index inside
                      // stands at the start.
                      PlacesRow{"e\u0301x", "0 0 6 12"}, PlacesRow{"😀a", "0 0 6 12"},
                      PlacesRow{"क्षिx", "0 0 0 0 24 30"},
                      // One for one, though neither is drawn as such.
                      PlacesRow{"a\tb", "0 6 12 18"},
                      PlacesRow{"a\x01"
                                "b",
                                "0 6 6 12"},
                      // What is not shown stands at the end of the ellipsis.
                      PlacesRow{"abcdef", "0 6 12 18 24 24 24", truncated(24)},
                      PlacesRow{"abcdef\nab", "0 6 12 18 24 24 24 |0 6 12", truncated(24, 0)},
                      PlacesRow{"abcdef\r\nab", "0 6 12 18 24 24 24 24 |0 6 12", truncated(24, 0)},
                      PlacesRow{"אבגדה", "24 18 12 6 0 0", truncated(24)},
                      PlacesRow{"ab\ncd", "0 6 12 18 18 18", truncated(100)},
                      PlacesRow{"ab", "0 8 16", spaced(2)}, PlacesRow{"אב", "16 8 0", spaced(2)},
                      PlacesRow{"ab\nc", "20 26 32 |0 6", spaced(0, 20)},
                      PlacesRow{"אב", "12 6 0", spaced(0, 20)}));

struct HitRow
{
    const char *text;
    TextLayoutOptions options;
    /// x: position.
    std::vector<std::pair<double, const char *>> hits;
    double y = 0;
};

TEST(TextCarets, HitTheNearestPlace)
{
    const std::vector<HitRow> rows{
        {"abc", {}, {{-5, "0"}, {2.9, "0"}, {3.1, "1"}, {9.1, "2"}, {99, "3"}}},
        {"ab אבג", {}, {{17.5, "3^"}, {18.5, "6^"}, {22, "5"}, {35, "3"}, {40, "6"}}},
        {"אב cd", {}, {{40, "0"}, {25, "1"}, {13, "3^"}, {11, "5^"}, {1, "3"}, {-1, "5"}}},
        {"aaa bbb", wide(24), {{23, "4^"}, {90, "4^"}, {-1, "0"}}},
        {"aaa bbb", wide(24), {{1, "4"}, {90, "7"}}, 15},
        {"aaa bbb", wide(24), {{1, "4"}, {90, "7"}}, 1000},
        {"a\n\nb", {}, {{-9, "2"}, {9, "2"}}, 15},
        {"abcdef", truncated(24), {{17, "3"}, {19, "3"}, {22, "6"}, {90, "6"}}},
        {"👩‍👩a", {}, {{4, "0"}, {8, "5"}}},
    };
    for (const HitRow &row : rows) {
        const QString text = QString::fromUtf8(row.text);
        const TextCarets carets = caretsOf(text, boxFont(), row.options);
        for (const auto &[x, expected] : row.hits)
            EXPECT_EQ(positionText(carets.hitTest({x, row.y})).toStdString(), expected)
                << row.text << " at " << x;
    }
}

struct SelectionRow
{
    const char *text;
    int start;
    int end;
    const char *rects;
    TextLayoutOptions options = {};
};

TEST(TextCarets, SelectionCoversWhatIsSeenOfIt)
{
    for (const SelectionRow &row :
         std::initializer_list<SelectionRow>{{"abc", 1, 2, "6-12"},
                                             {"abc", 2, 1, ""},
                                             {"abc", -9, 99, "0-18"},
                                             {"ab אבג cd", 1, 5, "6-18 24-36"},
                                             {"ab אבג cd", 4, 8, "18-30 36-48"},
                                             {"אב cd", 1, 4, "0-6 12-24"},
                                             {"aaa bbb", 2, 6, "12-24 | 0-12", wide(24)},
                                             {"aaa bbb", 4, 6, "| 0-12", wide(24)},
                                             {"a\nb", 0, 2, "0-6"},
                                             {"e\u0301x", 1, 2, "0-6"},
                                             {"e\u0301x", 0, 1, ""},
                                             {"abcdef", 2, 5, "12-24", truncated(24)},
                                             {"abcdef", 4, 6, "", truncated(24)}}) {
        const QString text = QString::fromUtf8(row.text);
        const TextCarets carets = caretsOf(text, boxFont(), row.options);
        QStringList shown;
        double top = carets.caretRect({0, false}).top();
        for (const QRectF &rect : carets.selectionRects(row.start, row.end)) {
            if (rect.top() > top)
                shown << QStringLiteral("|");
            top = rect.top();
            shown << QStringLiteral("%1-%2").arg(qRound(rect.left())).arg(qRound(rect.right()));
        }
        EXPECT_EQ(shown.join(u' ').toStdString(), row.rects) << row.text;
    }
}

/// Every step from one end to the other, until it stays.
template <class Step>
std::string walk(TextPosition from, Step step)
{
    QStringList path{positionText(from)};
    for (TextPosition next = step(from); next != from && path.size() < 50; next = step(from)) {
        path << positionText(next);
        from = next;
    }
    return path.join(u' ').toStdString();
}

TEST(TextCarets, ArrowsGoAsTheEyeDoes)
{
    struct Row
    {
        const char *text;
        TextLayoutOptions options;
        const char *toTheRight;
        const char *toTheLeft;
    };
    for (const Row &row :
         std::initializer_list<Row>{{"abc", {}, "0 1 2 3", "3 2 1 0"},
                                    {"ab אבג", {}, "0 1 2 3^ 5 4 3 6", "6 4 5 6^ 2 1 0"},
                                    {"אב", {}, "2 1 0", "0 1 2"},
                                    {"aa bb", wide(15), "0 1 2 3 4 5", "5 4 3 2 1 0"},
                                    {"a\n\nb", {}, "0 1 2 3 4", "4 3 2 1 0"},
                                    {"אב\nג", {}, "4 3 2 1 0", "0 1 2 3 4"},
                                    {"e\u0301x", {}, "0 2 3", "3 2 0"},
                                    {"abcdef", truncated(24), "0 1 2 3 6", "6 3 2 1 0"}}) {
        const QString text = QString::fromUtf8(row.text);
        const TextCarets carets = caretsOf(text, boxFont(), row.options);
        const bool startsAtRight = carets.layout().lines().front().isRightToLeft;
        const TextPosition start{0, false};
        const TextPosition end{int(text.size()), false};
        EXPECT_EQ(walk(startsAtRight ? end : start, [&](auto at) { return carets.right(at); }),
                  row.toTheRight);
        EXPECT_EQ(walk(startsAtRight ? start : end, [&](auto at) { return carets.left(at); }),
                  row.toTheLeft);
    }
}

TEST(TextCarets, LinesAboveAndBelow)
{
    const TextCarets carets = caretsOf(QStringLiteral("aaa bbb\ncc"), boxFont(), wide(24));
    EXPECT_EQ(carets.below({1, false}, 6), (TextPosition{5, false}));
    EXPECT_EQ(carets.below({5, false}, 90), (TextPosition{10, false}));
    EXPECT_EQ(carets.below({9, false}, 0), (TextPosition{9, false}));
    EXPECT_EQ(carets.above({4, false}, 90), (TextPosition{4, true}));
    EXPECT_EQ(carets.above({4, true}, 90), (TextPosition{4, true}));
    EXPECT_EQ(carets.lineStart({6, false}), (TextPosition{4, false}));
    EXPECT_EQ(carets.lineStart({4, true}), (TextPosition{0, false}));
    EXPECT_EQ(carets.lineEnd({0, false}), (TextPosition{4, true}));
    EXPECT_EQ(carets.lineEnd({4, false}), (TextPosition{7, false}));
}

TEST(TextCarets, WordsAndClusters)
{
    struct Row
    {
        const char *text;
        const char *clusters;
        const char *wordsOn;
        const char *wordsBack;
    };
    for (const Row &row : std::initializer_list<Row>{
             {"", "0", "0", "0"},
             {"It's 3.14, e.g.", "0 1 2 3 4 5 6 7 8 9 10 11 12 13 14 15", "0 5 11 15", "15 11 5 0"},
             {"e\u0301 👩‍👩 \u1100\u1161\u11A8", "0 2 3 8 9 12", "0 9 12", "12 9 0"},
             {"क्षत्रिय", "0 3 7 8", "0 8", "8 0"},
             {"ខ្មែរ", "0 4 5", "0 5", "5 0"},
             {"ภาษาไทย", "0 1 2 3 4 5 6 7", "0 4 7", "7 4 0"},
             {"日本語の本", "0 1 2 3 4 5", "0 3 4 5", "5 4 3 0"},
             {"a\r\nb", "0 1 3 4", "0 3 4", "4 3 0"}}) {
        const QString text = QString::fromUtf8(row.text);
        const TextCarets carets = caretsOf(text, Font());
        const auto path = [](int from, auto step) {
            return walk({from, false}, [&](TextPosition at) {
                return TextPosition{step(at.index), false};
            });
        };
        const int end = int(text.size());
        EXPECT_EQ(path(0, [&](int at) { return carets.next(at); }), row.clusters) << row.text;
        EXPECT_EQ(path(0, [&](int at) { return carets.nextWord(at); }), row.wordsOn) << row.text;
        EXPECT_EQ(path(end, [&](int at) { return carets.previousWord(at); }), row.wordsBack);
        EXPECT_EQ(carets.previous(end), end == 0 ? 0 : carets.previous(end + 9));
    }
    const TextCarets carets = caretsOf(QStringLiteral("ab  cd."), Font());
    EXPECT_EQ(carets.wordAt(1), std::pair(0, 2));
    EXPECT_EQ(carets.wordAt(3), std::pair(2, 4));
    EXPECT_EQ(carets.wordAt(99), std::pair(6, 7));
    EXPECT_EQ(carets.previousWord(5), 4);
}

TEST(TextCarets, LigaturesAreDividedAsTheFontSaysElseEvenly)
{
    const Font divided = realFontAt("opentype/linux-libertine/LinLibertine_R.otf", 1000);
    const TextCarets told = caretsOf(QStringLiteral("ffi"), divided);
    ASSERT_EQ(glyphsOf(told.layout()).size(), 1u);
    EXPECT_EQ(placesText(told, 3), "0 266 550 829");
    const Font silent = realFontAt("truetype/dejavu/DejaVuSans.ttf", 2048);
    const TextCarets even = caretsOf(QStringLiteral("ffi"), silent);
    const double width = even.layout().size().width();
    ASSERT_EQ(glyphsOf(even.layout()).size(), 1u);
    EXPECT_NEAR(even.caretRect({2, false}).x(), width * 2 / 3, 0.01);
    const TextCarets arabic = caretsOf(QStringLiteral("لا"), silent);
    ASSERT_EQ(glyphsOf(arabic.layout()).size(), 1u);
    EXPECT_NEAR(arabic.caretRect({1, false}).x(), arabic.layout().size().width() / 2, 0.01);
}

/// In real fonts too every place can be hit, and arrows reach both ends without standing still.
TEST(TextCarets, EveryPlaceCanBeHitAndWalkedTo)
{
    const QString text = QString::fromUtf8("office سلام AVA क्षत्रिय 123 لا office\r\n"
                                           "السلام (office) עליכם\n");
    for (const char *path : {kAmiriPath, "truetype/lohit-devanagari/Lohit-Devanagari.ttf"}) {
        for (const double width : {kEndless, 60.0, 20.0}) {
            TextLayoutOptions options = wide(width);
            options.direction = TextDirection::leftToRight;
            const TextCarets carets = caretsOf(text, realFontAt(path, 16), options);
            for (int index = 0; index <= text.size(); ++index) {
                for (const bool isAfterPrevious : {false, true}) {
                    const QRectF at = carets.caretRect({index, isAfterPrevious});
                    const TextPosition hit = carets.hitTest(at.center());
                    EXPECT_NEAR(carets.caretRect(hit).x(), at.x(), 0.001) << index;
                    EXPECT_EQ(carets.caretRect(hit).top(), at.top()) << index;
                }
            }
            TextPosition at{0, false};
            int steps = 0;
            for (TextPosition next = carets.right(at); next != at && steps < 200; ++steps)
                at = std::exchange(next, carets.right(next));
            EXPECT_EQ(at.index, text.size()) << path << " at " << width;
            EXPECT_LT(steps, 200);
        }
    }
}

TEST(TextCarets, TextBeyondTheLimitStandsAtTheEnd)
{
    const QString text = QString(kMaxLayoutCharacters + 50, u'a');
    const TextCarets carets = caretsOf(text, boxFont());
    const double end = kMaxLayoutCharacters * 6.0;
    EXPECT_NEAR(carets.caretRect({kMaxLayoutCharacters - 1, false}).x(), end - 6, 0.01);
    EXPECT_NEAR(carets.caretRect({kMaxLayoutCharacters + 20, false}).x(), end, 0.01);
    EXPECT_EQ(carets.hitTest({1e9, 0}).index, text.size());
}

TEST(TextCarets, WithoutGlyphsOrLinesThereIsStillAPlace)
{
    const TextCarets empty{QString(), TextLayout()};
    EXPECT_EQ(empty.hitTest({5, 5}), TextPosition());
    EXPECT_TRUE(empty.caretRect({3, true}).isNull());
    EXPECT_EQ(empty.right({3, true}), TextPosition());
    const TextCarets bare = caretsOf(QStringLiteral("ab\nc"), Font());
    EXPECT_EQ(bare.hitTest({50, 50}).index, 3);
    EXPECT_EQ(bare.caretRect({2, false}).x(), 0);
    // A layout of another text is a mistake, but no reason to read beyond this one.
    const TextCarets foreign(QStringLiteral("a"), TextLayout(QStringLiteral("abc\nd"), boxFont()));
    EXPECT_LE(foreign.hitTest({50, 50}).index, 1);
}

} // namespace
