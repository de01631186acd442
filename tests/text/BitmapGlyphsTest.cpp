// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#include "text/color/GlyphPicture.h"
#include "text/MadeFonts.h"
#include "text/PictureSupport.h"

#include <QBuffer>

using namespace lorva;
using namespace lorva::test;

namespace {

std::unique_ptr<ColorGlyphSource> bitmapsOf(const FilePath &path, double pointSize = 20)
{
    return makeBitmapGlyphs(Font(openFace(path), pointSize));
}

QByteArray saved(const QImage &image, const char *format)
{
    QByteArray bytes;
    QBuffer buffer(&bytes);
    buffer.open(QIODevice::WriteOnly);
    image.save(&buffer, format);
    return bytes;
}

QByteArray plainPicture(QSize size, QColor color, const char *format = "png")
{
    QImage image(size, QImage::Format_RGB32);
    image.fill(color);
    return saved(image, format);
}

/// `sbix` of one strike in which glyph 1 is the picture, and glyph 2 nothing.
QByteArray standardTable(const QByteArray &kind, const QByteArray &picture,
                         quint16 pixelsPerEm = 20)
{
    const quint32 first = 4 + 4 * 4;
    const quint32 end = first + 8 + quint32(picture.size());
    return bigEndian<quint16>(1) + bigEndian<quint16>(1) + bigEndian<quint32>(1)
        + bigEndian<quint32>(12) + bigEndian<quint16>(pixelsPerEm) + bigEndian<quint16>(72)
        + bigEndian<quint32>(first) + bigEndian<quint32>(first) + bigEndian<quint32>(end)
        + bigEndian<quint32>(end) + bigEndian<quint32>(0) + kind + picture;
}

FilePath fontWith(const char *tag, const QByteArray &table)
{
    return writeFont(FontBuilder("Pictures").codePoints(U"AB").table(tag, table).build());
}

/// Quarters of a box, as every made picture has them.
std::vector<Expected> quarters(QRectF box,
                               std::array<QRgb, 4> colors = {kRed, kGreen, kBlue, kYellow})
{
    const double left = box.left() + box.width() / 4;
    const double right = box.left() + box.width() * 3 / 4;
    const double upper = box.top() + box.height() * 3 / 4;
    const double lower = box.top() + box.height() / 4;
    return {{{left, upper}, colors[0]},
            {{right, upper}, colors[1]},
            {{left, lower}, colors[2]},
            {{right, lower}, colors[3]},
            {{box.left() - 0.6, upper}, kNothing},
            {{box.right() + 0.6, upper}, kNothing},
            {{left, box.bottom() + 0.6}, kNothing},
            {{left, box.top() - 0.6}, kNothing}};
}

struct Placement
{
    const char *font;
    quint32 glyph;
    /// In points at 20 points, y up; null where there is no picture.
    QRectF box;
};

TEST(BitmapGlyphs, PlacesEachPictureByItsStrike)
{
    const Placement cases[]{
        {"sbix.ttf", 1, {0, 0, 20, 20}},
        {"sbix.ttf", 2, {0, 0, 20, 20}},
        {"sbix.ttf", 3, {5, -4, 10, 10}},
        {"sbix.ttf", 4, {0, 0, 20, 20}},
        {"sbix.ttf", 5, {2, 4, 10, 10}},
        {"sbix.ttf", 6, {}},
        {"sbix.ttf", 7, {}},
        {"sbix.ttf", 99, {}},
        {"cbdt.ttf", 1, {0, 0, 20, 20}},
        {"cbdt.ttf", 2, {5, -4, 10, 10}},
        {"cbdt.ttf", 3, {-3, 2, 10, 10}},
        {"cbdt.ttf", 4, {2, 4, 10, 10}},
        {"cbdt.ttf", 5, {2, 4, 10, 10}},
        {"cbdt.ttf", 6, {0, 0, 10, 10}},
        {"cbdt.ttf", 7, {}},
        {"cbdt.ttf", 8, {4, 0, 10, 10}},
        {"cbdt.ttf", 99, {}},
    };
    for (const Placement &one : cases) {
        SCOPED_TRACE(std::string(one.font) + " " + std::to_string(one.glyph));
        const auto glyphs = bitmapsOf(madeFont(one.font));
        ASSERT_TRUE(glyphs);
        EXPECT_EQ(glyphs->has(one.glyph), !one.box.isNull());
        if (one.box.isNull()) {
            EXPECT_TRUE(pictureOf(*glyphs, one.glyph).isNull());
            continue;
        }
        const QRectF bounds = glyphs->bounds(one.glyph);
        EXPECT_NEAR(bounds.left(), one.box.left(), 1e-6);
        EXPECT_NEAR(bounds.top(), -one.box.bottom(), 1e-6);
        EXPECT_NEAR(bounds.width(), one.box.width(), 1e-6);
        EXPECT_NEAR(bounds.height(), one.box.height(), 1e-6);
        expectColors(pictureOf(*glyphs, one.glyph), quarters(one.box));
    }
}

TEST(BitmapGlyphs, TakesTheStrikeThatSuitsTheDevice)
{
    constexpr std::array small{kRed, kGreen, kBlue, kYellow};
    constexpr std::array large{kBlue, kYellow, kRed, kGreen};
    struct Case
    {
        double pointSize;
        double ratio;
        std::array<QRgb, 4> colors;
    };
    const Case cases[]{{10, 1, small}, {10, 2, small},   {10, 2.1, large}, {20, 1, small},
                       {21, 1, large}, {20, 1.5, large}, {40, 1, large},   {40, 3, large}};
    for (const char *const font : {"sbix.ttf", "cbdt.ttf"}) {
        for (const Case &one : cases) {
            SCOPED_TRACE(std::string(font) + " " + std::to_string(one.pointSize) + " "
                         + std::to_string(one.ratio));
            const auto glyphs = bitmapsOf(madeFont(font), one.pointSize);
            expectColors(pictureOf(*glyphs, 1, one.ratio),
                         quarters({0, 0, one.pointSize, one.pointSize}, one.colors));
        }
    }
}

TEST(BitmapGlyphs, ScalesByAreaAndKeepsWholePixels)
{
    // Columns of one pixel, red and blue: at half the size each pixel is half of both.
    const auto half = bitmapsOf(madeFont("sbix.ttf"), 10);
    expectColors(pictureOf(*half, 8), {{{1, 5}, 0xff800080}, {{6, 5}, 0xff800080}});
    // At its own size not one of them is blurred, wherever it stands.
    const auto same = bitmapsOf(madeFont("sbix.ttf"), 20);
    QImage image(kPictureSide, kPictureSide, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    QPainter painter(&image);
    painter.translate(10.3, 50.4);
    ASSERT_TRUE(same->paint(painter, 8, Qt::black));
    for (int x = 0; x < 20; ++x)
        EXPECT_EQ(image.pixel(10 + x, 40), x % 2 == 0 ? kRed : kBlue) << x;
    EXPECT_EQ(image.pixel(9, 40), kNothing);
    EXPECT_EQ(image.pixel(30, 40), kNothing);
}

TEST(BitmapGlyphs, TurnsWithThePainterAndLeavesItAsItWas)
{
    const auto glyphs = bitmapsOf(madeFont("sbix.ttf"), 20);
    QImage image(kPictureSide, kPictureSide, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    QPainter painter(&image);
    painter.translate(20, 20);
    painter.rotate(90);
    const QTransform before = painter.transform();
    ASSERT_TRUE(glyphs->paint(painter, 1, Qt::black));
    EXPECT_EQ(painter.transform(), before);
    EXPECT_FALSE(painter.testRenderHint(QPainter::SmoothPixmapTransform));
    // Its top left is now at the top right, its foot at the left.
    EXPECT_TRUE(areAlike(image.pixel(35, 25), kRed, 3)) << colorText(image.pixel(35, 25));
    EXPECT_TRUE(areAlike(image.pixel(35, 35), kGreen, 3)) << colorText(image.pixel(35, 35));
    EXPECT_TRUE(areAlike(image.pixel(25, 25), kBlue, 3)) << colorText(image.pixel(25, 25));
}

TEST(BitmapGlyphs, ReadsJpegAndNothingBesides)
{
    struct Case
    {
        const char *name;
        QByteArray table;
        bool isShown;
    };
    const QByteArray picture = plainPicture({20, 20}, Qt::red);
    QByteArray huge = picture;
    qToBigEndian(quint32(100'000), huge.data() + 16);
    QByteArray broken = picture;
    broken[broken.size() - 20] = char(broken[broken.size() - 20] + 1);
    const Case cases[]{
        {"png", standardTable("png ", picture), true},
        {"jpeg", standardTable("jpg ", plainPicture({20, 20}, Qt::red, "jpg")), true},
        {"bmp that says png", standardTable("png ", plainPicture({20, 20}, Qt::red, "bmp")), false},
        {"half a png", standardTable("png ", picture.left(picture.size() / 2)), false},
        {"sizes that lie", standardTable("png ", huge), false},
        {"broken pixels", standardTable("png ", broken), false},
        {"large", standardTable("png ", plainPicture({2048, 2048}, Qt::red), 2048), true},
        {"too large", standardTable("png ", plainPicture({2049, 8}, Qt::red), 2049), false},
        {"empty", standardTable("png ", {}), false},
        {"other", standardTable("pdf ", picture), false},
        {"same as itself", standardTable("dupe", bigEndian<quint16>(1)), false},
        {"same as none", standardTable("dupe", bigEndian<quint16>(60'000)), false},
    };
    for (const Case &one : cases) {
        SCOPED_TRACE(one.name);
        const auto glyphs = bitmapsOf(fontWith("sbix", one.table));
        ASSERT_TRUE(glyphs);
        EXPECT_EQ(glyphs->has(1), one.isShown);
        EXPECT_FALSE(glyphs->has(2));
        const QImage shown = pictureOf(*glyphs, 1);
        EXPECT_EQ(shown.isNull(), !one.isShown);
        if (one.isShown)
            expectColors(shown, {{{10, 4}, kRed}}, 8);
    }
}

/// Bytes of the tables' heads turned over, and all behind them lost.
TEST(BitmapGlyphs, SurvivesDamage)
{
    struct Case
    {
        const char *font;
        const char *table;
    };
    for (const Case &one : {Case{"sbix.ttf", "sbix"}, {"cbdt.ttf", "CBLC"}, {"cbdt.ttf", "CBDT"}}) {
        SCOPED_TRACE(one.table);
        const QByteArray whole = readFile(madeFont(one.font));
        const auto [offset, length] = tableIn(whole, one.table);
        ASSERT_GT(length, 0);
        int shown = 0;
        for (qsizetype at = 0; at < std::min<qsizetype>(length, 240); at += 1 + at / 32) {
            QByteArray damaged = whole;
            damaged[offset + at] = char(~damaged[offset + at]);
            const auto glyphs = bitmapsOf(writeFont(damaged));
            for (quint32 glyph = 0; glyphs && glyph < 9; ++glyph)
                shown += pictureOf(*glyphs, glyph).isNull() ? 0 : 1;
            QByteArray cut = whole;
            cut.replace(offset + at, length - at, QByteArray(length - at, '\xff'));
            if (const auto rest = bitmapsOf(writeFont(cut)))
                shown += pictureOf(*rest, 1).isNull() ? 0 : 1;
        }
        EXPECT_GT(shown, 0);
    }
}

TEST(BitmapGlyphs, ScaledPicturesKeepTheirInk)
{
    QImage picture(7, 5, QImage::Format_ARGB32_Premultiplied);
    picture.fill(qRgba(100, 50, 0, 200));
    for (const QSizeF size : {QSizeF(7, 5), {3.5, 2.5}, {14, 10}, {2.25, 9.75}, {0.4, 0.4}}) {
        const QImage scaled = scaledPicture(picture, size);
        ASSERT_EQ(scaled.size(),
                  QSize(int(std::ceil(size.width())), int(std::ceil(size.height()))));
        double ink = 0;
        for (int y = 0; y < scaled.height(); ++y) {
            for (int x = 0; x < scaled.width(); ++x)
                ink += qAlpha(scaled.pixel(x, y)) / 200.0;
        }
        EXPECT_NEAR(ink, size.width() * size.height(), 0.02 * std::max(1.0, ink));
    }
    for (const QSizeF size : {QSizeF(0, 5), {-1, 5}, {5000, 5}, {std::nan(""), 5}})
        EXPECT_TRUE(scaledPicture(picture, size).isNull());
}

} // namespace
