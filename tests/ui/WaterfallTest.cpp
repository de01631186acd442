// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#include "ui/detail/WaterfallView.h"

#include "PreviewFonts.h"

#include <QSignalSpy>

namespace lorva {
namespace {

using test::fontWith;

DetailSpecimen specimenOf(const QString &text, const Font &font)
{
    return {QStringLiteral("Fixture"), QStringLiteral("Regular"), text, font};
}

QImage pictureOf(QWidget &view, const QRect &part)
{
    QImage image(view.size(), QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::white);
    view.render(&image, part.topLeft(), part, QWidget::DrawChildren);
    return image;
}

/// Black boxes stand for letters.
QRect inkIn(const QImage &image, const QRect &part)
{
    QRect box;
    for (int y = part.top(); y <= part.bottom(); ++y) {
        for (int x = part.left(); x <= part.right(); ++x) {
            if (qGray(image.pixel(x, y)) < 60)
                box |= QRect(x, y, 1, 1);
        }
    }
    return box;
}

TEST(WaterfallTest, showsTheFirstParagraphThatSaysSomething)
{
    const std::pair<QString, QString> rows[]{
        {"One\nTwo", "One"}, {"\n \r\n  Two \nThree", "Two"}, {"", ""}, {" \n\t\u2029", ""},
        {"A\u2028B", "A"},
    };
    for (const auto &[text, line] : rows)
        EXPECT_EQ(waterfallText(text), line);
}

TEST(WaterfallTest, linesFallInSizeOnBaselinesBesideTheirSizes)
{
    WaterfallView view;
    QSignalSpy heights(&view, &DetailSection::heightChanged);
    EXPECT_EQ(view.heightFor(600), 0) << "no font yet";
    view.apply(specimenOf(QStringLiteral("A"), fontWith(U"A")));
    EXPECT_EQ(heights.size(), 1);
    view.resize(600, view.heightFor(600));
    const std::vector<WaterfallRow> rows = waterfallRows(fontWith(U"A"));
    const QImage image = pictureOf(view, view.rect());
    for (const WaterfallRow &row : rows) {
        SCOPED_TRACE(row.size);
        const QRect ink =
            inkIn(image,
                  QRect(kWaterfallCaptionWidth, row.top, 600 - kWaterfallCaptionWidth, row.height));
        EXPECT_EQ(ink.bottom() + 1, row.baseline);
        EXPECT_NEAR(ink.height(), 0.7 * row.size, 1) << "capitals of 700 units";
        EXPECT_NEAR(ink.width(), 0.5 * row.size, 1);
    }
    EXPECT_TRUE(std::ranges::is_sorted(rows, std::greater(), &WaterfallRow::size));
    DetailSpecimen spaced = specimenOf(QStringLiteral("AA"), fontWith(U"A"));
    spaced.letterSpacing = 0.1;
    const SpecimenPage::Text line =
        waterfallLine(spaced, rows.front(), waterfallRoom(600, false), WaterfallLineEnd::cut);
    EXPECT_NEAR(line.layout.inkBounds().width(), (0.6 + 0.1 + 0.5) * 128, 0.5);
}

TEST(WaterfallTest, longLinesFadeAtTheEdgeAndEndWithAWordInFiles)
{
    const QString hebrew(QChar(0x05d0));
    for (const bool isRightToLeft : {false, true}) {
        const QString word = isRightToLeft ? hebrew.repeated(4) : QStringLiteral("AAAA");
        WaterfallView view;
        const QString words = word + QLatin1Char(' ');
        view.apply(specimenOf(words.repeated(30), fontWith(U"A \u05d0")));
        view.resize(600, view.heightFor(600));
        const std::vector<WaterfallRow> rows = waterfallRows(fontWith(U"A"));
        const QImage image = pictureOf(view, view.rect());
        for (const WaterfallRow &row : {rows[3], rows[10]}) {
            // In the middle of each box that stands for a letter.
            const int y = row.baseline - row.size / 3;
            const auto darkest = [&](int from, int to) {
                int dark = 255;
                for (int x = from; x < to; ++x)
                    dark = std::min(dark, qGray(image.pixel(x, y)));
                return dark;
            };
            const int near = isRightToLeft ? 580 : kWaterfallCaptionWidth + 2;
            const int far = isRightToLeft ? kWaterfallCaptionWidth : 595;
            EXPECT_LT(darkest(near, near + 20), 20) << row.size;
            EXPECT_GT(darkest(far, far + 5), 200) << row.size;
        }
        const SpecimenPage page = view.page();
        EXPECT_EQ(page.texts.size(), kWaterfallSizes.size());
        for (const SpecimenPage::Text &text : page.texts) {
            const QRectF ink = text.layout.inkBounds().translated(text.origin);
            EXPECT_GE(ink.left(), kWaterfallCaptionWidth - 0.5);
            EXPECT_LE(ink.right(), 600.5);
            EXPECT_EQ(text.layout.lines().size(), 1u);
            EXPECT_TRUE(!isRightToLeft || ink.right() > 520);
        }
    }
}

TEST(WaterfallTest, onlyWhatIsInSightIsSetAndPainted)
{
    WaterfallView view;
    view.apply(specimenOf(QStringLiteral("A"), fontWith(U"A")));
    view.resize(600, view.heightFor(600));
    const std::vector<WaterfallRow> rows = waterfallRows(fontWith(U"A"));
    view.setVisibleBand(0, 300);
    pictureOf(view, QRect(0, 0, 600, 300));
    EXPECT_GE(view.paintedLines(), 2);
    EXPECT_LE(view.paintedLines(), 4);
    const int end = view.height();
    view.setVisibleBand(end - 200, end);
    pictureOf(view, QRect(0, end - 200, 600, 200));
    EXPECT_LE(view.paintedLines(), 13) << "what scrolled out of reach is let go";
    EXPECT_GE(view.paintedLines(), 6);
    DetailSpecimen blue = specimenOf(QStringLiteral("A"), fontWith(U"A"));
    blue.foreground = Qt::blue;
    view.apply(blue);
    EXPECT_EQ(view.paintedLines(), 0);
    const QImage image = pictureOf(view, view.rect());
    EXPECT_EQ(image.pixelColor(kWaterfallCaptionWidth + 20, rows[0].baseline - 20),
              QColor(Qt::blue));
}

TEST(WaterfallTest, fontsWithoutMeasuresHaveLinesAllTheSame)
{
    test::FontBuilder bare;
    const Font font = test::fontOf(bare.codePoints(U"A").withoutOs2().withoutTable("hhea"));
    for (const WaterfallRow &row : waterfallRows(font)) {
        EXPECT_GE(row.height, row.size);
        EXPECT_LE(row.height, 20 * row.size);
    }
    EXPECT_TRUE(waterfallPage(specimenOf({}, {}), 500, false).size.isEmpty());
    EXPECT_FALSE(waterfallPage(specimenOf({}, font), 500, true).size.isEmpty());
}

} // namespace
} // namespace lorva
