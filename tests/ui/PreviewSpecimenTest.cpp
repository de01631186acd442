// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#include "ui/preview/SpecimenImage.h"

#include "PreviewFonts.h"

#include <cmath>

namespace lorva {
namespace {

using test::fontWith;

// The built font's boxes are 500 units wide on an advance of 600, capitals 700 high: at 100 points,
// an "A" has ink of 50 by 70 points.
constexpr double kSize = 100;
constexpr double kCapHeight = 70;

FontPreviewConfiguration configurationOf(const QString &text)
{
    FontPreviewConfiguration configuration;
    configuration.text = text;
    configuration.pointSize = kSize;
    configuration.alignment = TextAlignment::center;
    configuration.singleLine = true;
    return configuration;
}

QImage solidLogo(int width, int height)
{
    QImage logo(width, height, QImage::Format_ARGB32);
    logo.fill(Qt::green);
    return logo;
}

/// The box around all pixels of one colour that are not see-through, in device pixels of the view.
QRect inkOf(const SpecimenImage &specimen, int columnsFrom = 0)
{
    QRect box;
    for (int y = 0; y < specimen.image.height(); ++y) {
        for (int x = 0; x < specimen.image.width(); ++x) {
            const int column = x + specimen.devicePosition.x();
            if (column >= columnsFrom && qAlpha(specimen.image.pixel(x, y)) > 127)
                box |= QRect(column, y + specimen.devicePosition.y(), 1, 1);
        }
    }
    return box;
}

struct Made
{
    Specimen specimen;
    SpecimenImage image;
};

Made make(const FontPreviewConfiguration &configuration, const Font &font, QSize size,
          double ratio = 1.0)
{
    const SpecimenCanvas canvas{size, ratio};
    Made made{layOutSpecimen(configuration, font, canvas), {}};
    made.image = paintSpecimen(made.specimen, configuration, canvas);
    return made;
}

TEST(PreviewSpecimen, lineIsCentredOnItsInkAtEveryRatio)
{
    for (const double ratio : {1.0, 1.5, 2.0}) {
        const Made made =
            make(configurationOf(QStringLiteral("AA")), fontWith(U"A", kSize), {400, 220}, ratio);
        const QRect ink = inkOf(made.image);
        EXPECT_NEAR(ink.width(), 110 * ratio, 1) << ratio;
        EXPECT_NEAR(ink.height(), kCapHeight * ratio, 1) << ratio;
        EXPECT_NEAR(QRectF(ink).center().x(), 200 * ratio, 1) << ratio;
        EXPECT_NEAR(QRectF(ink).center().y(), 110 * ratio, 1) << ratio;
        EXPECT_EQ(made.image.image.devicePixelRatio(), ratio);
    }
}

TEST(PreviewSpecimen, barsOfTheBaselineAreSharp)
{
    for (const double ratio : {1.0, 1.25, 1.5, 2.0}) {
        for (const int height : {100, 101, 103}) {
            const Made made = make(configurationOf(QStringLiteral("A")), fontWith(U"A", kSize),
                                   {200, height}, ratio);
            const QRect ink = inkOf(made.image);
            const QPoint middle = ink.center() - made.image.devicePosition;
            const int below = ink.bottom() + 1 - made.image.devicePosition.y();
            ASSERT_LT(below, made.image.image.height());
            EXPECT_EQ(qAlpha(made.image.image.pixel(middle.x(), below - 1)), 255) << ratio;
            EXPECT_EQ(qAlpha(made.image.image.pixel(middle.x(), below)), 0) << ratio;
        }
    }
}

TEST(PreviewSpecimen, alignmentKeepsTheMargins)
{
    const Font font = fontWith(U"A", kSize);
    FontPreviewConfiguration configuration = configurationOf(QStringLiteral("A"));
    configuration.alignment = TextAlignment::left;
    const QRectF left = make(configuration, font, {400, 220}).specimen.inkBounds;
    configuration.alignment = TextAlignment::right;
    const QRectF right = make(configuration, font, {400, 220}).specimen.inkBounds;
    EXPECT_GE(left.left(), kSpecimenMargin);
    EXPECT_LE(left.left(), kSpecimenMargin + 10);
    EXPECT_LE(right.right(), 400 - kSpecimenMargin);
    EXPECT_GE(right.right(), 400 - kSpecimenMargin - 10);
}

TEST(PreviewSpecimen, oneLineIsTruncatedAndManyWrap)
{
    const Font font = fontWith(U"A. ", kSize);
    FontPreviewConfiguration configuration = configurationOf(QStringLiteral("AA AA AA AA"));
    const Made single = make(configuration, font, {300, 500});
    EXPECT_EQ(single.specimen.layout.lines().size(), 1u);
    EXPECT_TRUE(single.specimen.layout.isTruncated());
    EXPECT_LE(single.specimen.inkBounds.right(), 300 - kSpecimenMargin);
    configuration.singleLine = false;
    const Made wrapped = make(configuration, font, {300, 500});
    EXPECT_EQ(wrapped.specimen.layout.lines().size(), 4u);
    EXPECT_FALSE(wrapped.specimen.layout.isTruncated());
    EXPECT_NEAR(wrapped.specimen.inkBounds.center().y(), 250, 1);
}

TEST(PreviewSpecimen, inkBeyondTheLineBoxIsShownWhereTheViewHasRoom)
{
    // Capitals of 900 units reach above any ascent of this font's own tables.
    test::FontBuilder builder;
    const Font font = test::fontOf(builder.codePoints(U"A").capHeight(1500), kSize);
    const QRect ink = inkOf(make(configurationOf(QStringLiteral("A")), font, {200, 220}).image);
    EXPECT_NEAR(ink.height(), 150, 1);
}

TEST(PreviewSpecimen, logoStandsBeforeTheTextCentredOnTheCapHeight)
{
    const Font font = fontWith(U"A", kSize);
    for (const double sizeRatio : {0.5, 1.0, 1.6}) {
        for (const double spacing : {0.0, 0.15, 0.4}) {
            FontPreviewConfiguration configuration = configurationOf(QStringLiteral("A"));
            configuration.logoImage = solidLogo(60, 30);
            configuration.logoSizeRatio = sizeRatio;
            configuration.logoSpacing = spacing;
            const Made made = make(configuration, font, {500, 220});
            const double height = kCapHeight * sizeRatio;
            const QRectF logo = made.specimen.logoRect;
            EXPECT_NEAR(logo.height(), height, 1e-6);
            EXPECT_NEAR(logo.width(), 2 * height, 1e-6);

            const LayoutLine &line = made.specimen.layout.lines().front();
            const double baseline = made.specimen.origin.y() + line.origin.y();
            EXPECT_NEAR(logo.center().y(), baseline - kCapHeight / 2, 1e-6);
            const double pen = made.specimen.origin.x() + line.origin.x()
                + line.runs.front().glyphs.front().position.x();
            EXPECT_NEAR(pen - logo.right(), spacing * kSize, 1e-6);

            const QRect painted = inkOf(made.image);
            EXPECT_NEAR(painted.left(), logo.left(), 1);
            EXPECT_NEAR(painted.height(), std::max(height, kCapHeight), 2);
        }
    }
}

TEST(PreviewSpecimen, logoOfARightToLeftLineStandsAtItsRight)
{
    FontPreviewConfiguration configuration = configurationOf(QStringLiteral("\u05d0\u05d1"));
    configuration.logoImage = solidLogo(30, 30);
    const Made made = make(configuration, fontWith(U"\u05d0\u05d1", kSize), {500, 220});
    const QRectF text = QRectF(made.specimen.layout.inkBounds()).translated(made.specimen.origin);
    EXPECT_GT(made.specimen.logoRect.left(), text.right());
}

TEST(PreviewSpecimen, logoTakesTheTextsColourWhereItHasInk)
{
    FontPreviewConfiguration configuration = configurationOf(QStringLiteral("A"));
    configuration.textColor = QColor(10, 20, 200);
    QImage logo = solidLogo(40, 40);
    for (int y = 0; y < 40; ++y) {
        for (int x = 20; x < 40; ++x)
            logo.setPixelColor(x, y, Qt::transparent);
    }
    configuration.logoImage = logo;
    const Made made = make(configuration, fontWith(U"A", kSize), {500, 220});
    const QPointF corner = made.specimen.logoRect.topLeft() - QPointF(made.image.devicePosition);
    EXPECT_EQ(made.image.image.pixelColor((corner + QPointF(10, 30)).toPoint()),
              configuration.textColor);
    EXPECT_EQ(made.image.image.pixelColor((corner + QPointF(55, 30)).toPoint()).alpha(), 0);
}

TEST(PreviewSpecimen, oddLogosAndViewsDoNoHarm)
{
    EXPECT_EQ(logoSize({5, 0}, 70, 1.0), QSizeF(350, 70));
    EXPECT_EQ(logoSize({5, 0.5}, 70, 2.0), QSizeF(700, 140));
    EXPECT_EQ(logoSize({5, 5}, 70, -1.0), QSizeF(0, 0));

    const Font font = fontWith(U"A", kSize);
    FontPreviewConfiguration configuration = configurationOf(QStringLiteral("A"));
    for (const QImage &logo : {QImage(), solidLogo(5000, 1), solidLogo(1, 5000)}) {
        configuration.logoImage = logo;
        configuration.logoSizeRatio = 3.0;
        for (const QSize size : {QSize(0, 0), QSize(1, 1), QSize(30, 10), QSize(400, 200)}) {
            const Made made = make(configuration, font, size, 1.5);
            EXPECT_LE(made.image.image.width(), std::ceil(size.width() * 1.5));
            EXPECT_LE(made.image.image.height(), std::ceil(size.height() * 1.5));
        }
    }
    EXPECT_TRUE(make(configuration, Font(), {100, 100}).image.image.isNull());
}

} // namespace
} // namespace lorva
