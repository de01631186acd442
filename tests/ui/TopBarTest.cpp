// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#include "BrowserHarness.h"
#include "support/Waiting.h"
#include "ui/browser/BrowserTopBar.h"
#include "ui/browser/TopBarLayout.h"
#include "ui/style/ColorChip.h"
#include "ui/style/IconButton.h"
#include "ui/style/LineField.h"
#include "ui/style/PointSlider.h"
#include "ui/style/Popover.h"
#include "ui/style/ReducedMotion.h"

#include <QShortcut>
#include <QTest>

#include <gtest/gtest.h>

namespace lorva {
namespace {

std::vector<QRect> partsInOrder(const TopBarLayout &layout)
{
    std::vector<QRect> parts{layout.title};
    for (const auto &optional : {layout.size, layout.weight, layout.more}) {
        if (optional)
            parts.push_back(*optional);
    }
    for (const QRect &part :
         {layout.chips, layout.logo, layout.sampleText, layout.mode, layout.search})
        parts.push_back(part);
    return parts;
}

TEST(TopBarLayoutTest, nothingOverlapsOrIsClippedAtAnyWidth)
{
    for (int width = 728; width <= 3608; ++width) {
        SCOPED_TRACE(width);
        const TopBarLayout layout = layOutTopBar(width, TopBarParts(), Qt::LeftToRight);
        const std::vector<QRect> parts = partsInOrder(layout);
        int edge = 24;
        for (const QRect &part : parts) {
            ASSERT_GE(part.left(), edge);
            ASSERT_TRUE(part.top() >= 0 && part.bottom() < BrowserTopBar::kHeight);
            edge = part.right() + 1;
        }
        ASSERT_EQ(edge, width - 24);
        ASSERT_GE(layout.title.width(), 90) << "room for a short title";
        ASSERT_EQ(layout.search.width(), 220);
        ASSERT_EQ(layout.weight.has_value(), width >= 1008);
        ASSERT_EQ(layout.size.has_value(), width >= 868);
        ASSERT_EQ(layout.more.has_value(), width < 1008);
        const TopBarLayout mirrored = layOutTopBar(width, TopBarParts(), Qt::RightToLeft);
        const std::vector<QRect> mirroredParts = partsInOrder(mirrored);
        for (size_t i = 0; i < parts.size(); ++i) {
            ASSERT_EQ(mirroredParts[i].left(), width - 1 - parts[i].right());
            ASSERT_EQ(mirroredParts[i].size(), parts[i].size());
        }
    }
}

TEST(TopBarLayoutTest, absurdWidthsStayInOrder)
{
    for (const int width : {0, 1, 100, 480, 600, 700}) {
        const TopBarLayout layout = layOutTopBar(width, TopBarParts(), Qt::LeftToRight);
        EXPECT_GE(layout.title.width(), 0) << width;
        EXPECT_GE(layout.search.width(), 96) << width;
        EXPECT_LT(layout.chips.left(), layout.search.left()) << width;
    }
}

/// Writes down what the bar tells.
class Recorder final : public test::SilentBrowserDelegate
{
public:
    QStringList told;

    void browserViewModeChanged(ViewMode mode) override { tell("view", int(mode)); }
    void browserSearchTextChanged(const QString &text) override
    {
        told.append(QLatin1String("search ") + text);
    }
    void displayPointSizeChanged(double pointSize) override { tell("size", int(pointSize)); }
    void displayFontWeightChanged(int weight) override { tell("weight", weight); }
    void displayColorModeChanged(ColorMode mode) override { tell("mode", int(mode)); }
    void displayCustomBackgroundChanged(const QString &hex) override
    {
        told.append(QLatin1String("ground ") + hex);
    }
    void displayHoldChanged(bool isHeld) override { tell("hold", isHeld); }

    QStringList take() { return std::exchange(told, {}); }

private:
    void tell(const char *what, int value)
    {
        told.append(QString(QLatin1String(what) + u' ' + QString::number(value)));
    }
};

class TopBarTest : public ::testing::Test
{
protected:
    TopBarTest()
    {
        setReducedMotionOverride(true);
        window.resize(1488, 600);
        bar.setDelegate(&recorder);
        bar.onSearchLeft = [this] { recorder.told.append(QStringLiteral("left")); };
        bar.setGeometry(0, 0, 1488, BrowserTopBar::kHeight);
        bar.apply(state);
        window.show();
        window.activateWindow();
        EXPECT_TRUE(test::waitUntil([this] { return window.isActiveWindow(); }));
    }
    ~TopBarTest() override { setReducedMotionOverride(std::nullopt); }

