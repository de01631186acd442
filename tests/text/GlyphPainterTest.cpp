// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#include "text/GlyphPainter.h"

#include "text/ColorSupport.h"

#include <QBuffer>
#include <QPdfWriter>

#include <thread>

using namespace lorva;
using namespace lorva::test;

namespace {

QImage canvas(double ratio, QSize points = QSize(200, 100))
{
    QImage image(points * ratio, QImage::Format_RGB32);
    image.setDevicePixelRatio(ratio);
    image.fill(Qt::white);
    return image;
}

/// Where at least half of a pixel is inked, in pixels.
QRect inkedPixels(const QImage &image)
{
    QRect box;
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) {
            if (qGray(image.pixel(x, y)) < 128)
                box |= QRect(x, y, 1, 1);
        }
    }
    return box;
}

/// All ink in units of one pixel's area.
double inkArea(const QImage &image)
{
    double ink = 0;
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x)
            ink += (255 - qGray(image.pixel(x, y))) / 255.0;
    }
    return ink;
}

class DeviceRatio : public ::testing::TestWithParam<double>
{
};

TEST_P(DeviceRatio, FillsTheBoxThatTheGlyphDescribes)
{
    const double ratio = GetParam();
    const Font font = boxFont({}, 60);
    const TextLayout layout(QStringLiteral("A"), font);
    QImage image = canvas(ratio);
    GlyphPainter::paint(image, layout, QPointF(20, 10), Qt::black);

    const QRectF ink = layout.inkBounds();
    EXPECT_NEAR(ink.width(), 30, 0.01);
    EXPECT_NEAR(ink.height(), 42, 0.01);
    EXPECT_NEAR(ink.bottom(), layout.lines()[0].origin.y(), 0.01);
    const QRect pixels = inkedPixels(image);
    EXPECT_NEAR(pixels.left(), (20 + ink.left()) * ratio, 1);
    EXPECT_NEAR(pixels.top(), (10 + ink.top()) * ratio, 1);
    EXPECT_NEAR(pixels.width(), 30 * ratio, 1);
    EXPECT_NEAR(pixels.height(), 42 * ratio, 1);
    EXPECT_NEAR(inkArea(image), 30 * 42 * ratio * ratio, 0.02 * 30 * 42 * ratio * ratio);
}

INSTANTIATE_TEST_SUITE_P(Ratios, DeviceRatio, ::testing::Values(1.0, 1.5, 2.0, 3.0));

TEST(GlyphPainter, FeetOfLettersAreSharpWhereverTheBaselineFalls)
{
    const TextLayout layout(QStringLiteral("A"), boxFont({}, 60));
    for (const double ratio : {1.0, 1.5, 2.0}) {
        for (double top = 10; top < 11; top += 0.3) {
            QImage image = canvas(ratio);
            GlyphPainter::paint(image, layout, QPointF(20, top), Qt::black);
            const QRect ink = inkedPixels(image);
            EXPECT_EQ(qGray(image.pixel(ink.center().x(), ink.bottom())), 0) << ratio << ' ' << top;
            EXPECT_EQ(qGray(image.pixel(ink.center().x(), ink.bottom() + 1)), 255)
                << ratio << ' ' << top;
        }
    }
}

TEST(GlyphPainter, OverlappingOutlinesShowNoHoles)
{
    const Font font = boxFont({}, 60);
    TextLayoutOptions options;
    options.letterSpacing = -21;
    QImage image = canvas(1);
    GlyphPainter::paint(image, TextLayout(QStringLiteral("AA"), font, options), QPointF(),
                        Qt::black);
    // Two boxes of 30 by 42 that share half of their width.
    EXPECT_NEAR(inkArea(image), 45 * 42, 0.02 * 45 * 42);
}

