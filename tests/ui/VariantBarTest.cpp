// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#include "ui/detail/VariantBar.h"

#include "support/QtPrinters.h"
#include "support/Waiting.h"
#include "ui/style/SegmentedControl.h"

#include <QAbstractButton>
#include <QMenu>
#include <QTest>

#include <gtest/gtest.h>

namespace lorva {
namespace {

/// Ten points a letter, six around all, thirty for the button.
SegmentRoom roomOf(int width)
{
    return {width, 30, 6, [](const QString &label) { return int(label.size()) * 10; }};
}

TEST(SegmentsThatFit, KeepTheSelectedOneInSight)
{
    const struct
    {
        int width;
        QString selected;
        QString visible;
        QString overflow;
    } rows[]{
        {106, "A", "A Bb Ccc Dddd", ""},   {105, "A", "A Bb Ccc", "Dddd"},
        {95, "A", "A Bb", "Ccc Dddd"},     {95, "Bb", "A Bb", "Ccc Dddd"},
        {105, "Dddd", "A Dddd", "Bb Ccc"}, {86, "Dddd", "A Dddd", "Bb Ccc"},
        {85, "Dddd", "Dddd", "A Bb Ccc"},  {66, "Ccc", "Ccc", "A Bb Dddd"},
        {0, "Ccc", "Ccc", "A Bb Dddd"},    {0, "gone", "A", "Bb Ccc Dddd"},
    };
    const QStringList labels{"A", "Bb", "Ccc", "Dddd"};
    for (const auto &row : rows) {
        SCOPED_TRACE(testing::Message() << row.width << ' ' << row.selected.toStdString());
        const SegmentPickerState state = segmentsThatFit(labels, row.selected, roomOf(row.width));
        EXPECT_EQ(state.visibleSegments.join(u' '), row.visible);
        EXPECT_EQ(state.overflowSegments.join(u' '), row.overflow);
        EXPECT_TRUE(state.visibleSegments.contains(state.selected));
    }
    EXPECT_TRUE(segmentsThatFit({}, "A", roomOf(100)).visibleSegments.isEmpty());
}

class VariantBarTest : public testing::Test
{
protected:
    VariantBarTest()
    {
        QObject::connect(&bar, &VariantBar::variantSelected, &bar,
                         [this](const QString &label) { told.append(label); });
        bar.resize(1400, VariantBar::kHeight);
        bar.apply(labels, "Regular");
        bar.show();
        bar.activateWindow();
        EXPECT_TRUE(test::waitUntil([this] { return bar.isActiveWindow(); }));
    }

    QAbstractButton *segment(const QString &label) const
    {
        for (QAbstractButton *button : segments().findChildren<QAbstractButton *>())
            if (button->accessibleName() == label)
                return button;
        return nullptr;
    }
    SegmentedControl &segments() const
    {
        return *bar.findChild<SegmentedControl *>("variantSegments");
    }
    QAbstractButton &more() const
    {
        return *bar.findChild<QAbstractButton *>("moreVariantsButton");
    }

    const QStringList labels{"Regular",  "Compressed", "Condensed",        "Semi Condensed",
                             "Extended", "Display",    "Display & Poster", "Caption"};
    QStringList told;
    VariantBar bar;
};

TEST_F(VariantBarTest, TellsWhatIsChosenAndShowsWhatIsGranted)
{
    EXPECT_FALSE(more().isVisible());
    EXPECT_EQ(segments().currentIndex(), 0);
    QTest::mouseClick(segment("Display & Poster"), Qt::LeftButton);
    QTest::mouseClick(segment("Regular"), Qt::LeftButton);
    EXPECT_EQ(std::exchange(told, {}), QStringList("Display & Poster")) << "Regular is shown";
    bar.apply(labels, "Condensed");
    EXPECT_EQ(segments().currentIndex(), 2);
    segments().focusCurrent();
    QTest::keyClick(bar.focusWidget(), Qt::Key_Right);
    EXPECT_EQ(told, QStringList("Semi Condensed"));
    bar.setLayoutDirection(Qt::RightToLeft);
    EXPECT_GT(segment("Regular")->x(), segment("Caption")->x());
    EXPECT_EQ(segments().geometry().right(), bar.width() - 1 - 48);
}

TEST_F(VariantBarTest, TheRestIsInAMenu)
{
    for (const int width : {800, 420, 300}) {
        SCOPED_TRACE(width);
        bar.resize(width, VariantBar::kHeight);
        ASSERT_TRUE(more().isVisible());
        EXPECT_LE(more().geometry().right(), width - 48);
        EXPECT_LT(segments().geometry().right(), more().x());
        EXPECT_EQ(bar.picker().visibleSegments + bar.picker().overflowSegments, labels);
        EXPECT_EQ(more().text(),
                  QStringLiteral("%1 More").arg(bar.picker().overflowSegments.size()));
    }
    QTest::mouseClick(&more(), Qt::LeftButton);
    auto *menu = bar.findChild<QMenu *>("moreVariantsMenu");
    ASSERT_NE(menu, nullptr);
    ASSERT_EQ(menu->actions().size(), bar.picker().overflowSegments.size());
    EXPECT_EQ(menu->actions()[menu->actions().size() - 2]->text(), "Display && Poster");
    QTest::keyClick(menu, Qt::Key_End);
    QTest::keyClick(menu, Qt::Key_Return);
    ASSERT_EQ(told, QStringList("Caption"));
    bar.apply(labels, "Caption");
    EXPECT_EQ(bar.picker().visibleSegments.back(), "Caption");
    EXPECT_EQ(segments().currentIndex(), int(bar.picker().visibleSegments.size()) - 1);
    bar.apply({"Regular", "Wide"}, "Wide");
    EXPECT_FALSE(more().isVisible());
    EXPECT_EQ(segment("Caption"), nullptr);
}

} // namespace
} // namespace lorva