    template <typename Part>
    Part *find(const char *name)
    {
        return window.findChild<Part *>(QLatin1String(name));
    }
    LineField &search() { return *find<LineField>("searchField"); }
    void show(ColorMode mode)
    {
        state.display.values.colorMode = mode;
        bar.apply(state);
    }
    Popover *openPopover()
    {
        for (Popover *popover : window.findChildren<Popover *>()) {
            if (popover->isVisible())
                return popover;
        }
        return nullptr;
    }
    bool waitForPopover(const QString &name)
    {
        return test::waitUntil(
            [&] { return openPopover() && openPopover()->accessibleName() == name; });
    }
    bool waitForNoPopover()
    {
        return test::waitUntil([&] { return openPopover() == nullptr; });
    }
    void compose(const QString &preedit, const QString &commit = {})
    {
        QInputMethodEvent event(preedit, {});
        event.setCommitString(commit);
        QCoreApplication::sendEvent(&search(), &event);
    }

    Recorder recorder;
    FontBrowserState state;
    QWidget window;
    BrowserTopBar bar{&window};
};

using Told = QStringList;

TEST_F(TopBarTest, whatTheStateBringsIsNotToldBack)
{
    state.pointSize = 80;
    state.fontWeight = 700;
    state.searchQuery = QStringLiteral("sans");
    state.viewMode = ViewMode::list;
    for (const ColorMode mode : kAllColorModes)
        show(mode);
    EXPECT_EQ(find<PointSlider>("pointSizeSlider")->value(), 80);
    EXPECT_EQ(find<PointSlider>("fontWeightSlider")->value(), 700);
    EXPECT_EQ(search().text(), QStringLiteral("sans"));
    state.pointSize = -3;
    state.fontWeight = 30000;
    bar.apply(state);
    EXPECT_EQ(find<PointSlider>("pointSizeSlider")->value(), 12);
    EXPECT_EQ(find<PointSlider>("fontWeightSlider")->value(), 900);
    EXPECT_EQ(recorder.take(), Told());
}

TEST_F(TopBarTest, aHeldKnobIsNotMovedByTheState)
{
    auto *slider = find<PointSlider>("pointSizeSlider");
    const QPoint end(slider->width() - 1, slider->height() / 2);
    QTest::mousePress(slider, Qt::LeftButton, {}, end);
    EXPECT_EQ(recorder.take(), Told({QStringLiteral("hold 1"), QStringLiteral("size 160")}));
    state.pointSize = 40;
    bar.apply(state);
    EXPECT_EQ(slider->value(), 160);
    QTest::mouseRelease(slider, Qt::LeftButton, {}, end);
    EXPECT_EQ(recorder.take(), Told(QStringLiteral("hold 0")));
    QTest::mouseDClick(slider, Qt::LeftButton, {}, slider->knobRect().center().toPoint());
    EXPECT_EQ(recorder.take(), Told(QStringLiteral("size 36")));
}

TEST_F(TopBarTest, searchTellsWhatIsSettled)
{
    QTest::keyClicks(&search(), QStringLiteral("No"));
    EXPECT_EQ(recorder.take(), Told({QStringLiteral("search N"), QStringLiteral("search No")}));
    compose(QStringLiteral("と"));
    state.searchQuery = QStringLiteral("from elsewhere");
    bar.apply(state);
    EXPECT_EQ(search().text(), QStringLiteral("No")) << "a composition is not disturbed";
    QTest::keyClick(&search(), Qt::Key_Return);
    EXPECT_EQ(recorder.take(), Told()) << "Return is the input method's";
    compose({}, QStringLiteral("図"));
    EXPECT_EQ(recorder.take(), Told(QStringLiteral("search No図")));
    state.searchQuery = QStringLiteral("No図");
    search().setCursorPosition(1);
    bar.apply(state);
    EXPECT_EQ(search().cursorPosition(), 1) << "the same text is not written again";
}

TEST_F(TopBarTest, escapeClearsAndThenLeaves)
{
    QShortcut stolen(QKeySequence(Qt::Key_Escape), &window);
    QObject::connect(&stolen, &QShortcut::activated, &window,
                     [this] { recorder.told.append(QStringLiteral("stolen")); });
    bar.focusSearch();
    QTest::keyClicks(&search(), QStringLiteral("a"));
    QTest::keyClick(&search(), Qt::Key_Escape);
    QTest::keyClick(&search(), Qt::Key_Escape);
    QTest::keyClick(&search(), Qt::Key_Down);
    QTest::keyClick(&search(), Qt::Key_Return);
    EXPECT_EQ(recorder.take(),
              Told({QStringLiteral("search a"), QStringLiteral("search "), QStringLiteral("left"),
                    QStringLiteral("left"), QStringLiteral("left")}));
    state.searchQuery = QStringLiteral("abc");
    bar.apply(state);
    bar.focusSearch();
    EXPECT_EQ(search().selectedText(), QStringLiteral("abc"));
}

TEST_F(TopBarTest, chipsAreARadioGroupThatOnlyWishes)
{
    auto *white = find<ColorChip>("whiteChip");
    auto *custom = find<ColorChip>("customChip");
    QTest::mouseClick(custom, Qt::LeftButton);
    EXPECT_EQ(recorder.take(), Told(QStringLiteral("mode 2")));
    EXPECT_TRUE(white->isChecked()) << "nobody has granted it";
    white->setFocus(Qt::TabFocusReason);
    QTest::keyClick(white, Qt::Key_Right);
    EXPECT_EQ(recorder.take(), Told(QStringLiteral("mode 1")));
    show(ColorMode::black);
    EXPECT_TRUE(find<ColorChip>("blackChip")->hasFocus());
    QTest::keyClick(window.focusWidget(), Qt::Key_Right);
    EXPECT_EQ(recorder.take(), Told(QStringLiteral("mode 2")));
    EXPECT_EQ(openPopover(), nullptr);
}

TEST_F(TopBarTest, theChosenChipOpensItsPanel)
{
    auto *custom = find<ColorChip>("customChip");
    auto *image = find<ColorChip>("imageChip");
    show(ColorMode::custom);
    QTest::mouseClick(custom, Qt::LeftButton);
    EXPECT_TRUE(waitForPopover(QStringLiteral("Custom Colors")));
    QTest::keyClick(window.focusWidget(), Qt::Key_Escape);
    EXPECT_TRUE(waitForNoPopover());
    QTest::keyClick(custom, Qt::Key_Down, Qt::AltModifier);
    EXPECT_TRUE(waitForPopover(QStringLiteral("Custom Colors")));
    QTest::mouseClick(custom, Qt::LeftButton);
    EXPECT_TRUE(waitForNoPopover()) << "a press on the control closes its panel";
    QTest::mouseClick(image, Qt::LeftButton);
    EXPECT_TRUE(waitForPopover(QStringLiteral("Background Image"))) << "there is none to show yet";
    EXPECT_TRUE(custom->isChecked());
    EXPECT_EQ(recorder.take(), Told());
    bar.openPanel(BrowserTopBar::Panel::logo);
    EXPECT_TRUE(waitForPopover(QStringLiteral("Logo")));
    bar.openPanel(BrowserTopBar::Panel::sampleText);
    EXPECT_TRUE(waitForPopover(QStringLiteral("Sample Text")));
    state.display.values.backgroundImageID = QStringLiteral("no such image");
    bar.apply(state);
    QTest::mouseClick(image, Qt::LeftButton);
    EXPECT_EQ(recorder.take(), Told(QStringLiteral("mode 3")));
    EXPECT_TRUE(waitForNoPopover());
}

/// With the window, whatever is open: whoever was told of its changes is gone by then.
TEST_F(TopBarTest, anOpenPanelGoesWithTheBarInSilence)
{
    auto other = std::make_unique<BrowserTopBar>(&window);
    other->setDelegate(&recorder);
    other->setGeometry(bar.geometry().translated(0, 60));
    other->show();
    other->openPanel(BrowserTopBar::Panel::colors);
    ASSERT_NE(openPopover(), nullptr);
    auto *digits = find<LineField>("colorDigits");
    digits->setFocus();
    digits->selectAll();
    QTest::keyClicks(digits, QStringLiteral("123"));
    other.reset();
    EXPECT_EQ(window.findChild<Popover *>(), nullptr);
    EXPECT_EQ(recorder.take(), Told());
}

TEST_F(TopBarTest, slidersWithoutRoomMoveBehindAButton)
{
    auto *more = find<IconButton>("moreButton");
    EXPECT_FALSE(more->isVisible());
    const struct
    {
        int width;
        int inBar;
        int inPopover;
    } rows[]{{1008, 2, 0}, {1007, 1, 1}, {868, 1, 1}, {867, 0, 2}, {728, 0, 2}};
    for (const auto &row : rows) {
        SCOPED_TRACE(row.width);
        bar.resize(row.width, BrowserTopBar::kHeight);
        int visible = 0;
        for (const PointSlider *slider : bar.findChildren<PointSlider *>())
            visible += slider->isVisible();
        EXPECT_EQ(visible, row.inBar);
        EXPECT_EQ(more->isVisible(), row.inPopover > 0);
        if (row.inPopover == 0)
            continue;
        QTest::mouseClick(more, Qt::LeftButton);
        ASSERT_TRUE(waitForPopover(QStringLiteral("Size and Weight")));
        const auto sliders = openPopover()->findChildren<PointSlider *>();
        EXPECT_EQ(sliders.size(), row.inPopover);
        PointSlider *weight = sliders.last();
        QTest::keyClick(weight, Qt::Key_End);
        EXPECT_EQ(recorder.take(), Told(QStringLiteral("weight 900")));
        state.fontWeight = 300;
        bar.apply(state);
        EXPECT_EQ(weight->value(), 300) << "it follows the state while it is open";
        state.fontWeight = 400;
        bar.apply(state);
        EXPECT_EQ(recorder.take(), Told());
        QTest::keyClick(weight, Qt::Key_Escape);
        EXPECT_TRUE(waitForNoPopover());
    }
}

} // namespace
} // namespace lorva
