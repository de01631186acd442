// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#include "ui/style/ControlColors.h"
#include "ui/style/Hairline.h"
#include "ui/style/Palette.h"
#include "ui/style/PointSlider.h"
#include "ui/style/SegmentedControl.h"
#include "ui/style/SymbolImage.h"

#include <QAbstractButton>
#include <QAccessible>
#include <QSignalSpy>
#include <QTest>

#include <gmock/gmock.h>

namespace lorva {
namespace {

TEST(PreviewStyle, hairlinesAreOneDevicePixelEverywhere)
{
    for (const double ratio : {1.0, 1.25, 1.5, 2.0, 3.0}) {
        for (const int offset : {0, 1, 7, 11}) {
            QImage image(200, 200, QImage::Format_RGB32);
            image.fill(Qt::white);
            image.setDevicePixelRatio(ratio);
            QPainter painter(&image);
            painter.translate(offset, offset);
            const QRectF card(0, 0, 30, 30);
            drawHairline(painter, card, Qt::TopEdge, Qt::black);
            drawHairline(painter, card, Qt::RightEdge, Qt::black);
            painter.end();

            const int middle = qRound((offset + 15) * ratio);
            QList<int> rows;
            QList<int> columns;
            for (int i = 0; i < 200; ++i) {
                if (image.pixelColor(middle, i) != Qt::white)
                    rows.append(i);
                if (image.pixelColor(i, middle) != Qt::white)
                    columns.append(i);
            }
            EXPECT_THAT(rows, ::testing::ElementsAre(qRound(offset * ratio))) << ratio;
            EXPECT_THAT(columns, ::testing::ElementsAre(qRound((offset + 30) * ratio) - 1))
                << ratio;
            EXPECT_EQ(image.pixelColor(middle, rows.value(0)), QColor(Qt::black));
        }
    }
}

TEST(PreviewStyle, controlsCanBeSeenOnAnyColours)
{
    for (int hue = 0; hue < 360; hue += 30) {
        for (int lightness = 0; lightness <= 255; lightness += 51) {
            const QColor ground = QColor::fromHsl(hue, 255, lightness);
            for (const QColor &ink :
                 {ground, ground.lighter(120), QColor(Qt::white), QColor(Qt::blue)}) {
                const ControlColors colors = ControlColors::from(ink, ground);
                EXPECT_GE(contrastRatio(colors.ink, ground), 4.5) << ground.name().toStdString();
                EXPECT_GE(contrastRatio(colors.inkOnRaised, colors.raised), 4.5)
                    << ground.name().toStdString();
            }
        }
    }
    // Colours that can be told apart stay the user's own.
    EXPECT_EQ(controlColor(Qt::white, QColor(0x13, 0x28, 0xe9)), QColor(Qt::white));
    EXPECT_EQ(controlColor(QColor(0xc0, 0x30, 0x00), Qt::white), QColor(0xc0, 0x30, 0x00));
    EXPECT_EQ(controlColor(QColor(0xf0, 0x40, 0x00), Qt::white), QColor(Qt::black));
    EXPECT_EQ(controlColor(Qt::white, Qt::white), QColor(Qt::black));
}

TEST(PreviewStyle, hairlineColourFollowsTheGround)
{
    const auto alphaOf = [](const QColor &color) { return qRound(color.alphaF() * 1000); };
    EXPECT_EQ(alphaOf(hairlineColor(Qt::black, Qt::white)), 85);
    EXPECT_EQ(alphaOf(hairlineColor(Qt::white, Qt::black)), 130);
    const QColor onBlue = hairlineColor(Qt::white, QColor(0x13, 0x28, 0xe9));
    EXPECT_EQ(alphaOf(onBlue), 200);
    EXPECT_EQ(onBlue.rgb(), QColor(Qt::white).rgb());
    EXPECT_EQ(hairlineColor(Qt::blue, Qt::blue).rgb(), QColor(Qt::white).rgb());
    // Over an image the colour that was chosen for it knows best.
    for (const QColor &ink : {QColor(Qt::white), QColor(Qt::black), QColor(0xff, 0xe0, 0x40)})
        EXPECT_EQ(hairlineColor(ink, Qt::transparent), withAlpha(ink, 0.2));
}

TEST(PreviewStyle, symbolsAreTintedAndSharp)
{
    for (const char *name :
         {"square.grid.2x2", "list.bullet", "magnifyingglass", "textformat.alt"}) {
        const QImage image = symbolImage(QString::fromLatin1(name), 16, Qt::red, 1.5);
        ASSERT_EQ(image.size(), QSize(24, 24)) << name;
        int inked = 0;
        for (int y = 0; y < 24; ++y) {
            for (int x = 0; x < 24; ++x) {
                const QColor color = image.pixelColor(x, y);
                if (color.alpha() > 200) {
                    ++inked;
                    EXPECT_EQ(color.rgb(), QColor(Qt::red).rgb());
                }
            }
        }
        EXPECT_GT(inked, 20) << name;
    }
    EXPECT_TRUE(symbolImage(QStringLiteral("no.such.symbol"), 16, Qt::red, 1.0).isNull());
}

class SegmentedControlTest : public ::testing::Test
{
protected:
    SegmentedControlTest()
    {
        control.addSegment(QStringLiteral("square.grid.2x2"), QStringLiteral("Grid"));
        control.addSegment(QStringLiteral("list.bullet"), QStringLiteral("List"));
        control.setCurrentIndex(0);
        control.resize(control.sizeHint());
        control.show();
    }
    SegmentedControl control;
};

TEST_F(SegmentedControlTest, clickAndArrowKeysChoose)
{
    QSignalSpy chosen(&control, &SegmentedControl::activated);
    const QList<QAbstractButton *> segments = control.findChildren<QAbstractButton *>();
    QTest::mouseClick(segments[1], Qt::LeftButton);
    EXPECT_EQ(control.currentIndex(), 1);
    QTest::keyClick(segments[1], Qt::Key_Left);
    EXPECT_EQ(control.currentIndex(), 0);
    QTest::keyClick(segments[0], Qt::Key_Right);
    EXPECT_EQ(control.currentIndex(), 1);
    QTest::keyClick(segments[1], Qt::Key_Right);
    EXPECT_EQ(control.currentIndex(), 1) << "the row ends here";
    EXPECT_EQ(chosen.size(), 3);

    control.setCurrentIndex(0);
    control.setCurrentIndex(7);
    EXPECT_EQ(control.currentIndex(), 0);
    EXPECT_EQ(chosen.size(), 3) << "only the user activates";
}

TEST(SegmentedControl, LongWordsGiveWayToShortOnes)
{
    SegmentedControl control;
    control.addTextSegment(QStringLiteral("Text"));
    control.addTextSegment(QStringLiteral("Zeichnungsgrund"));
    const int shortWidth = SegmentedControl::textSegmentWidth(QStringLiteral("Text"));
    control.resize(shortWidth + 100, control.sizeHint().height());
    control.grab();
    const auto segments = control.findChildren<QAbstractButton *>();
    ASSERT_EQ(segments.size(), 2);
    EXPECT_GE(segments[0]->width(), shortWidth);
    EXPECT_GE(segments[1]->width(), 96);
    EXPECT_EQ(segments[1]->geometry().right(), control.width() - 1);
}

TEST_F(SegmentedControlTest, segmentsAreNamedRadioButtons)
{
    const QList<QAbstractButton *> segments = control.findChildren<QAbstractButton *>();
    QAccessibleInterface *first = QAccessible::queryAccessibleInterface(segments[0]);
    ASSERT_NE(first, nullptr);
    EXPECT_EQ(first->role(), QAccessible::RadioButton);
    EXPECT_EQ(first->text(QAccessible::Name), QStringLiteral("Grid"));
    EXPECT_TRUE(first->state().checked);
}

TEST(PointSliderTest, dragsKeysAndDirectionsMoveTheKnob)
{
    PointSlider slider;
    slider.setRange(12, 200);
    slider.resize(slider.sizeHint());
    slider.show();
    const int y = slider.height() / 2;
    QTest::mousePress(&slider, Qt::LeftButton, {}, QPoint(0, y));
    EXPECT_EQ(slider.value(), 12);
    QTest::mouseMove(&slider, QPoint(slider.width() / 2, y));
    EXPECT_NEAR(slider.value(), 106, 1);
    QTest::mouseRelease(&slider, Qt::LeftButton, {}, QPoint(slider.width(), y));
    QTest::mouseClick(&slider, Qt::LeftButton, {}, QPoint(slider.width() - 1, y));
    EXPECT_EQ(slider.value(), 200);
    QTest::keyClick(&slider, Qt::Key_Left);
    EXPECT_EQ(slider.value(), 199);
    QTest::keyClick(&slider, Qt::Key_Home);
    EXPECT_EQ(slider.value(), 12);
    EXPECT_LT(slider.knobRect().left(), 5);
    slider.setLayoutDirection(Qt::RightToLeft);
    EXPECT_GT(slider.knobRect().right(), slider.width() - 5);
    QTest::mouseClick(&slider, Qt::LeftButton, {}, QPoint(0, y));
    EXPECT_EQ(slider.value(), 200);
    slider.setRange(5, 5);
    EXPECT_LT(slider.knobRect().width(), 15) << "an empty range still draws";
}

} // namespace
} // namespace lorva
