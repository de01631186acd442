// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#include "support/Waiting.h"
#include "ui/style/ColorChip.h"
#include "ui/style/IconButton.h"
#include "ui/style/LineField.h"
#include "ui/style/MenuLook.h"
#include "ui/style/Palette.h"
#include "ui/style/PointSlider.h"
#include "ui/style/Popover.h"
#include "ui/style/ReducedMotion.h"
#include "ui/style/TextButton.h"
#include "ui/style/ToggleSwitch.h"

#include <QAccessible>
#include <QMenu>
#include <QScrollArea>
#include <QSignalSpy>
#include <QTest>
#include <QVBoxLayout>

#include <gtest/gtest.h>

namespace lorva {
namespace {

/// The best contrast that any pixel of the widget, drawn on `ground`, has with the ground, or with
/// its own pixel at `reference`.
double seenContrast(QWidget &widget, const QColor &ground, std::optional<QPoint> reference = {})
{
    QImage image(widget.size() * 2, QImage::Format_RGB32);
    image.setDevicePixelRatio(2);
    image.fill(ground);
    widget.render(&image, {}, {}, QWidget::DrawChildren);
    const QColor beside = reference ? image.pixelColor(*reference * 2) : ground;
    double best = 1;
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x)
            best = std::max(best, contrastRatio(image.pixelColor(x, y), beside));
    }
    return best;
}

TEST(StyleControlsTest, controlsAreSeenOnEveryPane)
{
    const QColor orange(0xf0, 0x40, 0x00);
    const QColor gray(0x77, 0x77, 0x77);
    const std::pair<QColor, QColor> panes[]{
        {Qt::black, Qt::white},
        {Qt::white, Qt::black},
        {Qt::white, QColor(0x13, 0x28, 0xe9)},
        {Qt::white, orange},
        {Qt::white, Qt::white},
        {Qt::black, Qt::black},
        {orange, orange},
        {gray, gray},
        {QColor(0x70, 0x70, 0x78), gray},
        {Qt::yellow, Qt::cyan},
        {QColor(0, 0, 0, 40), Qt::white},
    };
    for (const auto &[foreground, background] : panes) {
        SCOPED_TRACE(foreground.name(QColor::HexArgb).toStdString() + " on "
                     + background.name().toStdString());
        IconButton button(QStringLiteral("photo"), QStringLiteral("Logo"));
        button.setColors(foreground, background);
        button.resize(button.sizeHint());
        EXPECT_GE(seenContrast(button, background), 4.5);
        for (const QColor &disc : {QColor(Qt::white), QColor(Qt::black), background}) {
            for (const bool isChosen : {false, true}) {
                ColorChip chip(QStringLiteral("Chip"));
                chip.setChipColors(disc, disc);
                chip.setChecked(isChosen);
                chip.setColors(foreground, background);
                chip.resize(chip.sizeHint());
                EXPECT_GE(seenContrast(chip, background), 3.0) << isChosen;
            }
        }
        PointSlider slider;
        slider.setColors(foreground, background);
        slider.resize(slider.sizeHint());
        EXPECT_GE(seenContrast(slider, background), 3.0);
        LineField field;
        field.setPlaceholderText(QStringLiteral("MMMM"));
        field.setColors(foreground, background);
        field.resize(field.sizeHint());
        EXPECT_GE(seenContrast(field, background, QPoint(200, 14)), 4.4)
            << "the words that stand in for a text";
    }
}

TEST(StyleControlsTest, neutralControlsFollowTheDesktop)
{
    TextButton button(QStringLiteral("Cancel"));
    ToggleSwitch toggle(QStringLiteral("Visible"));
    // Switched off it is quiet: its place tells the state.
    toggle.setChecked(true);
    LineField field;
    field.setText(QStringLiteral("MMMM"));
    for (const bool isDark : {true, false, true}) {
        setDarkDesktopOverride(isDark);
        const QColor ground = neutralColors(isDark).ground;
        for (QWidget *widget : std::initializer_list<QWidget *>{&button, &toggle, &field}) {
            widget->resize(widget->sizeHint());
            EXPECT_GE(seenContrast(*widget, ground), 4.5)
                << widget->metaObject()->className() << (isDark ? " dark" : " light");
        }
    }
    setDarkDesktopOverride(std::nullopt);
}

