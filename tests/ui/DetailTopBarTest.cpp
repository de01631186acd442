// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#include "ui/detail/DetailTopBar.h"
#include "BrowserHarness.h"

#include "support/QtPrinters.h"
#include "support/Waiting.h"
#include "ui/detail/DetailBarLayout.h"
#include "ui/style/IconButton.h"
#include "ui/style/LineField.h"
#include "ui/style/MenuLook.h"
#include "ui/style/PointSlider.h"
#include "ui/style/Popover.h"
#include "ui/style/ReducedMotion.h"

#include <QMenu>
#include <QTest>

#include <gtest/gtest.h>

namespace lorva {
namespace {

std::vector<QRect> partsInOrder(const DetailBarLayout &layout)
{
    std::vector<QRect> parts{layout.back, layout.previous, layout.next, layout.title};
    for (const auto &optional : {layout.size, layout.weight, layout.letterSpacing, layout.more}) {
        if (optional)
            parts.push_back(*optional);
    }
    for (const QRect &part :
         {layout.chips, layout.logo, layout.stages, layout.inspector, layout.menu, layout.search})
        parts.push_back(part);
    return parts;
}

int sliderCount(const DetailBarLayout &layout)
{
    return layout.size.has_value() + layout.weight.has_value() + layout.letterSpacing.has_value();
}

TEST(DetailBarLayoutTest, NothingOverlapsOrIsClippedAtAnyWidth)
{
    int sliders = 0;
    for (int width = 728; width <= 3608; ++width) {
        SCOPED_TRACE(width);
        const DetailBarLayout layout = layOutDetailBar(width, {}, Qt::LeftToRight);
        const std::vector<QRect> parts = partsInOrder(layout);
        int edge = 18;
        for (const QRect &part : parts) {
            ASSERT_GE(part.left(), edge);
            ASSERT_TRUE(part.top() >= 0 && part.bottom() < DetailTopBar::kHeight);
            edge = part.right() + 1;
        }
        ASSERT_EQ(edge, width - 24);
        ASSERT_GE(layout.title.width(), 90);
        ASSERT_TRUE(layout.search.width() == 220 || sliderCount(layout) == 0);
        ASSERT_GE(layout.search.width(), 140);
        ASSERT_GE(sliderCount(layout), sliders) << "a wider bar holds more";
        sliders = sliderCount(layout);
        ASSERT_TRUE(!layout.letterSpacing || layout.weight);
        ASSERT_TRUE(!layout.weight || layout.size);
        ASSERT_EQ(layout.more.has_value(), sliders < 3);
        const std::vector<QRect> mirrored =
            partsInOrder(layOutDetailBar(width, {}, Qt::RightToLeft));
        for (size_t i = 0; i < parts.size(); ++i)
            ASSERT_EQ(mirrored[i],
                      QRect(QPoint(width - 1 - parts[i].right(), parts[i].top()), parts[i].size()));
    }
    const struct
    {
        int width;
        int sliders;
    } rows[]{{728, 0}, {1200, 2}, {1488, 3}};
    for (const auto &row : rows)
        EXPECT_EQ(sliderCount(layOutDetailBar(row.width, {}, Qt::LeftToRight)), row.sliders);
    for (const int width : {0, 1, 100, 480, 700})
        EXPECT_GE(layOutDetailBar(width, {}, Qt::LeftToRight).search.width(), 140) << width;
}

/// Writes down what the bar tells.
class Recorder final : public FontDetailDelegate
{
public:
    QStringList told;
    QStringList take() { return std::exchange(told, {}); }

    DisplayControlsDelegate &display() override { return m_display; }
    void detailPointSizeChanged(double pointSize) override { tell("size", pointSize); }
    void detailClosed() override { tell("closed", 0); }
    void detailNeighbourWanted(int step) override { tell("neighbour", step); }
    void detailVariantSelected(const QString &) override { }
    void detailLetterSpacingChanged(double value) override { tell("spacing", value); }
    void detailStageChanged(DetailStage stage) override { tell("stage", int(stage)); }
    void detailInspectorToggled() override { tell("inspector", 0); }
    void detailActivationWanted() override { }
    void detailRemainingActivationWanted() override { }
    void detailDeactivationWanted() override { }
    void detailStyleActivationWanted(const FontStyleRecord &) override { }
    void detailStyleDeactivationWanted(const FontStyleRecord &) override { }
    void detailCategoryChosen(const std::optional<QString> &) override { }
    void detailCollectionToggled(const QString &) override { }
    void detailFoundryChosen(const QString &) override { }
    void detailFaceShown(const DisplayedFace &) override { }

private:
    void tell(const char *what, double value)
    {
        told.append(QLatin1String(what) + u' ' + QString::number(value));
    }

