// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#include "text/ColorSupport.h"

#include "text/TableView.h"

#include <QFile>

using namespace lorva;
using namespace lorva::test;

namespace {

constexpr QRgb kRed = 0xFF0000;
constexpr QRgb kGreen = 0x00FF00;
constexpr QRgb kBlue = 0x0000FF;
constexpr QRgb kWhite = 0xFFFFFF;
/// Half way from red to blue, and parts of it.
constexpr QRgb kMiddle = 0x800080;
constexpr QRgb kQuarter = 0xBF0040;
constexpr QRgb kThreeQuarters = 0x4000BF;

struct Spot
{
    char32_t character;
    /// Font units, y up, away from edges.
    double x;
    double y;
    QRgb color;
};

/// What tests/fonts/colr_fonts.py draws.
constexpr Spot kSpots[]{
    // Plain colours, layers, the text's colour.
    {U'A', 150, 700, kRed},
    {U'A', 950, 400, kWhite},
    {U'B', 300, 400, kMiddle},
    {U'B', 700, 400, kRed},
    {U'C', 500, 400, 0x808080},
    // Linear gradients: before, within, after.
    {U'D', 150, 400, kRed},
    {U'D', 500, 400, kMiddle},
    {U'D', 600, 750, kThreeQuarters},
    {U'D', 850, 400, kBlue},
    {U'E', 350, 400, kQuarter},
    {U'E', 550, 400, kQuarter},
    {U'E', 250, 400, kThreeQuarters},
    {U'F', 350, 400, kQuarter},
    {U'F', 550, 400, kThreeQuarters},
    {U'F', 250, 400, kQuarter},
    {U'G', 500, 400, kRed},
    {U'G', 800, 300, kMiddle},
    {U'G', 200, 700, kRed},
    // Radial ones.
    {U'H', 500, 600, kMiddle},
    {U'H', 300, 400, kMiddle},
    {U'H', 120, 20, kBlue},
    {U'I', 300, 400, 0xD5002B},
    {U'I', 700, 400, kBlue},
    {U'I', 300, 700, kWhite},
    {U'l', 500, 250, kMiddle},
    {U'l', 500, 575, kThreeQuarters},
    {U'm', 400, 400, 0xAA0055},
    {U'm', 200, 400, kRed},
    {U'm', 400, 600, kWhite},
    {U'p', 500, 500, kThreeQuarters},
    {U't', 300, 400, kRed},
    {U't', 550, 400, kMiddle},
    // Sweeps: quarter turns of the square, then an ellipse.
    {U'J', 500, 700, kMiddle},
    {U'J', 800, 700, kQuarter},
    {U'J', 500, 100, kBlue},
    {U'K', 800, 700, kMiddle},
    {U'K', 200, 700, kMiddle},
    {U'L', 800, 700, kMiddle},
    {U'L', 200, 200, kRed},
    {U'n', 800, 700, kThreeQuarters},
    {U'n', 800, 100, kBlue},
    {U'o', 800, 700, kRed},
    {U'o', 200, 700, kBlue},
    {U'u', 500, 600, kQuarter},
    {U'u', 800, 500, 0xDF0020},
    // References and transforms: inside, and just outside where a wrong sign would land.
    {U'M', 150, 700, kRed},
    {U'N', 620, 580, kRed},
    {U'N', 580, 380, kWhite},
    {U'O', 250, 700, kRed},
    {U'O', 350, 600, kWhite},
    {U'P', 340, 440, kRed},
    {U'P', 400, 480, kWhite},
    {U'Q', 220, 170, kRed},
    {U'Q', 320, 170, kWhite},
    {U'R', 340, 560, kRed},
    {U'R', 700, 400, kWhite},
    {U'S', 320, 580, kRed},
    {U'S', 280, 420, kWhite},
    {U'T', 500, 520, kRed},
    {U'T', 420, 320, kWhite},
    {U'U', 750, 320, kRed},
    {U'U', 420, 490, kRed},
    {U'U', 650, 490, kWhite},
    {U'V', 420, 240, kRed},
    {U'V', 580, 560, kRed},
    {U'V', 420, 480, kWhite},
    {U'W', 320, 580, kRed},
    {U'W', 280, 420, kWhite},
    {U'q', 520, 150, kRed},
    {U'q', 520, 700, kBlue},
    {U'd', 600, 400, kMiddle},
    // Clip boxes, outlines within outlines, what has no edge of its own.
    {U'X', 300, 200, kRed},
    {U'X', 300, 600, kWhite},
    {U'X', 700, 200, kWhite},
    {U'Y', 300, 200, kRed},
    {U'Y', 300, 600, kWhite},
    {U'Y', 700, 200, kWhite},
    {U'Z', 300, 700, kRed},
    {U'Z', 600, 200, kWhite},
    {U'a', 300, 400, kRed},
    {U'b', 250, 650, kBlue},
    {U'b', 150, 650, kWhite},
    {U'c', 50, -150, kBlue},
    {U'c', 950, 750, kBlue},
    // Stops: hard edges, alpha, one only, at one place, beyond 0 … 1, a part that is mirrored.
    {U'e', 450, 400, kRed},
    {U'e', 550, 400, kBlue},
    {U'f', 500, 400, 0xFF8080},
    {U'g', 150, 400, kGreen},
    {U'g', 850, 400, kGreen},
    {U'h', 450, 400, kRed},
    {U'h', 550, 400, kBlue},
    {U'i', 500, 400, 0x660099},
    {U'j', 250, 400, kMiddle},
    {U'j', 350, 400, kMiddle},
    {U'j', 305, 400, 0x0D00F2},
    // A gradient without direction paints nothing, so the glyph's own outline shows.
    {U'k', 500, 400, 0x000000},
    {U'k', 200, 200, kWhite},
    // Compositions.
    {U'r', 300, 400, kBlue},
    {U'r', 700, 400, kRed},
    {U's', 300, 400, kGreen},
    {U's', 700, 400, kWhite},
};

struct Source
{
    const char *file;
    double weight;
    double ratio;
};

void PrintTo(const Source &source, std::ostream *out)
{
    *out << source.file << " at " << source.weight << ", " << source.ratio << "x";
}

class ColrSpots : public ::testing::TestWithParam<Source>
{
protected:
    Font font() const { return colorFont(GetParam().file, GetParam().weight); }
};

TEST_P(ColrSpots, HaveTheColorsThatTheFontDescribes)
{
    for (const Spot &spot : kSpots) {
        const QImage image = drawnCharacter(font(), spot.character, GetParam().ratio);
        const QRgb found = colorAt(image, spot.x, spot.y);
        // Steep gradients change by so much within a pixel.
        EXPECT_TRUE(isClose(found, spot.color, 16))
            << char(spot.character) << " at " << spot.x << ", " << spot.y << " is "
            << colorText(found) << ", not " << colorText(spot.color);
    }
}

INSTANTIATE_TEST_SUITE_P(Fonts, ColrSpots,
                         ::testing::Values(Source{"colr1.ttf", 400, 1}, Source{"colr1.ttf", 400, 2},
                                           Source{"colr1-variable.ttf", 900, 1},
                                           Source{"colr1-variable.ttf", 900, 2},
                                           Source{"colr1-mapped.ttf", 900, 1}));

TEST(ColrVariations, PaintsFollowTheWeight)
{
    const Spot atRegular[]{
        {U'N', 500, 400, 0xFF8080}, {U'N', 620, 580, kWhite}, {U'X', 700, 600, 0xFF8080}};
    // Half of the way: moved by 100 and 50, clipped at 750 and 700, three quarters opaque.
    const Spot between[]{{U'N', 690, 540, 0xFF4040},
                         {U'N', 480, 340, kWhite},
                         {U'X', 740, 690, 0xFF4040},
                         {U'X', 770, 600, kWhite},
                         {U'D', 150, 400, 0xFF4040}};
    for (const char *const file : {"colr1-variable.ttf", "colr1-mapped.ttf"}) {
        for (const Spot &spot : atRegular)
            EXPECT_TRUE(
                isClose(colorAt(drawnCharacter(colorFont(file), spot.character), spot.x, spot.y),
                        spot.color))
                << char(spot.character) << ' ' << spot.x;
        for (const Spot &spot : between)
            EXPECT_TRUE(isClose(
                colorAt(drawnCharacter(colorFont(file, 650), spot.character), spot.x, spot.y),
                spot.color))
                << char(spot.character) << ' ' << spot.x;
    }
}

/// By the W3C's "Compositing and Blending Level 1": half-opaque 0x006699 at the bottom upon opaque
/// 0xFF8000 at the left, on white. Both, the backdrop alone, the source alone.
constexpr QRgb kComposed[][3]{
    {0xFFFFFF, 0xFFFFFF, 0xFFFFFF}, {0x80B2CC, 0xFFFFFF, 0x80B2CC}, {0xFF8000, 0xFF8000, 0xFFFFFF},
    {0x80734D, 0xFF8000, 0x80B2CC}, {0xFF8000, 0xFF8000, 0x80B2CC}, {0x80B2CC, 0xFFFFFF, 0xFFFFFF},
    {0xFFBF80, 0xFFFFFF, 0xFFFFFF}, {0xFFFFFF, 0xFFFFFF, 0x80B2CC}, {0xFFBF80, 0xFF8000, 0xFFFFFF},
    {0x80734D, 0xFF8000, 0xFFFFFF}, {0xFFBF80, 0xFFFFFF, 0x80B2CC}, {0xFFBF80, 0xFF8000, 0x80B2CC},
    {0xFFB24D, 0xFF8000, 0x80B2CC}, {0xFF994D, 0xFF8000, 0x80B2CC}, {0xFF7300, 0xFF8000, 0x80B2CC},
    {0x807300, 0xFF8000, 0x80B2CC}, {0xFF804D, 0xFF8000, 0x80B2CC}, {0xFFAA00, 0xFF8000, 0x80B2CC},
    {0xFF4000, 0xFF8000, 0x80B2CC}, {0x80731A, 0xFF8000, 0x80B2CC}, {0xFF7900, 0xFF8000, 0x80B2CC},
    {0xFF4D4D, 0xFF8000, 0x80B2CC}, {0xFF804D, 0xFF8000, 0x80B2CC}, {0x805900, 0xFF8000, 0x80B2CC},
    {0x979D80, 0xFF8000, 0x80B2CC}, {0xEA841E, 0xFF8000, 0x80B2CC}, {0xA59872, 0xFF8000, 0x80B2CC},
    {0xC06000, 0xFF8000, 0x80B2CC},
};

TEST(ColrComposition, FollowsTheFormulasOfAllModes)
{
    const Font font = colorFont("colr1.ttf");
    for (size_t mode = 0; mode < std::size(kComposed); ++mode) {
        const QImage image = drawnCharacter(font, char32_t(0xE100 + mode));
        const QRgb found[]{colorAt(image, 300, 200), colorAt(image, 300, 600),
                           colorAt(image, 700, 200)};
        for (int i = 0; i < 3; ++i)
            EXPECT_TRUE(isClose(found[i], kComposed[mode][i], 2))
                << mode << ' ' << i << ' ' << colorText(found[i]);
    }
}

TEST(ColrGlyphs, TheTextsColorShowsWithItsOpacity)
{
    const Font version0 = colorFont("colr0.ttf");
    EXPECT_EQ(colorAt(drawnCharacter(version0, U'A', 1, QColor(0, 255, 0, 128)), 700, 400), kRed);
    EXPECT_EQ(colorAt(drawnCharacter(version0, U'A', 1, QColor(0, 255, 0, 128)), 300, 400), kBlue);
    EXPECT_TRUE(isClose(
        colorAt(drawnCharacter(version0, U'B', 1, QColor(0, 255, 0, 128)), 300, 400), 0x7FFF7F));
    const Font version1 = colorFont("colr1.ttf");
    EXPECT_TRUE(isClose(
        colorAt(drawnCharacter(version1, U'C', 1, QColor(255, 0, 0, 128)), 300, 400), 0xFFBFBF));
}

TEST(ColrGlyphs, BoundsAreTheClipBoxElseTheInk)
{
    const Font font = colorFont("colr1.ttf");
    const struct
    {
        char32_t character;
        QRectF bounds;
    } cases[]{
        {U'A', QRectF(10, -80, 80, 80)},   {U'X', QRectF(10, -40, 40, 40)},
        {U'b', QRectF(20, -70, 60, 60)},   {U'c', QRectF(0, -80, 100, 100)},
        {U'N', QRectF(60, -60, 20, 20)},   {U'Y', QRectF(10, -40, 40, 40)},
        {U's', QRectF(10, -80, 40, 80)},   {0xE100, QRectF()},
        {0xE103, QRectF(10, -80, 80, 80)}, {U'T', QRectF(50 - 14.14, -54.14, 28.28, 28.28)},
    };
    ColorGlyphs glyphs(font);
    for (const auto &[character, bounds] : cases) {
        const QRectF found = glyphs.bounds(*font.face()->glyphFor(character));
        EXPECT_NEAR(found.left(), bounds.left(), 0.01) << int(character);
        EXPECT_NEAR(found.top(), bounds.top(), 0.01) << int(character);
        EXPECT_NEAR(found.width(), bounds.width(), 0.01) << int(character);
        EXPECT_NEAR(found.height(), bounds.height(), 0.01) << int(character);
    }
    EXPECT_FALSE(glyphs.has(0));
    EXPECT_TRUE(glyphs.bounds(70000).isNull());
}

TEST(ColrGlyphs, LeaveThePainterAsItWas)
{
    const Font font = colorFont("colr1.ttf");
    QImage image(200, 200, QImage::Format_ARGB32_Premultiplied);
    QPainter painter(&image);
    painter.translate(3, 5);
    painter.rotate(30);
    const QTransform before = painter.transform();
    ColorGlyphs glyphs(font);
    EXPECT_TRUE(glyphs.paint(painter, *font.face()->glyphFor(U'D'), Qt::black));
    EXPECT_EQ(painter.transform(), before);
    EXPECT_FALSE(painter.testRenderHint(QPainter::SmoothPixmapTransform));
}

// Damage: raw tables. Glyph 1 is what "A" shows.

QByteArray big(quint64 value, int bytes)
{
    QByteArray result;
    for (int i = bytes - 1; i >= 0; --i)
        result += i < 8 ? char(quint8(value >> (8 * i))) : '\0';
    return result;
}

/// `COLR` version 1 with a paint for each of the glyphs 1, 2, … and the paints of the layer list.
QByteArray colr(const QList<QByteArray> &paints, const QList<QByteArray> &layers = {})
{
    constexpr int kHeader = 34;
    QByteArray bases = big(quint64(paints.size()), 4);
    QByteArray bodies;
    for (qsizetype i = 0; i < paints.size(); ++i) {
        bases += big(quint64(i + 1), 2) + big(quint64(4 + paints.size() * 6 + bodies.size()), 4);
        bodies += paints[i];
    }
    bases += bodies;
    QByteArray list = big(quint64(layers.size()), 4);
    bodies.clear();
    for (const QByteArray &layer : layers) {
        list += big(quint64(4 + layers.size() * 4 + bodies.size()), 4);
        bodies += layer;
    }
    list += bodies;
    return big(1, 2) + big(0, 12) + big(kHeader, 4) + big(quint64(kHeader + bases.size()), 4)
        + big(0, 12) + bases + list;
}

const QByteArray kSolid = big(2, 1) + big(0xFFFF, 2) + big(0x4000, 2);
const QByteArray kBox = big(10, 1) + big(6, 3) + big(1, 2) + kSolid;

QByteArray layersPaint(int count, quint32 first)
{
    return big(1, 1) + big(quint64(count), 1) + big(first, 4);
}

QByteArray scaled(const QByteArray &child, quint64 fixedScale = 0x10000)
{
    return big(12, 1) + big(7, 3) + big(7 + quint64(child.size()), 3) + child + big(fixedScale, 4)
        + big(0, 8) + big(fixedScale, 4) + big(0, 8);
}

Font fontWith(const QByteArray &table, double size = 100)
{
    static int files = 0;
    const QByteArray bytes = FontBuilder("Damaged").codePoints(U"AB").table("COLR", table).build();
    return Font(openFace(writeFont(bytes, "colr" + QByteArray::number(++files) + ".ttf")), size);
}

bool hasPicture(const QByteArray &table)
{
    return ColorGlyphs(fontWith(table)).has(1);
}

TEST(DamagedColr, DepthWorkAndCyclesAreBounded)
{
    QByteArray deep = kBox;
    for (int i = 0; i < 40; ++i)
        deep = scaled(deep);
    EXPECT_TRUE(hasPicture(colr({deep})));
    for (int i = 0; i < 40; ++i)
        deep = scaled(deep);
    EXPECT_FALSE(hasPicture(colr({deep})));

    // Each layer shows the next one twice over: 2^30 boxes.
    QList<QByteArray> layers;
    for (quint32 i = 0; i < 30; ++i)
        layers << big(32, 1) + big(8, 3) + big(3, 1) + big(8, 3) + layersPaint(1, i + 1);
    layers << kBox;
    EXPECT_FALSE(hasPicture(colr({layersPaint(1, 0)}, layers)));
    EXPECT_TRUE(hasPicture(colr({layersPaint(1, 20)}, layers)));

    const QByteArray self = big(11, 1) + big(1, 2);
    EXPECT_FALSE(hasPicture(colr({self})));
    EXPECT_FALSE(hasPicture(colr({big(11, 1) + big(2, 2), self})));
    EXPECT_FALSE(hasPicture(colr({layersPaint(2, 0)}, {layersPaint(2, 0), layersPaint(1, 0)})));
    EXPECT_TRUE(hasPicture(colr({layersPaint(2, 0)}, {layersPaint(2, 0), kBox})));
}

TEST(DamagedColr, NumbersBeyondAllBoundsDrawTheOutline)
{
    QByteArray huge = kBox;
    for (int i = 0; i < 50; ++i)
        huge = scaled(huge, 0x7FFFFFFF);
    QByteArray tiny = kBox;
    for (int i = 0; i < 50; ++i)
        tiny = scaled(tiny, 1);
    for (const QByteArray &paint : {huge, tiny}) {
        const Font font = fontWith(colr({paint}));
        drawnCharacter(font, U'A');
        const QRectF ink = TextLayout(QStringLiteral("A"), font).inkBounds();
        EXPECT_FALSE(std::isnan(ink.width()));
    }
    // 65,535 stops that are not there.
    const QByteArray gradient = big(4, 1) + big(16, 3) + big(0, 4) + big(100, 2) + big(0, 4)
        + big(100, 2) + big(0, 1) + big(0xFFFF, 2);
    EXPECT_FALSE(hasPicture(colr({big(10, 1) + big(6, 3) + big(1, 2) + gradient})));
}

/// Compositions nested in one another hold ever more layers.
QByteArray nestedCompositions(int depth)
{
    QByteArray paint = kBox;
    for (int i = 0; i < depth; ++i)
        paint =
            big(32, 1) + big(8, 3) + big(5, 1) + big(8 + quint64(paint.size()), 3) + paint + kBox;
    return paint;
}

TEST(DamagedColr, TooManyLayersAtOnceDrawTheOutline)
{
    const QByteArray table = colr({nestedCompositions(30)});
    const Font small = fontWith(table, 20);
    QImage image(2000, 2000, QImage::Format_ARGB32_Premultiplied);
    QPainter painter(&image);
    painter.translate(0, 1900);
    ColorGlyphs fits(small);
    EXPECT_TRUE(fits.paint(painter, 1, Qt::black));
    ColorGlyphs isTooMuch(small.withPointSize(2500));
    EXPECT_TRUE(isTooMuch.has(1));
    EXPECT_FALSE(isTooMuch.paint(painter, 1, Qt::black));
    EXPECT_FALSE(isTooMuch.has(1));
}

/// A table with something of everything: layers, a reference, a varied gradient, a transform.
QByteArray richTable()
{
    const QByteArray layer = big(10, 1) + big(6, 3) + big(1, 2) + big(5, 1) + big(20, 3) + big(0, 8)
        + big(100, 2) + big(100, 2) + big(0, 4) + big(2, 1) + big(2, 2) + big(0, 2) + big(0xFFFF, 2)
        + big(0x4000, 2) + big(0, 4) + big(0x4000, 2) + big(0, 4) + big(0x4000, 2) + big(1, 4);
    return colr({layersPaint(3, 0), scaled(kBox)}, {layer, kBox, big(11, 1) + big(2, 2)});
}

TEST(DamagedColr, SurvivesCutsAndWrongBytesEverywhere)
{
    const QByteArray whole = richTable();
    ASSERT_TRUE(hasPicture(whole));
    int drawn = 0;
    for (qsizetype length = 0; length < whole.size(); ++length) {
        const QImage image = drawnCharacter(fontWith(whole.left(length), 40), U'A');
        drawn += colorAt(image, 100, 100) == 0;
    }
    // Whatever was lost, the outline is there.
    EXPECT_GT(drawn, whole.size() / 2);
    for (qsizetype at = 0; at < whole.size(); ++at) {
        for (const char byte : {'\x00', '\x7F', '\xFF'}) {
            QByteArray table = whole;
            table[at] = byte;
            const Font font = fontWith(table, 40);
            drawnCharacter(font, U'A');
            const QRectF ink = TextLayout(QStringLiteral("A"), font).inkBounds();
            EXPECT_TRUE(std::isfinite(ink.width()) && std::isfinite(ink.height())) << at;
        }
    }
}

TEST(DamagedColr, SurvivesWrongBytesInVariations)
{
    QFile made(QString::fromUtf8(madeFont("colr1-mapped.ttf").bytes()));
    ASSERT_TRUE(made.open(QIODevice::ReadOnly));
    const QByteArray whole = made.readAll();
    const TableView file(whole);
    const quint64 entry = quint64(whole.indexOf("COLR"));
    const quint64 start = file.u32(entry + 8);
    const quint64 length = file.u32(entry + 12);
    ASSERT_TRUE(file.has(start, length));
    // All of the header, which leads to the variations, and places all over.
    for (quint64 at = 0; at < length; at += at < 34 ? 1 : 13) {
        QByteArray bytes = whole;
        bytes[qsizetype(start + at)] = '\x7F';
        const auto face = openFace(writeFont(bytes, "varied" + QByteArray::number(at) + ".ttf"));
        const Font font = Font(face, 20).withVariations({{fontTag('w', 'g', 'h', 't'), 650}});
        const TextLayout layout(QStringLiteral("DNVX"), font);
        QImage image(80, 40, QImage::Format_ARGB32_Premultiplied);
        GlyphPainter::paint(image, layout, QPointF(), Qt::black);
        EXPECT_TRUE(std::isfinite(layout.inkBounds().width())) << at;
    }
}

} // namespace