TEST(StyleControlsTest, aSwitchTellsItsStateByPlace)
{
    ToggleSwitch toggle(QStringLiteral("Visible"));
    toggle.resize(toggle.sizeHint());
    QImage states[2];
    for (const bool isOn : {false, true}) {
        toggle.setChecked(isOn);
        states[isOn] = QImage(toggle.size(), QImage::Format_Grayscale8);
        states[isOn].fill(neutralColors(isDarkDesktop()).ground);
        toggle.render(&states[isOn], {}, {}, QWidget::DrawChildren);
    }
    const int y = toggle.height() / 2;
    const auto halvesDiffer = [&](const QImage &image) {
        return std::abs(qGray(image.pixel(12, y)) - qGray(image.pixel(toggle.width() - 13, y)));
    };
    EXPECT_GT(halvesDiffer(states[0]), 60);
    EXPECT_GT(halvesDiffer(states[1]), 60);
    QTest::keyClick(&toggle, Qt::Key_Space);
    EXPECT_FALSE(toggle.isChecked());
}

TEST(StyleControlsTest, rolesAndNamesReachAssistiveTechnology)
{
    ColorChip chip(QStringLiteral("White"));
    ToggleSwitch toggle(QStringLiteral("Visible"));
    IconButton icon(QStringLiteral("photo"), QStringLiteral("Logo"));
    TextButton text(QStringLiteral("Cancel"));
    const std::tuple<QWidget *, QAccessible::Role, const char *> rows[]{
        {&chip, QAccessible::RadioButton, "White"},
        {&toggle, QAccessible::CheckBox, "Visible"},
        {&icon, QAccessible::Button, "Logo"},
        {&text, QAccessible::Button, "Cancel"},
    };
    for (const auto &[widget, role, name] : rows) {
        QAccessibleInterface *interface = QAccessible::queryAccessibleInterface(widget);
        ASSERT_NE(interface, nullptr);
        EXPECT_EQ(interface->role(), role) << name;
        EXPECT_EQ(interface->text(QAccessible::Name), QLatin1String(name));
    }
}

void compose(QWidget &field, const QString &preedit, const QString &commit = {})
{
    QInputMethodEvent event(preedit, {});
    event.setCommitString(commit);
    QCoreApplication::sendEvent(&field, &event);
}

TEST(LineFieldTest, onlySettledTextIsTold)
{
    LineField field;
    QSignalSpy settled(&field, &LineField::textSettled);
    field.setText(QStringLiteral("written by the program"));
    EXPECT_TRUE(settled.isEmpty());
    field.selectAll();
    compose(field, QStringLiteral("k"));
    compose(field, QStringLiteral("か"));
    EXPECT_TRUE(field.isComposing());
    EXPECT_TRUE(settled.isEmpty()) << "the composition has replaced the selection, but is not over";
    compose(field, QStringLiteral("な"), QStringLiteral("仮"));
    EXPECT_TRUE(settled.isEmpty()) << "a syllable is done, the next one is being written";
    compose(field, {}, QStringLiteral("名"));
    ASSERT_EQ(settled.size(), 1);
    EXPECT_EQ(settled.takeFirst().first().toString(), QStringLiteral("仮名"));
    field.selectAll();
    compose(field, QStringLiteral("x"));
    compose(field, {});
    ASSERT_EQ(settled.size(), 1) << "given up, but the selection is gone";
    EXPECT_EQ(settled.takeFirst().first().toString(), QString());
    QTest::keyClicks(&field, QStringLiteral("ab"));
    field.clearByUser();
    EXPECT_EQ(settled.size(), 3);
    field.undo();
    EXPECT_EQ(settled.last().first().toString(), QStringLiteral("ab"));
}

TEST(LineFieldTest, theClearButtonStandsBehindTheTextInBothDirections)
{
    LineField field;
    field.setSymbol(QStringLiteral("magnifyingglass"));
    field.setClearable(true);
    field.resize(field.sizeHint());
    field.show();
    auto *clear = field.findChild<IconButton *>(QStringLiteral("clearButton"));
    ASSERT_NE(clear, nullptr);
    EXPECT_FALSE(clear->isVisible());
    for (const auto direction : {Qt::LeftToRight, Qt::RightToLeft}) {
        field.setLayoutDirection(direction);
        QTest::keyClicks(&field, QStringLiteral("abc"));
        EXPECT_TRUE(clear->isVisible());
        const bool isMirrored = direction == Qt::RightToLeft;
        EXPECT_EQ(clear->geometry().center().x() < field.width() / 2, isMirrored);
        EXPECT_GE(isMirrored ? field.textMargins().left() : field.textMargins().right(),
                  clear->width());
        QTest::mouseClick(clear, Qt::LeftButton);
        EXPECT_EQ(field.text(), QString());
        EXPECT_FALSE(clear->isVisible());
    }
}

