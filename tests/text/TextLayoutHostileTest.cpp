// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#include "text/FontLimits.h"
#include "text/GlyphPainter.h"
#include "text/LayoutSupport.h"

using namespace lorva;
using namespace lorva::test;

namespace {

void expectSound(const TextLayout &layout, qsizetype textLength)
{
    int next = 0;
    ASSERT_FALSE(layout.lines().empty());
    for (const LayoutLine &line : layout.lines()) {
        EXPECT_GE(line.textStart, next);
        EXPECT_LE(line.textStart, line.textEnd);
        EXPECT_LE(line.textEnd, textLength);
        EXPECT_TRUE(std::isfinite(line.width) && std::isfinite(line.origin.x())
                    && std::isfinite(line.origin.y()));
        next = line.textEnd;
    }
}

class HostileText : public ::testing::TestWithParam<QString>
{
};

TEST_P(HostileText, isLaidOutAtEveryWidth)
{
    const QString &text = GetParam();
    for (const QByteArray path : {"opentype/fonts-hosny-amiri/Amiri-Regular.ttf",
                                  "truetype/lohit-devanagari/Lohit-Devanagari.ttf"}) {
        const Font font = realFontAt(path, 12);
        for (const double width : {0.0, 50.0, std::numeric_limits<double>::infinity()}) {
            for (const LineBreakMode mode :
                 {LineBreakMode::wordWrap, LineBreakMode::truncateTail}) {
                TextLayoutOptions options;
                options.width = width;
                options.lineBreakMode = mode;
                const TextLayout layout(text, font, options);
                expectSound(layout, text.size());
                EXPECT_TRUE(text.size() <= kMaxLayoutCharacters || layout.isTruncated());
            }
        }
    }
}

INSTANTIATE_TEST_SUITE_P(
    Texts, HostileText,
    ::testing::Values(
        QString(u'a' + QString(100'000, QChar(0x0301))), QString(5'000, QChar(0x202B)),
        QString(3'000, QChar(0x2067)), QString(2'000, QChar(0xD800)), QString(2'000, QChar(0xDC00)),
        QString(2'000, QChar(0)), QString(100'000, QChar(u' ')), QString(100'000, QChar(u'x')),
        QString(20'000, QChar(u'\n')), QString(5'000, QChar(0x200D)), QString(3'000, QChar(0x0640)),
        QString::fromUtf8("क्").repeated(2'000), QStringLiteral("(אa").repeated(3'000)));

TEST(TextLayoutHostile, NeverCutsASurrogatePair)
{
    const QString text =
        QString(kMaxLayoutCharacters - 1, QChar(u'a')) + QString::fromUtf8("😀") + u'b';
    const TextLayout layout(text, boxFont());
    EXPECT_EQ(layout.lines().back().textEnd, kMaxLayoutCharacters - 1);
    EXPECT_TRUE(layout.isTruncated());
}

TEST(TextLayoutHostile, OptionsThatAreNoNumbersAreLeftOut)
{
    const double none = std::numeric_limits<double>::quiet_NaN();
    TextLayoutOptions options;
    options.width = none;
    options.firstLineInset = none;
    options.letterSpacing = none;
    const TextLayout layout(QStringLiteral("ab"), boxFont({}, none), options);
    expectSound(layout, 2);
    options.width = -5;
    expectSound(TextLayout(QStringLiteral("ab"), boxFont(), options), 2);
}

TEST(TextLayoutHostile, AbsurdAdvancesAreClamped)
{
    const QByteArray bytes = FontBuilder("Wide").unitsPerEm(16).advance(U'a', 65535).build();
    const Font font(openFace(writeFont(bytes)), 10);
    const TextLayout layout(QStringLiteral("aa"), font);
    EXPECT_LE(layout.size().width(), 2 * 64 * 10);
    EXPECT_LE(layout.size().height(), 20 * 10);
}

void append16(QByteArray &bytes, int value)
{
    bytes.append(char(value >> 8)).append(char(value));
}

/// A simple glyph of `points` points and as many segments.
QByteArray zigzagGlyph(int points)
{
    QByteArray glyph;
    for (const int value : {1, 0, 0, 100, 100, points - 1, 0})
        append16(glyph, value);
    // Flag 1: on the curve, coordinates of two bytes each.
    glyph.append(QByteArray(points, char(1)));
    for (int axis = 0; axis < 2; ++axis) {
        for (int i = 0; i < points; ++i)
            append16(glyph, (i + axis) % 2 ? 100 : -100);
    }
    return glyph;
}

/// Nothing but references to glyph 1.
QByteArray compositeGlyph(int copies)
{
    QByteArray glyph;
    for (const int value : {-1, 0, 0, 100, 100})
        append16(glyph, value);
    for (int i = 0; i < copies; ++i) {
        append16(glyph, i + 1 < copies ? 0x0022 : 0x0002);
        append16(glyph, 1);
        append16(glyph, 0);
    }
    return glyph;
}

/// The path that `count` times a composite of `copies` zigzags makes.
QPainterPath bombPath(int points, int copies, int count)
{
    QByteArray zigzag = zigzagGlyph(points);
    zigzag.append(zigzag.size() % 2, char(0));
    const QByteArray composite = compositeGlyph(copies);
    QByteArray loca;
    for (const qsizetype end :
         {qsizetype(0), qsizetype(0), zigzag.size(), zigzag.size() + composite.size()}) {
        append16(loca, int(end >> 16));
        append16(loca, int(end & 0xFFFF));
    }
    const QByteArray bytes = FontBuilder("Bomb")
                                 .codePoints(U"ab")
                                 .table("glyf", zigzag + composite)
                                 .table("loca", loca)
                                 .build();
    const Font font(openFace(writeFont(bytes)), 10);
    return GlyphPainter::path(TextLayout(QString(count, QChar(u'b')), font));
}

TEST(TextLayoutHostile, GlyphsOfTooManySegmentsAreLeftOut)
{
    EXPECT_GT(bombPath(1'000, 4, 1).elementCount(), 4'000);
    EXPECT_TRUE(bombPath(10'000, 64, kMaxLayoutCharacters).isEmpty());
}

TEST(TextLayoutHostile, TextsOfTooManySegmentsEndEarly)
{
    const QPainterPath path = bombPath(1'000, 1, 2'000);
    EXPECT_GT(path.elementCount(), 900'000);
    EXPECT_LT(path.elementCount(), 1'100'000);
}

TEST(TextLayoutHostile, GlyphsThatReachTooFarAreLeftOut)
{
    const auto hasInk = [](int height) {
        const QByteArray bytes = FontBuilder("Far").unitsPerEm(16).capHeight(height).build();
        const Font font(openFace(writeFont(bytes, QByteArray::number(height))), 10);
        return !TextLayout(QStringLiteral("A"), font).inkBounds().isNull();
    };
    EXPECT_TRUE(hasInk(900));
    EXPECT_FALSE(hasInk(30'000));
}

} // namespace
