// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT

#include "BrowserHarness.h"
#include "ui/browser/BrowserEmptyStateView.h"
#include "ui/browser/CardSlide.h"
#include "ui/browser/LetterOverlayView.h"
#include "ui/FontFamilyPasteboard.h"
#include "ui/style/Palette.h"

#include <QApplication>
#include <QClipboard>
#include <QDrag>
#include <QLineEdit>
#include <QScrollBar>
#include <QWheelEvent>

namespace lorva {
namespace {

using test::BrowserHarness;
using test::waitUntil;
using BrowserInput = BrowserHarness;

TEST_F(BrowserInput, ClicksAndKeysSelectOneOrMany)
{
    const struct
    {
        const char *what;
        std::function<void()> act;
        const char *selected;
    } rows[]{
        {"click", [this] { click(1); }, "B"},
        {"Control-click adds", [this] { click(4, Qt::ControlModifier); }, "BE"},
        {"Control-click takes out", [this] { click(1, Qt::ControlModifier); }, "E"},
        {"Shift-click from the anchor", [this] { click(3, Qt::ShiftModifier); }, "BCD"},
        {"a click on one of several", [this] { click(2); }, "C"},
        {"Shift-arrow", [this] { key(Qt::Key_Down, Qt::ShiftModifier); }, "CDE"},
        {"and back", [this] { key(Qt::Key_Left, Qt::ShiftModifier); }, "CD"},
        {"an arrow takes one", [this] { key(Qt::Key_Right); }, "E"},
        {"all", [this] { key(Qt::Key_A, Qt::ControlModifier); }, "ABCDEFGHIJKLMNOPQRST"},
        {"Shift-Home",
         [this] {
             click(2);
             key(Qt::Key_Home, Qt::ShiftModifier);
         },
         "ABC"},
    };
    for (const auto &row : rows) {
        row.act();
        EXPECT_EQ(selected(), QString::fromLatin1(row.selected)) << row.what;
        for (const auto &[index, item] : view().visibleItems())
            EXPECT_EQ(item->contentView().showsSelection(), view().isSelected(index)) << row.what;
    }
    EXPECT_EQ(delegate.log.front(), QStringLiteral("selected B"));
    EXPECT_EQ(delegate.log.last(), QStringLiteral("selected A"));
}

TEST_F(BrowserInput, TheStateMovesTheSelectionWithoutTellingBack)
{
    click(0);
    click(2, Qt::ControlModifier);
    delegate.log.clear();
    const struct
    {
        std::optional<QString> name;
        const char *selected;
    } rows[]{{QStringLiteral("A"), "AC"}, {QStringLiteral("F"), "F"}, {std::nullopt, ""}};
    for (const auto &row : rows) {
        state.selectedFamilyName = row.name;
        apply();
        EXPECT_EQ(selected(), QString::fromLatin1(row.selected));
    }
    EXPECT_EQ(delegate.log, QStringList());
}

TEST_F(BrowserInput, ARubberBandBeginsOnTheGroundOrWithAModifier)
{
    setFamilies(letters(5));
    apply();
    const QPoint ground = at(4) + QPoint(400, 0);
    const struct
    {
        const char *what;
        QPoint from;
        Qt::KeyboardModifiers modifiers;
        QPoint to;
        const char *selected;
    } rows[]{
        {"from the ground", ground, {}, at(2), "CDE"},
        {"adds with Shift", at(0), Qt::ShiftModifier, at(1), "ABCDE"},
        {"turns over with Control", at(0), Qt::ControlModifier, at(3), "E"},
        {"a plain one replaces", ground, {}, at(3) + QPoint(60, 0), "D"},
    };
    auto *band = browser.findChild<QWidget *>(QStringLiteral("RubberBand"));
    for (const auto &row : rows) {
        pressAt(row.from, row.modifiers);
        moveTo((row.from + row.to) / 2);
        EXPECT_TRUE(band->isVisible()) << row.what;
        moveTo(row.to);
        releaseAt(row.to);
        EXPECT_FALSE(band->isVisible());
        EXPECT_EQ(selected(), QString::fromLatin1(row.selected)) << row.what;
    }
    pressAt(ground);
    moveTo(at(0));
    EXPECT_EQ(selected(), QStringLiteral("ABCDE"));
    key(Qt::Key_Escape);
    EXPECT_EQ(selected(), QStringLiteral("D")) << "as before the band";
    moveTo(at(1));
    EXPECT_EQ(selected(), QStringLiteral("D"));
}

TEST_F(BrowserInput, ARubberBandScrollsAtTheEdgeAndGoesOnGrowing)
{
    pressAt(at(0), Qt::ShiftModifier);
    moveTo(QPoint(600, view().viewport()->height() + 20));
    ASSERT_TRUE(waitUntil(
        [this] { return view().scrollOffset() == view().verticalScrollBar()->maximum(); }));
    EXPECT_EQ(browser.selectedNames().size(), 20);
    releaseAt(QPoint(600, 100));
}

TEST_F(BrowserInput, ADragTakesNamesAndFilesOfAllSelectedAlong)
{
    int drags = 0;
    QStringList names;
    QList<QUrl> files;
    QSize picture;
    browser.runDrag = [&](QDrag *drag) {
        ++drags;
        names = fontFamilyNames(*drag->mimeData());
        files = drag->mimeData()->urls();
        picture = drag->pixmap().size();
        EXPECT_FALSE(drag->pixmap().rect().contains(drag->hotSpot())) << "it hides its target";
        drag->deleteLater();
    };
    const auto drag = [&](int index) {
        pressAt(at(index));
        moveTo(at(index) + QPoint(3, 0));
        EXPECT_EQ(drags, 0) << "a tremble is no drag";
        moveTo(at(index) + QPoint(40, 0));
        EXPECT_EQ(std::exchange(drags, 0), 1);
        releaseAt(at(index));
    };
    drag(1);
    EXPECT_EQ(names, QStringList("B"));
    EXPECT_EQ(selected(), QStringLiteral("B")) << "an unselected card is taken alone";
    click(3, Qt::ControlModifier);
    drag(1);
    EXPECT_EQ(names, QStringList({"B", "D"}));
    EXPECT_EQ(files, QList<QUrl>({QUrl("file:///fonts/B.otf"), QUrl("file:///fonts/D.otf")}));
    EXPECT_EQ(selected(), QStringLiteral("BD"));
    EXPECT_FALSE(picture.isEmpty());
}

TEST_F(BrowserInput, CopyPutsNamesAndFilesOnTheClipboard)
{
    QGuiApplication::clipboard()->setText(QStringLiteral("before"));
    key(Qt::Key_C, Qt::ControlModifier);
    EXPECT_EQ(QGuiApplication::clipboard()->text(), QStringLiteral("before"));
    click(0);
    click(2, Qt::ControlModifier);
    key(Qt::Key_C, Qt::ControlModifier);
    const QMimeData &data = *QGuiApplication::clipboard()->mimeData();
    EXPECT_EQ(data.text(), QStringLiteral("A\nC"));
    EXPECT_EQ(fontFamilyNames(data), QStringList({"A", "C"}));
    EXPECT_EQ(data.data(QStringLiteral("text/uri-list")),
              QByteArray("file:///fonts/A.otf\r\nfile:///fonts/C.otf\r\n"));
}

TEST_F(BrowserInput, ReturnOpensTheFirstSelectedAndADoubleClickItsOwn)
{
    key(Qt::Key_Return);
    click(3);
    click(1, Qt::ControlModifier);
    delegate.log.clear();
    key(Qt::Key_Return);
    QTest::mouseDClick(view().viewport(), Qt::LeftButton, {}, at(3));
    EXPECT_EQ(delegate.log, QStringList({"open B", "selected D", "open D"}));
}

TEST_F(BrowserInput, LettersJumpToTheFirstFamilyAndShowThemselves)
{
    setFamilies({"Alpha", "Beta", "Gamma", "gill", "Heros", "Iota", "Kappa", "Lambda", "mu", "Nu",
                 QString::fromUtf8("Омега"), QString::fromUtf8("ßeta"), QString::fromUtf8("Ökö")});
    apply();
    const struct
    {
        QString text;
        Qt::KeyboardModifiers modifiers;
        QString selected;
        /// Empty: no overlay.
        QString letter;
    } rows[]{
        {"g", {}, "Gamma", "G"},
        {"M", Qt::ShiftModifier, "mu", "M"},
        {"z", {}, "mu", "Z"},
        {QString::fromUtf8("о"), {}, QString::fromUtf8("Омега"), QString::fromUtf8("О")},
        {QString::fromUtf8("ß"), {}, QString::fromUtf8("ßeta"), QString::fromUtf8("ß")},
        {QString::fromUtf8("ö"), {}, QString::fromUtf8("Ökö"), QString::fromUtf8("Ö")},
        {"a", Qt::ControlModifier | Qt::AltModifier, QString::fromUtf8("Ökö"), ""},
        {"a", Qt::AltModifier, QString::fromUtf8("Ökö"), ""},
        {"a", Qt::MetaModifier, QString::fromUtf8("Ökö"), ""},
        {"1", {}, QString::fromUtf8("Ökö"), ""},
        {".", {}, QString::fromUtf8("Ökö"), ""},
        {"ab", {}, QString::fromUtf8("Ökö"), ""},
    };
    for (const auto &row : rows) {
        delete browser.findChild<LetterOverlayView *>();
        QKeyEvent press(QEvent::KeyPress, 0, row.modifiers, row.text);
        QCoreApplication::sendEvent(&view(), &press);
        EXPECT_EQ(view().selectedID(), row.selected) << row.text.toStdString();
        const auto *overlay = browser.findChild<LetterOverlayView *>();
        EXPECT_EQ(overlay ? overlay->letter() : QString(), row.letter);
    }
    view().setScrollOffset(0);
    QTest::keyClick(&view(), Qt::Key_H);
    EXPECT_EQ(view().scrollOffset(), 2 * 220) << "the card stands at the top";
    ASSERT_TRUE(waitUntil([this] { return !browser.findChild<LetterOverlayView *>(); }));
}

TEST_F(BrowserInput, ALetterJumpsFromTheControlsOfThePaneButNotFromATextField)
{
    auto *slider = browser.findChild<QWidget *>(QStringLiteral("viewModeControl"));
    QTest::keyClick(slider, Qt::Key_M);
    EXPECT_EQ(selected(), QStringLiteral("M"));
    QTest::keyClick(slider, Qt::Key_C, Qt::ControlModifier);
    QTest::keyClick(browser.findChild<QWidget *>(QStringLiteral("searchField")), Qt::Key_D);
    EXPECT_EQ(selected(), QStringLiteral("M"));
}

TEST_F(BrowserInput, ANewerLetterReplacesTheOverlayAndItFades)
{
    setReducedMotionOverride(false);
    QTest::keyClick(&view(), Qt::Key_X);
    ASSERT_TRUE(waitUntil([this] {
        const auto *overlay = browser.findChild<LetterOverlayView *>();
        return overlay && overlay->opacity() == 1.0;
    }));
    QTest::keyClick(&view(), Qt::Key_Y);
    const auto overlays = browser.findChildren<LetterOverlayView *>();
    ASSERT_EQ(overlays.size(), 1);
    EXPECT_EQ(overlays.front()->letter(), QStringLiteral("Y"));
    EXPECT_LT(overlays.front()->opacity(), 1.0);
    EXPECT_EQ(overlays.front()->size(), QSize(260, 260));
    EXPECT_EQ(overlays.front()->geometry().center(), browser.rect().center());
    ASSERT_TRUE(waitUntil([this] { return !browser.findChild<LetterOverlayView *>(); }));
}

void turnWheel(QWidget &target, QPoint pixels, QPoint angle)
{
    QWheelEvent event({50, 50}, target.mapToGlobal(QPointF(50, 50)), pixels, angle, Qt::NoButton,
                      Qt::NoModifier, Qt::NoScrollPhase, false);
    QCoreApplication::sendEvent(&target, &event);
}

TEST_F(BrowserInput, WheelsGlideAndTouchpadsMoveExactly)
{
    QApplication::setWheelScrollLines(3);
    const struct
    {
        QPoint pixels;
        QPoint angle;
        int offset;
    } rows[]{
        {{}, {0, -120}, 120}, {{}, {0, -30}, 150},       {{0, -7}, {0, -20}, 157},
        {{}, {0, 240}, 0},    {{0, 50}, {0, 120}, 0},    {{}, {0, -120 * 100}, 1540},
        {{}, {120, 0}, 1540}, {{0, 40}, {0, 120}, 1500},
    };
    for (const auto &row : rows) {
        turnWheel(*view().viewport(), row.pixels, row.angle);
        EXPECT_EQ(view().scrollOffset(), row.offset) << row.angle.y();
    }
    view().setScrollOffset(0);
    setReducedMotionOverride(false);
    turnWheel(*view().viewport(), {}, {0, -120});
    turnWheel(*view().viewport(), {}, {0, -120});
    EXPECT_LT(view().scrollOffset(), 240);
    ASSERT_TRUE(waitUntil([this] { return view().scrollOffset() == 240; })) << "notches add up";
    turnWheel(*view().viewport(), {}, {0, -120});
    view().setScrollOffset(700);
    turnWheel(*view().viewport(), {0, -1}, {});
    EXPECT_EQ(view().scrollOffset(), 701) << "a glide never fights another scroll";
}

TEST_F(BrowserInput, CardsThatStaySlideOnlyWhereTheEyeCanFollow)
{
    setReducedMotionOverride(false);
    auto *slide = view().findChild<CardSlide *>();
    ASSERT_NE(slide, nullptr);
    const BrowserSource other = BrowserSource::active();
    const struct
    {
        const char *what;
        QStringList names;
        std::function<void()> change;
        bool slides;
    } rows[]{
        {"a shorter list", {"A", "C", "D", "F", "G"}, [] {}, true},
        {"the same list", {"A", "C", "D", "F", "G"}, [] {}, false},
        {"a longer list", letters(8), [] {}, false},
        {"another view", letters(7), [this] { state.viewMode = ViewMode::list; }, false},
        {"another source", {"B", "C"}, [&] { state.source = other; }, false},
    };
    for (const auto &row : rows) {
        setFamilies(row.names);
        row.change();
        apply();
        EXPECT_EQ(slide->isRunning(), row.slides) << row.what;
        EXPECT_TRUE(waitUntil([&] { return !slide->isRunning(); }));
        for (const auto &[index, item] : view().visibleItems())
            EXPECT_EQ(item->pos(),
                      view().viewportRect(view().arrangement().cardRect(index)).topLeft())
                << row.what;
    }
}

TEST_F(BrowserInput, CardsThatSlideArriveWhateverIsAppliedMeanwhile)
{
    setReducedMotionOverride(false);
    auto *slide = view().findChild<CardSlide *>();
    setFamilies({QStringLiteral("C"), QStringLiteral("F")});
    apply();
    ASSERT_TRUE(slide->isRunning());
    state.fontWeight = 700;
    apply();
    EXPECT_TRUE(test::waitUntil([slide] { return !slide->isRunning(); }));
    for (const auto &[index, item] : view().visibleItems())
        EXPECT_EQ(item->geometry(), view().viewportRect(view().arrangement().cardRect(index)));
}

TEST_F(BrowserInput, ASearchIsReadFromItsTopAndLeadsBack)
{
    const auto search = [this](const QString &query, int found) {
        state.searchQuery = query;
        setFamilies(letters(found));
        apply();
    };
    view().setScrollOffset(700);
    search(QStringLiteral("x"), 18);
    EXPECT_EQ(view().scrollOffset(), 0);
    view().setScrollOffset(300);
    search(QStringLiteral("xy"), 16);
    EXPECT_EQ(view().scrollOffset(), 0);
    search({}, 20);
    EXPECT_EQ(view().scrollOffset(), 700);

    search(QStringLiteral("x"), 18);
    state.selectedFamilyName = QStringLiteral("B");
    search({}, 20);
    EXPECT_EQ(view().scrollOffset(), 0) << "the card that was chosen meanwhile is in sight";
}

TEST_F(BrowserInput, TheSearchFieldGivesTheKeysBackToTheCards)
{
    auto *search = browser.findChild<QLineEdit *>(QStringLiteral("searchField"));
    ASSERT_NE(search, nullptr);
    for (const Qt::Key leave : {Qt::Key_Escape, Qt::Key_Down, Qt::Key_Return}) {
        search->setFocus(Qt::ShortcutFocusReason);
        ASSERT_TRUE(search->hasFocus());
        if (leave == Qt::Key_Escape) {
            QTest::keyClick(search, Qt::Key_X);
            QTest::keyClick(search, Qt::Key_Escape);
            EXPECT_TRUE(search->text().isEmpty());
            EXPECT_TRUE(search->hasFocus()) << "the first one is for the text";
        }
        QTest::keyClick(search, leave);
        EXPECT_TRUE(view().hasFocus()) << leave;
    }
}

TEST_F(BrowserInput, TheKeyboardsFocusIsSeenOnlyWhenItCameByKeyboard)
{
    const auto ringAt = [this] {
        for (const auto &[index, item] : view().visibleItems()) {
            if (view().showsFocusAt(index))
                return index;
        }
        return -1;
    };
    EXPECT_EQ(ringAt(), -1);
    view().clearFocus();
    view().setFocus(Qt::TabFocusReason);
    EXPECT_EQ(ringAt(), 0);
    const QImage ringed = view().visibleItem(0)->grab().toImage();
    key(Qt::Key_Right);
    EXPECT_EQ(selected(), QStringLiteral("A")) << "keys start where the ring was";
    key(Qt::Key_Right);
    EXPECT_EQ(ringAt(), 1);
    EXPECT_NE(view().visibleItem(0)->grab().toImage(), ringed);
    click(1);
    EXPECT_EQ(ringAt(), -1);
}

/// The focus that leaves a list touches its cards once more, when their families are gone already.
TEST_F(BrowserInput, TheListMayEmptyUnderTheKeyboard)
{
    view().clearFocus();
    view().setFocus(Qt::TabFocusReason);
    key(Qt::Key_End);
    ASSERT_TRUE(view().showsFocusAt(19));
    setFamilies({});
    state.emptyState = {BrowserEmptyState::SourceEmpty()};
    apply();
    EXPECT_FALSE(view().isVisible());
    EXPECT_THAT(view().visibleItems(), testing::IsEmpty());
    setFamilies(letters(3));
    state.emptyState.reset();
    apply();
    EXPECT_TRUE(view().hasFocus());
    EXPECT_EQ(view().visibleItems().size(), 3U);
}

TEST_F(BrowserInput, AnEmptyPaneIsReadOnAnyColours)
{
    setFamilies({});
    state.emptyState = {BrowserEmptyState::SourceEmpty{"IIIIIIII", "IIIIIIIIIIIIIIII", false}};
    for (const char *hex : {"#808080", "#FFFFFF", "#000000", "#1328E9"}) {
        state.foregroundColorHex = state.backgroundColorHex = QString::fromLatin1(hex);
        apply();
        const QImage pane = browser.grab().toImage();
        double best = 1;
        for (int y = BrowserTopBar::kHeight + 1; y < pane.height(); ++y)
            for (int x = 0; x < pane.width(); ++x)
                best = std::max(best, contrastRatio(pane.pixelColor(x, y), QColor(hex)));
        EXPECT_GE(best, 4.5) << hex;
    }
    state.emptyState = {BrowserEmptyState::NoSearchResults{QString(50'000, u'x')}};
    apply();
    EXPECT_LT(browser.findChild<BrowserEmptyStateView *>()->accessibleDescription().size(), 300);
}

TEST_F(BrowserInput, RightToLeftMirrorsClicksBandsAndKeys)
{
    browser.setLayoutDirection(Qt::RightToLeft);
    view().setLayoutDirection(Qt::RightToLeft);
    EXPECT_GT(at(0).x(), at(1).x());
    click(0);
    key(Qt::Key_Left);
    EXPECT_EQ(selected(), QStringLiteral("B"));
    pressAt(at(2), Qt::ShiftModifier);
    moveTo(at(2) + QPoint(-50, 0));
    moveTo(at(2) + QPoint(-60, 0));
    releaseAt(at(2));
    EXPECT_EQ(selected(), QStringLiteral("BC"));
}

TEST_F(BrowserInput, TheWeightControlShowsTheStyleNearestToIt)
{
    std::vector<FontFamilyRecord> families(2);
    families[0].familyName = QStringLiteral("Many");
    for (const int weight : {300, 400, 700})
        families[0].styles.push_back({QString::number(weight), {}, {}, weight, false, {}});
    families[1].familyName = QStringLiteral("Empty");
    state.families = makeFamilyList(std::move(families));
    const struct
    {
        int weight;
        int shown;
    } rows[]{{400, 0}, {200, 300}, {650, 700}, {900, 700}};
    for (const auto &row : rows) {
        state.fontWeight = row.weight;
        apply();
        EXPECT_EQ(resolver->askedWeights.value(QStringLiteral("Many")), row.shown) << row.weight;
        EXPECT_EQ(resolver->askedWeights.value(QStringLiteral("Empty")), 0);
    }
}

TEST_F(BrowserInput, OverAnImageNothingOpaqueIsPainted)
{
    QWidget beneath;
    beneath.resize(browser.size());
    QPalette colors = beneath.palette();
    colors.setColor(QPalette::Window, Qt::red);
    beneath.setPalette(colors);
    beneath.setAutoFillBackground(true);
    browser.setParent(&beneath);
    browser.show();
    beneath.show();
    const QPoint beside(5, browser.height() - 5);
    const auto seen = [&] { return beneath.grab().toImage().pixelColor(beside); };
    EXPECT_EQ(seen(), QColor(Qt::white));
    state.colorMode = ColorMode::image;
    apply();
    EXPECT_EQ(seen(), QColor(Qt::red));
    view().setScrollOffset(130);
    EXPECT_EQ(seen(), QColor(Qt::red));
    state.colorMode = ColorMode::black;
    state.backgroundColorHex = QStringLiteral("#000000");
    apply();
    EXPECT_EQ(seen(), QColor(Qt::black));
    browser.setParent(nullptr);
}

} // namespace
} // namespace lorva