    struct Display final : test::SilentBrowserDelegate
    {
        explicit Display(Recorder &its)
            : recorder(its)
        {
        }
        void displayFontWeightChanged(int weight) override { recorder.tell("weight", weight); }
        void displayColorModeChanged(ColorMode mode) override { recorder.tell("mode", int(mode)); }
        Recorder &recorder;
    };
    Display m_display{*this};
};

class DetailTopBarTest : public testing::Test
{
protected:
    DetailTopBarTest()
    {
        setReducedMotionOverride(true);
        window.resize(1488, 600);
        bar.setDelegate(&recorder);
        QObject::connect(&bar, &DetailTopBar::searchChanged, &bar, [this](const QString &query) {
            recorder.told.append(QLatin1String("search ") + query);
        });
        QObject::connect(&bar, &DetailTopBar::searchLeft, &bar,
                         [this] { recorder.told.append(QStringLiteral("left")); });
        bar.setGeometry(0, 0, 1488, DetailTopBar::kHeight);
        state.family.familyName = QStringLiteral("Some Family");
        state.hasNext = true;
        bar.apply(state);
        window.show();
        window.activateWindow();
        EXPECT_TRUE(test::waitUntil([this] { return window.isActiveWindow(); }));
    }
    ~DetailTopBarTest() override { setReducedMotionOverride(std::nullopt); }

    template <class Part>
    Part *find(const char *name)
    {
        return window.findChild<Part *>(QLatin1String(name));
    }
    Popover *openPopover() const
    {
        for (Popover *popover : window.findChildren<Popover *>()) {
            if (popover->isVisible())
                return popover;
        }
        return nullptr;
    }
    void click(const char *name) { QTest::mouseClick(find<QAbstractButton>(name), Qt::LeftButton); }