TEST(PointSliderTest, sticksToStopsAndReturnsToTheDefault)
{
    PointSlider slider;
    slider.setRange(100, 900);
    slider.setStops(10, 100);
    slider.setDefaultValue(400);
    slider.setValue(400);
    slider.resize(slider.sizeHint());
    slider.show();
    const auto click = [&](int x) {
        QTest::mouseClick(&slider, Qt::LeftButton, {}, QPoint(x, slider.height() / 2));
        return slider.value();
    };
    const int center = slider.width() / 2;
    EXPECT_EQ(click(center), 500);
    EXPECT_EQ(click(center + 20), 650);
    EXPECT_EQ(click(center + 38), 800) << "from a few points away";
    slider.setValue(650);
    QTest::keyClick(&slider, Qt::Key_Right);
    EXPECT_EQ(slider.value(), 700);
    slider.setValue(650);
    QTest::keyClick(&slider, Qt::Key_Left);
    EXPECT_EQ(slider.value(), 600);
    QTest::keyClick(&slider, Qt::Key_PageDown);
    EXPECT_EQ(slider.value(), 500);
    slider.setValue(650);
    const QPoint grip = slider.knobRect().center().toPoint() + QPoint(4, 0);
    QTest::mousePress(&slider, Qt::LeftButton, {}, grip);
    QTest::mouseRelease(&slider, Qt::LeftButton, {}, grip);
    EXPECT_EQ(slider.value(), 650) << "taking the knob beside its middle does not move it";
    QTest::mouseDClick(&slider, Qt::LeftButton, {}, grip);
    EXPECT_EQ(slider.value(), 400);
}

class PopoverTest : public ::testing::Test
{
protected:
    PopoverTest()
    {
        setReducedMotionOverride(true);
        window.resize(500, 400);
        anchor.setGeometry(440, 10, 28, 28);
        other.setGeometry(10, 200, 100, 28);
        window.show();
        window.activateWindow();
        EXPECT_TRUE(test::waitUntil([this] { return window.isActiveWindow(); }));
    }
    ~PopoverTest() override { setReducedMotionOverride(std::nullopt); }

    Popover *open(QSize size = {200, 120})
    {
        auto *content = new QWidget;
        content->setMinimumSize(size);
        auto *column = new QVBoxLayout(content);
        for (int i = 0; i < 2; ++i) {
            auto *button = new TextButton(QString::number(i));
            button->setObjectName(QString::number(i));
            column->addWidget(button);
        }
        return Popover::open(content, &anchor, QStringLiteral("Panel"));
    }
    bool isFocused(const QWidget &in, const QString &name)
    {
        auto *widget = in.findChild<QWidget *>(name);
        return widget && window.focusWidget() == widget;
    }

    QWidget window;
    IconButton anchor{QStringLiteral("photo"), QStringLiteral("Logo"), &window};
    TextButton other{QStringLiteral("Other"), TextButton::Kind::plain, &window};
};

TEST_F(PopoverTest, staysInsideTheWindow)
{
    const QRect room = window.rect().adjusted(8, 8, -8, -8);
    const struct
    {
        QRect anchor;
        QSize content;
    } rows[]{
        {{440, 10, 28, 28}, {200, 120}},   {{0, 10, 28, 28}, {200, 120}},
        {{240, 370, 28, 28}, {200, 300}},  {{240, 180, 28, 28}, {200, 900}},
        {{240, 10, 28, 28}, {2000, 2000}},
    };
    for (const auto &row : rows) {
        anchor.setGeometry(row.anchor);
        QPointer<Popover> popover = open(row.content);
        EXPECT_TRUE(room.contains(popover->geometry())) << row.content.width();
        EXPECT_GE(popover->width(), std::min(row.content.width(), room.width()));
        popover->close();
        EXPECT_FALSE(popover->isVisible());
    }
    anchor.setGeometry(440, 10, 28, 28);
    Popover *popover = open();
    window.resize(300, 300);
    anchor.move(200, 10);
    EXPECT_TRUE(test::waitUntil(
        [&] { return window.rect().adjusted(8, 8, -8, -8).contains(popover->geometry()); }));
    anchor.hide();
    window.resize(310, 300);
    EXPECT_TRUE(test::waitUntil([&] { return !popover->isVisible(); }));
}

