// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT

#include "commands/OrganizationAlerts.h"
#include "SheetFixture.h"
#include "ui/sheets/FontIndexingSheetController.h"
#include "ui/sheets/ProgressIndicators.h"
#include "ui/sheets/SheetQueue.h"
#include "ui/sheets/SheetText.h"

#include <QAccessible>
#include <QMenu>

namespace lorva {
namespace {

using Kind = FontScanPhase::Kind;

const ProgressState kBusy{QStringLiteral("Busy"), {}};

class ProgressSheetTest : public test::SheetFixture
{
protected:
    std::unique_ptr<ProgressDisplay> show(const ProgressState &state = kBusy)
    {
        auto display = m_presenter.showProgress(state, [this] { ++m_cancels; });
        // The delay is over when what was asked for later has come.
        bool isOver = false;
        QTimer::singleShot(0, [&isOver] { isOver = true; });
        EXPECT_TRUE(test::waitUntil([&isOver] { return isOver; }));
        return display;
    }

    int m_cancels = 0;
};

TEST_F(ProgressSheetTest, TellsThePhasesOfAScan)
{
    auto *sheet = new FontIndexingSheetController(*m_window);
    sheet->present();
    const struct
    {
        Kind kind;
        int done;
        int total;
        const char *text;
        std::optional<double> bar;
    } rows[]{
        {Kind::enumerating, 0, 0, "Finding fonts…", {}},
        {Kind::enumerating, 1200, 0, "Finding fonts… 1,200", {}},
        {Kind::scanning, 0, 0, "Scanning 0 of 0 fonts", {}},
        {Kind::scanning, 0, 4000, "Scanning 0 of 4,000 fonts", 0.0},
        {Kind::scanning, 1000, 4000, "Scanning 1,000 of 4,000 fonts", 0.25},
        {Kind::identifying, 3, 4, "Identifying fonts… 3 of 4", 0.75},
        {Kind::preparing, 3, 4, "Preparing…", {}},
    };
    EXPECT_EQ(sheet->messageLabel()->text(), QStringLiteral("Scanning fonts…"));
    EXPECT_TRUE(sheet->spinner()->isVisible());
    for (const auto &row : rows) {
        QLocale::setDefault(QLocale(QLocale::English, QLocale::UnitedStates));
        sheet->update(row.done, row.total, row.kind);
        EXPECT_EQ(sheet->messageLabel()->text(), QString::fromUtf8(row.text));
        EXPECT_EQ(sheet->progressBar()->isVisible(), row.bar.has_value()) << row.text;
        EXPECT_EQ(sheet->spinner()->isVisible(), !row.bar) << row.text;
        EXPECT_DOUBLE_EQ(row.bar ? sheet->progressBar()->fraction() : 0.0, row.bar.value_or(0.0));
    }
    QAccessibleInterface *panel =
        QAccessible::queryAccessibleInterface(part("ProgressSheet.Panel"));
    EXPECT_EQ(panel->text(QAccessible::Name), QStringLiteral("Preparing…"));

    for (const double wild : {-1.0, 7.0, std::numeric_limits<double>::quiet_NaN()}) {
        sheet->update({QString(3000, u'M'), wild});
        EXPECT_THAT(sheet->progressBar()->fraction(), testing::AnyOf(0.0, 1.0));
        EXPECT_TRUE(m_window->rect().contains(part("ProgressSheet.Panel")->geometry()));
    }
}

TEST_F(ProgressSheetTest, TurnsOnlyWhereThingsMayMoveAndWhileItIsSeen)
{
    for (const bool isReduced : {true, false}) {
        setReducedMotionOverride(isReduced);
        const auto display = show();
        ASSERT_TRUE(test::waitUntil([this] { return part("ProgressSheet.Spinner") != nullptr; }));
        auto *spinner = qobject_cast<QuietSpinner *>(part("ProgressSheet.Spinner"));
        EXPECT_EQ(spinner->isTurning(), !isReduced);
        display->update({QStringLiteral("Half"), 0.5});
        EXPECT_FALSE(spinner->isTurning());
    }
}

TEST_F(ProgressSheetTest, CancelsOnceAndStaysUntilItsOwnerEndsIt)
{
    const struct
    {
        const char *what;
        std::vector<int> keys;
        bool clicks;
        int cancels;
    } rows[]{
        {"a key that was meant for something else", {Qt::Key_Return, Qt::Key_Space}, false, 0},
        {"Escape", {Qt::Key_Escape, Qt::Key_Escape}, false, 1},
        {"the button", {Qt::Key_Tab, Qt::Key_Space, Qt::Key_Tab, Qt::Key_Space}, false, 1},
        {"a click, then Escape", {Qt::Key_Escape}, true, 1},
    };
    for (const auto &row : rows) {
        m_cancels = 0;
        auto display = show();
        if (row.clicks)
            click("ProgressSheet.Cancel");
        press(row.keys);
        EXPECT_EQ(m_cancels, row.cancels) << row.what;
        EXPECT_TRUE(part("ProgressSheet")) << row.what;
        EXPECT_EQ(part("ProgressSheet.Cancel")->isEnabled(), row.cancels == 0) << row.what;
        EXPECT_TRUE(part("ProgressSheet")->isAncestorOf(QApplication::focusWidget())
                    || part("ProgressSheet")->hasFocus());
        display.reset();
        EXPECT_FALSE(part("ProgressSheet")) << row.what;
        EXPECT_TRUE(m_field->hasFocus()) << row.what;
    }
}

TEST_F(ProgressSheetTest, MayBeEndedByItsOwnCancel)
{
    std::unique_ptr<ProgressDisplay> display;
    display = m_presenter.showProgress(kBusy, [&] {
        display.reset();
        m_presenter.showAlert(refusedChangeAlert(QStringLiteral("Stopped.")), {});
    });
    ASSERT_TRUE(test::waitUntil([this] { return part("ProgressSheet") != nullptr; }));
    press(Qt::Key_Escape);
    EXPECT_FALSE(part("ProgressSheet"));
    EXPECT_EQ(textOf("AlertSheet.Body"), QStringLiteral("Stopped."));
    press(Qt::Key_Return);
    EXPECT_FALSE(hasAlertSheet(*m_window));
}

TEST_F(ProgressSheetTest, IsNotShownForWhatEndsSoonOrBeforeItsTurn)
{
    WindowPresenter patient(*m_window, std::chrono::hours(1));
    {
        const auto display = patient.showProgress(kBusy, {});
    }
    EXPECT_FALSE(hasAlertSheet(*m_window));

    m_presenter.showAlert(deleteCollectionAlert(), {});
    auto first = show({QStringLiteral("First"), {}});
    auto second = show({QStringLiteral("Second"), {}});
    EXPECT_FALSE(part("ProgressSheet")) << "the alert was there before";
    first.reset();
    second->update({QStringLiteral("Second goes on"), 0.5});
    press(Qt::Key_Escape);
    EXPECT_EQ(textOf("ProgressSheet.Message"), QStringLiteral("Second goes on"));
    m_presenter.showAlert(deleteCollectionAlert(), {});
    second.reset();
    EXPECT_TRUE(part("AlertSheet")) << "what waited comes at once";
}

TEST_F(ProgressSheetTest, SurvivesItsWindowAndItsFade)
{
    setReducedMotionOverride(false);
    auto fading = show();
    ASSERT_TRUE(part("ProgressSheet"));
    fading.reset();
    EXPECT_FALSE(part("ProgressSheet"));
    EXPECT_TRUE(m_field->hasFocus());

    const auto shown = show();
    const auto waiting = show();
    const auto delayed = m_presenter.showProgress(kBusy, {});
    m_window.reset();
    for (ProgressDisplay *display : {shown.get(), waiting.get(), delayed.get()})
        display->update({QStringLiteral("Still"), 0.1});
    EXPECT_FALSE(m_presenter.isAvailable());
    EXPECT_FALSE(m_presenter.showProgress(kBusy, {}));
    EXPECT_EQ(m_cancels, 0);
}

TEST_F(ProgressSheetTest, ShowsNothingMoreInAWindowThatGoes)
{
    // As the commands do, which are a part of the window.
    struct Owner final : QWidget
    {
        using QWidget::QWidget;
        std::unique_ptr<ProgressDisplay> display;
    };
    auto window = std::make_unique<QMainWindow>();
    auto *owner = new Owner(window.get());
    WindowPresenter presenter(*window, std::chrono::milliseconds(0));
    window->show();
    owner->display = presenter.showProgress(kBusy, {});
    ASSERT_TRUE(test::waitUntil([&] { return hasAlertSheet(*window); }));
    bool wasShown = false;
    SheetQueue::of(*window).add([&](SheetQueue &) -> QObject * {
        wasShown = true;
        return nullptr;
    });
    window.reset();
    EXPECT_FALSE(wasShown);
}

TEST_F(ProgressSheetTest, ClosesAMenuThatCouldStillAct)
{
    QMenu menu(m_field);
    menu.addAction(QStringLiteral("Act"));
    menu.popup(m_window->mapToGlobal(QPoint(10, 10)));
    const auto display = show();
    ASSERT_TRUE(part("ProgressSheet"));
    EXPECT_FALSE(menu.isVisible());
}

} // namespace
} // namespace lorva