    Recorder recorder;
    FontDetailState state;
    QWidget window;
    DetailTopBar bar{&window};
};

TEST_F(DetailTopBarTest, TellsWhatIsWantedAndNothingThatTheStateBrings)
{
    click("backButton");
    click("previousFamilyButton");
    click("nextFamilyButton");
    click("inspectorButton");
    EXPECT_EQ(recorder.take(), QStringList({"closed 0", "neighbour 1", "inspector 0"}))
        << "there is no family before it";
    const auto stages = find<QWidget>("stageControl")->findChildren<QAbstractButton *>();
    ASSERT_EQ(stages.size(), 3);
    QTest::mouseClick(stages[1], Qt::LeftButton);
    EXPECT_EQ(recorder.take(), QStringList("stage 1"));
    state.stage = DetailStage::comparison;
    state.showsInspector = false;
    state.hasPrevious = true;
    state.pointSize = 3000;
    state.fontWeight = 650;
    state.letterSpacing = 0.124;
    bar.apply(state);
    EXPECT_TRUE(stages[2]->isChecked());
    EXPECT_FALSE(find<IconButton>("inspectorButton")->isChecked());
    EXPECT_TRUE(find<IconButton>("previousFamilyButton")->isEnabled());
    EXPECT_EQ(find<PointSlider>("fontWeightSlider")->value(), 650);
    EXPECT_EQ(find<PointSlider>("letterSpacingSlider")->value(), 12);
    EXPECT_EQ(find<PointSlider>("detailSizeSlider")->accessibleDescription(), "400 points");
    EXPECT_EQ(recorder.take(), QStringList());
}

TEST_F(DetailTopBarTest, SizesGrowInGrowingSteps)
{
    auto *slider = find<PointSlider>("detailSizeSlider");
    QTest::keyClick(slider, Qt::Key_Home);
    QTest::keyClick(slider, Qt::Key_Right);
    QTest::keyClick(slider, Qt::Key_End);
    QTest::keyClick(slider, Qt::Key_Left);
    EXPECT_EQ(recorder.take(), QStringList({"size 12", "size 13", "size 400", "size 392"}));
    QTest::mouseDClick(slider, Qt::LeftButton, {}, slider->knobRect().center().toPoint());
    EXPECT_EQ(recorder.take(), QStringList("size 96"));
}

TEST_F(DetailTopBarTest, LetterSpacingSticksToNone)
{
    auto *slider = find<PointSlider>("letterSpacingSlider");
    QTest::keyClick(slider, Qt::Key_Right);
    QTest::keyClick(slider, Qt::Key_End);
    EXPECT_EQ(recorder.take(), QStringList({"spacing 0.01", "spacing 0.5"}));
    state.letterSpacing = 0;
    bar.apply(state);
    const QPoint none = slider->knobRect().center().toPoint();
    QTest::mousePress(slider, Qt::LeftButton, {}, none);
    QTest::mouseMove(slider, none + QPoint(3, 0));
    QTest::mouseMove(slider, none - QPoint(2, 0));
    EXPECT_EQ(slider->value(), 0);
    QTest::mouseMove(slider, none - QPoint(9, 0));
    QTest::mouseMove(slider, none + QPoint(1, 0));
    QTest::mouseRelease(slider, Qt::LeftButton, {}, none);
    EXPECT_EQ(recorder.take(), QStringList({"spacing -0.05", "spacing 0"}));
    EXPECT_EQ(slider->value(), 0) << "the knob shows what is set";
}

TEST_F(DetailTopBarTest, SlidersWithoutRoomAreBehindAButton)
{
    const struct
    {
        int width;
        QStringList inPopover;
    } rows[]{{1200, {"letterSpacingSlider"}},
             {728, {"detailSizeSlider", "fontWeightSlider", "letterSpacingSlider"}}};
    for (const auto &row : rows) {
        SCOPED_TRACE(row.width);
        bar.resize(row.width, DetailTopBar::kHeight);
        click("moreButton");
        ASSERT_TRUE(test::waitUntil([&] { return openPopover() != nullptr; }));
        const Popover *popover = openPopover();
        QStringList names;
        for (const PointSlider *slider : popover->findChildren<PointSlider *>())
            names.append(slider->objectName());
        EXPECT_EQ(names, row.inPopover);
        auto *last = popover->findChildren<PointSlider *>().last();
        QTest::keyClick(last, Qt::Key_Home);
        EXPECT_EQ(recorder.take(), QStringList("spacing -0.1"));
        QTest::keyClick(last, Qt::Key_Escape);
        ASSERT_TRUE(test::waitUntil([&] { return openPopover() == nullptr; }));
    }
}

TEST_F(DetailTopBarTest, SearchesAndOpensItsMenu)
{
    auto *field = find<LineField>("characterSearchField");
    bar.focusSearch();
    QTest::keyClicks(field, QStringLiteral("a"));
    QTest::keyClick(field, Qt::Key_Escape);
    QTest::keyClick(field, Qt::Key_Escape);
    QTest::keyClicks(field, QStringLiteral("b"));
    QTest::keyClick(field, Qt::Key_Return);
    bar.clearSearch();
    EXPECT_EQ(field->text(), QString());
    EXPECT_EQ(recorder.take(), QStringList({"search a", "search ", "left", "search b", "left"}));

    click("detailMenuButton");
    int made = 0;
    bar.makeMenu = [&](QWidget *parent) {
        ++made;
        QMenu *menu = makeMenu(parent);
        QObject::connect(menu->addAction(QStringLiteral("Export")), &QAction::triggered, &bar,
                         [this] { recorder.told.append(QStringLiteral("export")); });
        return menu;
    };
    click("detailMenuButton");
    auto *menu = bar.findChild<QMenu *>();
    ASSERT_NE(menu, nullptr);
    QTest::keyClick(menu, Qt::Key_Down);
    QTest::keyClick(menu, Qt::Key_Return);
    EXPECT_EQ(recorder.take(), QStringList("export"));
    EXPECT_TRUE(test::waitUntil([&] { return !bar.findChild<QMenu *>(); }));
    click("detailMenuButton");
    EXPECT_EQ(made, 2);
}

TEST_F(DetailTopBarTest, TheTabKeyGoesAlongTheBar)
{
    QStringList names;
    find<QWidget>("backButton")->setFocus(Qt::TabFocusReason);
    for (int i = 0; i < 14; ++i) {
        const QWidget *at = window.focusWidget();
        names.append(at->objectName().isEmpty() ? at->accessibleName() : at->objectName());
        QTest::keyClick(window.focusWidget(), Qt::Key_Tab);
    }
    EXPECT_EQ(names,
              QStringList({"backButton", "nextFamilyButton", "detailSizeSlider", "fontWeightSlider",
                           "letterSpacingSlider", "whiteChip", "logoButton", "Text",
                           "inspectorButton", "detailMenuButton", "characterSearchField",
                           "backButton", "nextFamilyButton", "detailSizeSlider"}));
}

} // namespace
} // namespace lorva