TEST_F(PopoverTest, keepsTheTabKeyInsideAndGivesTheFocusBack)
{
    other.setFocus();
    Popover *popover = open();
    QSignalSpy closed(popover, &Popover::closed);
    EXPECT_TRUE(isFocused(*popover, QStringLiteral("0")));
    QTest::keyClick(window.focusWidget(), Qt::Key_Tab);
    EXPECT_TRUE(isFocused(*popover, QStringLiteral("1")));
    QTest::keyClick(window.focusWidget(), Qt::Key_Tab);
    EXPECT_TRUE(isFocused(*popover, QStringLiteral("0")));
    QTest::keyClick(window.focusWidget(), Qt::Key_Backtab);
    EXPECT_TRUE(isFocused(*popover, QStringLiteral("1")));
    QAccessibleInterface *interface = QAccessible::queryAccessibleInterface(popover);
    EXPECT_EQ(interface->role(), QAccessible::Dialog);
    EXPECT_EQ(interface->text(QAccessible::Name), QStringLiteral("Panel"));
    QTest::keyClick(window.focusWidget(), Qt::Key_Escape);
    EXPECT_EQ(closed.size(), 1);
    EXPECT_EQ(window.focusWidget(), &other);
}

TEST_F(PopoverTest, aPressOutsideClosesIt)
{
    QSignalSpy anchorClicked(&anchor, &QAbstractButton::clicked);
    QSignalSpy otherClicked(&other, &QAbstractButton::clicked);
    QPointer<Popover> popover = open();
    QTest::mouseClick(popover->findChild<QWidget *>(QStringLiteral("1")), Qt::LeftButton);
    EXPECT_TRUE(popover->isVisible());
    QTest::mouseClick(&anchor, Qt::LeftButton);
    EXPECT_FALSE(popover->isVisible());
    EXPECT_TRUE(anchorClicked.isEmpty()) << "it would only open again";
    popover = open();
    QTest::mouseClick(&other, Qt::LeftButton);
    EXPECT_FALSE(popover->isVisible());
    EXPECT_EQ(otherClicked.size(), 1);
    popover = open();
    other.setFocus();
    EXPECT_FALSE(popover->isVisible()) << "the keyboard went elsewhere";
}

TEST_F(PopoverTest, outlivesNeitherItsAnchorNorItsWindow)
{
    auto shortLived = std::make_unique<IconButton>(QStringLiteral("photo"), QString(), &window);
    QPointer<Popover> popover = Popover::open(new QWidget, shortLived.get(), QString());
    shortLived.reset();
    EXPECT_FALSE(popover->isVisible());
    QCoreApplication::sendPostedEvents(popover, QEvent::DeferredDelete);
    EXPECT_TRUE(popover.isNull());
    auto *dialog = new QWidget;
    auto *button = new IconButton(QStringLiteral("photo"), QString(), dialog);
    dialog->show();
    popover = Popover::open(new TextButton(QStringLiteral("A")), button, QString());
    delete dialog;
    EXPECT_TRUE(popover.isNull());
}

TEST(MenuLookTest, longMenusScrollAndSubmenusHaveTheLook)
{
    QWidget window;
    QMenu *menu = makeMenu(&window);
    QMenu *submenu = menu->addMenu(QStringLiteral("Foundry"));
    for (int i = 0; i < 2000; ++i)
        submenu->addAction(QStringLiteral("Foundry %1").arg(i))->setCheckable(true);
    QAction *last = submenu->actions().last();
    last->setShortcut(Qt::CTRL | Qt::Key_K);
    menu->popup(QPoint(0, 0));
    EXPECT_EQ(submenu->style(), menu->style()) << "it joined later";
    submenu->popup(QPoint(0, 0));
    EXPECT_LE(submenu->height(), submenu->screen()->geometry().height());
    EXPECT_EQ(submenu->actionGeometry(last).height(), 26);
    QSignalSpy triggered(last, &QAction::triggered);
    QTest::keyClick(submenu, Qt::Key_Up);
    EXPECT_EQ(submenu->activeAction(), last);
    QTest::keyClick(submenu, Qt::Key_Return);
    EXPECT_EQ(triggered.size(), 1);
}

} // namespace
} // namespace lorva