TEST(GlyphPainter, UsesTheColorAndItsOpacity)
{
    QImage image(100, 100, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    const TextLayout layout(QStringLiteral("A"), boxFont({}, 60));
    GlyphPainter::paint(image, layout, QPointF(), QColor(255, 0, 0, 128));
    const QColor inside = image.pixelColor(layout.inkBounds().center().toPoint());
    EXPECT_NEAR(inside.alpha(), 128, 1);
    EXPECT_NEAR(inside.red(), 255, 2);
    EXPECT_EQ(image.pixelColor(99, 99).alpha(), 0);
}

TEST(GlyphPainter, PaintsNothingWhereThereIsNothing)
{
    QImage null;
    GlyphPainter::paint(null, TextLayout(QStringLiteral("A"), boxFont()), QPointF(), Qt::black);
    QImage image = canvas(1);
    GlyphPainter::paint(image, TextLayout(QStringLiteral("A"), boxFont()), QPointF(1e9, 0),
                        Qt::black);
    GlyphPainter::paint(image, TextLayout(QStringLiteral("A"), Font()), QPointF(), Qt::black);
    GlyphPainter::paint(image, TextLayout(QStringLiteral("  "), boxFont()), QPointF(), Qt::black);
    EXPECT_EQ(inkArea(image), 0);
}

TEST(GlyphPainter, ThePathIsWhatIsPainted)
{
    const Font font = realFontAt("opentype/fonts-hosny-amiri/Amiri-Regular.ttf", 30);
    const TextLayout layout(QStringLiteral("abc\nسلام"), font);
    const QPainterPath path = GlyphPainter::path(layout);
    EXPECT_EQ(path.fillRule(), Qt::WindingFill);
    EXPECT_EQ(path.boundingRect(), layout.inkBounds());
}

/// "A" of a face that maps it to nothing and whose own missing glyph is empty, on an em of advance.
TextLayout missingGlyph(double letterSpacing = 0)
{
    TextLayoutOptions options;
    options.letterSpacing = letterSpacing;
    return TextLayout(QStringLiteral("?"), colorFont("colr0.ttf"), options);
}

TEST(GlyphPainter, MissingGlyphsShowAsAHollowBox)
{
    const TextLayout layout = missingGlyph();
    // Between side bearings, as high as capitals.
    EXPECT_EQ(layout.inkBounds(), QRectF(10, 10, 80, 70));
    EXPECT_EQ(missingGlyph(50).inkBounds(), layout.inkBounds());
    EXPECT_EQ(GlyphPainter::path(layout).boundingRect(), layout.inkBounds());
    const QImage image = drawnCharacter(colorFont("colr0.ttf"), U'?', 2);
    EXPECT_EQ(colorAt(image, 120, 350), 0u);
    EXPECT_EQ(colorAt(image, 500, 20), 0u);
    EXPECT_EQ(colorAt(image, 500, 350), 0xFFFFFFu);
    EXPECT_EQ(colorAt(image, 50, 350), 0xFFFFFFu);
}

TEST(GlyphPainter, TheBoxStandsOnlyWhereAGlyphIsMissing)
{
    const auto faceWithAdvance = [](int units, const QByteArray &name) {
        // Metrics of one glyph that all others share.
        const QByteArray metrics = QByteArray::fromHex(units ? "02580000" : "00000000");
        QByteArray all;
        for (int i = 0; i < 2; ++i)
            all += metrics;
        return openFace(writeFont(FontBuilder("Bare")
                                      .codePoints(U"A")
                                      .table("hmtx", all)
                                      .table("glyf", {})
                                      .table("loca", QByteArray(12, '\0'))
                                      .build(),
                                  name));
    };
    const QString missing = QStringLiteral("?");
    EXPECT_TRUE(
        TextLayout(missing, Font(faceWithAdvance(0, "bare0.ttf"), 20)).inkBounds().isNull());
    const Font wide(faceWithAdvance(600, "bare600.ttf"), 20);
    EXPECT_FALSE(TextLayout(missing, wide).inkBounds().isNull());
    EXPECT_TRUE(TextLayout(QStringLiteral("A"), wide).inkBounds().isNull());
}

TEST(GlyphPainter, ColorGlyphsStandInTheVisualOrderOfTheLine)
{
    // Each em holds a box of 80 points; drawn half an em apart, the later covers the earlier.
    TextLayoutOptions options;
    options.letterSpacing = -50;
    const auto drawn = [&](const QString &text) {
        QImage image = canvas(1, QSize(300, 100));
        GlyphPainter::paint(image, TextLayout(text, colorFont("colr0.ttf"), options), QPointF(0, 0),
                            QColor(0, 128, 0));
        return image;
    };
    // A is red with a blue left half, B is of the text's colour, the mark is an outline.
    const QImage colors = drawn(QStringLiteral("AB"));
    EXPECT_EQ(colors.pixel(30, 40), qRgb(0, 0, 255));
    EXPECT_EQ(colors.pixel(80, 40), qRgb(0, 128, 0));
    EXPECT_EQ(drawn(QStringLiteral("BA")).pixel(80, 40), qRgb(0, 0, 255));
    EXPECT_EQ(drawn(QStringLiteral("?A")).pixel(87, 40), qRgb(0, 0, 255));
    EXPECT_EQ(drawn(QStringLiteral("A?")).pixel(62, 40), qRgb(0, 128, 0));
}

TEST(GlyphPainter, ColorGlyphsCountAsInkAndKeepTheirOutlines)
{
    const TextLayout layout(QStringLiteral("A"), colorFont("colr0.ttf"));
    EXPECT_EQ(layout.inkBounds(), QRectF(10, 0, 80, 80));
    EXPECT_EQ(GlyphPainter::path(layout).boundingRect(), QRectF(40, 30, 20, 20));
}

TEST(GlyphPainter, PaintsOnAnyPainterWhereItStandsAndLeavesItAsItWas)
{
    QImage image = canvas(1, QSize(300, 300));
    QPainter painter(&image);
    painter.translate(20, 10);
    painter.scale(2, 2);
    const QTransform before = painter.transform();
    GlyphPainter::paint(painter, TextLayout(QStringLiteral("A"), colorFont("colr0.ttf")),
                        QPointF(5, 5), Qt::black);
    EXPECT_EQ(painter.transform(), before);
    EXPECT_FALSE(painter.testRenderHint(QPainter::Antialiasing));
    EXPECT_EQ(image.pixel(20 + 2 * (5 + 30), 10 + 2 * (5 + 40)), qRgb(0, 0, 255));
    EXPECT_EQ(image.pixel(20 + 2 * (5 + 70), 10 + 2 * (5 + 40)), qRgb(255, 0, 0));
    EXPECT_EQ(image.pixel(20 + 2 * (5 + 95), 10 + 2 * (5 + 40)), qRgb(255, 255, 255));
    GlyphPainter::paint(painter, TextLayout(QStringLiteral("A"), Font()), QPointF(), Qt::black);
}

QByteArray pdfOf(char32_t character)
{
    QBuffer buffer;
    buffer.open(QIODevice::WriteOnly);
    {
        QPdfWriter writer(&buffer);
        QPainter painter(&writer);
        GlyphPainter::paint(painter,
                            TextLayout(QString::fromUcs4(&character, 1), colorFont("colr1.ttf")),
                            QPointF(100, 100), Qt::black);
    }
    return buffer.data();
}

TEST(GlyphPainter, VectorDevicesGetVectorsWhereTheyCanShowThem)
{
    // Plain and layered colours, pad gradients, the text's colour, turned and moved ones.
    for (const char32_t character : U"ABCDGHMNSTUVWdfiqrx") {
        const bool isVector = character == 0 || !pdfOf(character).contains("/Subtype /Image");
        // Alpha that changes along a gradient is interpolated another way there.
        EXPECT_EQ(isVector, character != U'f') << char(character);
    }
    for (const char32_t character : U"EFIJKXYbelmtsu")
        EXPECT_TRUE(character == 0 || pdfOf(character).contains("/Subtype /Image"))
            << char(character);
}

QImage specimen(const std::vector<std::shared_ptr<const FontFace>> &faces)
{
    QImage image = canvas(1, QSize(600, 100 * int(faces.size())));
    double top = 0;
    for (const auto &face : faces) {
        TextLayoutOptions options;
        options.width = 580;
        const Font font(face, 24, {{fontTag('w', 'g', 'h', 't'), 650}});
        const TextLayout layout(QStringLiteral("Hamburg سلام 123 हिन्दी AVATAR שלום wraps here"),
                                font, options);
        GlyphPainter::paint(image, layout, QPointF(10, top), Qt::black);
        top += 100;
    }
    return image;
}

TEST(GlyphPainter, ThreadsThatShareFacesPaintTheSame)
{
    const QByteArray paths[]{"opentype/fonts-hosny-amiri/Amiri-Regular.ttf",
                             "truetype/inter-vf/Inter-roman.var.ttf",
                             "opentype/ebgaramond/EBGaramond12-Regular.otf",
                             "truetype/lohit-devanagari/Lohit-Devanagari.ttf"};
    std::vector<std::shared_ptr<const FontFace>> shared;
    std::vector<std::shared_ptr<const FontFace>> alone;
    for (const QByteArray &path : paths) {
        shared.push_back(openFace(realFont(path)));
        alone.push_back(openFace(realFont(path)));
    }
    // The threads come first, so that they race for the first use of every table.
    std::vector<QImage> images(4);
    std::vector<std::thread> threads;
    for (QImage &image : images)
        threads.emplace_back([&] { image = specimen(shared); });
    for (std::thread &thread : threads)
        thread.join();
    const QImage expected = specimen(alone);
    EXPECT_GT(inkArea(expected), 1000);
    for (const QImage &image : images)
        EXPECT_EQ(image, expected);
}

} // namespace
