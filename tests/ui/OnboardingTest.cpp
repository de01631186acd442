// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT

#include "ui/onboarding/FallingLettersOnboarding.h"

#include "support/LibraryFixture.h"
#include "ui/onboarding/OnboardingOverlay.h"
#include "ui/preview/FontResolver.h"
#include "ui/style/ReducedMotion.h"

#include <QAccessible>
#include <QAction>
#include <QApplication>
#include <QLineEdit>
#include <QMainWindow>
#include <QPushButton>
#include <QTest>

#include <gmock/gmock.h>

namespace lorva {
namespace {

using namespace std::chrono_literals;
using testing::ElementsAre;
using testing::IsEmpty;
using End = OnboardingOverlayController::End;

constexpr std::chrono::milliseconds kFrame{16};

/// Time passes when the case says so.
class ManualClock final : public FrameClock
{
public:
    void start(std::function<void(std::chrono::nanoseconds)> tick) override
    {
        m_tick = std::move(tick);
    }
    void stop() override { m_tick = nullptr; }
    bool isRunning() const { return bool(m_tick); }
    void frame()
    {
        if (const auto tick = m_tick)
            tick(kFrame);
    }
    void run(std::chrono::milliseconds time)
    {
        for (auto now = 0ms; now < time; now += kFrame)
            frame();
    }

private:
    std::function<void(std::chrono::nanoseconds)> m_tick;
};

class Onboarding : public testing::Test
{
protected:
    Onboarding()
    {
        setReducedMotionOverride(false);
        m_window->setCentralWidget(new QLineEdit);
        m_window->resize(960, 800);
        m_window->show();
    }
    ~Onboarding() override { setReducedMotionOverride({}); }

    void loadFamilies()
    {
        m_library.addFamilies(QStringLiteral("Real"), 5);
        m_library.addFamily(QStringLiteral("Pictures"), U" ");
        ASSERT_TRUE(m_library.load());
    }
    void show()
    {
        m_controller = std::make_unique<FallingLettersOnboarding>(
            *m_library.model, makeFontResolver(m_library.model->fontLibraryService()), m_clock);
        m_controller->show(*m_window,
                           {QStringLiteral("One way.\n\nWith love."), QStringLiteral("Continue")},
                           [this](End end) {
                               m_ends.push_back(end);
                               // As who called it may do.
                               m_controller.reset();
                           });
        m_overlay = static_cast<OnboardingOverlay *>(m_controller->overlay());
        ASSERT_TRUE(test::waitUntil([this] {
            return m_overlay->isActiveWindow() && QApplication::focusWidget()
                && QApplication::focusWidget()->window() == m_overlay;
        }));
    }
    QPushButton *button() const
    {
        return m_overlay ? m_overlay->findChild<QPushButton *>(QStringLiteral("WelcomeContinue"))
                         : nullptr;
    }
    QWidget *card() const { return m_overlay->findChild<QWidget *>(QStringLiteral("WelcomeCard")); }
    bool showsCard() const { return m_overlay && button()->isVisible(); }
    int letters() const { return m_overlay->fall()->count(); }
    /// Workers answer between the frames.
    bool runUntil(const std::function<bool()> &condition)
    {
        return test::waitUntil([&] {
            m_clock->frame();
            return condition();
        });
    }
    /// The same, but time stands still while the workers are late: they do not know that it is
    /// played.
    bool runWithLettersUntil(const std::function<bool()> &condition)
    {
        return test::waitUntil([&] {
            const LetterFall *fall = m_overlay->fall();
            if (!fall || !fall->isWaiting())
                m_clock->frame();
            return condition();
        });
    }
    /// Also keys that no test library knows a character for.
    static void press(Qt::Key key)
    {
        QKeyEvent down(QEvent::KeyPress, key, Qt::NoModifier);
        QCoreApplication::sendEvent(QApplication::focusWidget(), &down);
        QKeyEvent up(QEvent::KeyRelease, key, Qt::NoModifier);
        QCoreApplication::sendEvent(QApplication::focusWidget(), &up);
    }
    bool overlayIsGone()
    {
        return test::waitUntil([this] {
            QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
            return !m_overlay;
        });
    }

    test::LibraryFixture m_library;
    std::unique_ptr<QMainWindow> m_window = std::make_unique<QMainWindow>();
    std::shared_ptr<ManualClock> m_clock = std::make_shared<ManualClock>();
    std::unique_ptr<FallingLettersOnboarding> m_controller;
    QPointer<OnboardingOverlay> m_overlay;
    std::vector<End> m_ends;
};

TEST_F(Onboarding, LetsLettersFallThenShowsTheCardThenGoesOn)
{
    loadFamilies();
    show();
    EXPECT_TRUE(m_overlay->isWindow());
    EXPECT_EQ(m_overlay->geometry(), m_window->geometry());
    EXPECT_FALSE(showsCard());
    ASSERT_TRUE(runWithLettersUntil([this] { return letters() == 40; }));
    EXPECT_FALSE(showsCard()) << "they still fall";
    ASSERT_TRUE(runUntil([this] { return showsCard(); }));
    EXPECT_EQ(QApplication::focusWidget(), button());
    ASSERT_TRUE(runUntil([this] { return !m_clock->isRunning(); })) << "all is at rest";
    for (int i = 0; i < letters(); ++i)
        EXPECT_TRUE(QRectF(-2, -2, 964, 804).contains(m_overlay->fall()->scene().bounds(i))) << i;
    const QAccessibleInterface *accessible = QAccessible::queryAccessibleInterface(card());
    EXPECT_EQ(accessible->role(), QAccessible::Dialog);
    EXPECT_EQ(accessible->text(QAccessible::Name), QStringLiteral("Welcome to Lorva"));

    press(Qt::Key_Return);
    EXPECT_THAT(m_ends, ElementsAre(End::continued));
    ASSERT_TRUE(m_overlay) << "it fades, without its controller";
    QTest::keyClick(m_overlay, Qt::Key_Return);
    m_overlay->close();
    m_clock->run(200ms);
    m_clock->run(400ms);
    EXPECT_FALSE(m_clock->isRunning());
    EXPECT_TRUE(overlayIsGone());
    EXPECT_THAT(m_ends, ElementsAre(End::continued));
}

TEST_F(Onboarding, FadesWhenItIsThrough)
{
    loadFamilies();
    show();
    press(Qt::Key_A);
    press(Qt::Key_Space);
    EXPECT_EQ(m_overlay->windowOpacity(), 1.0);
    m_clock->run(176ms);
    EXPECT_NEAR(m_overlay->windowOpacity(), 0.5, 0.03);
    m_clock->run(192ms);
    EXPECT_TRUE(overlayIsGone());
}

TEST_F(Onboarding, IsSkippedByAnyKeyButModifiersAndByAClick)
{
    loadFamilies();
    const std::vector<std::pair<Qt::Key, bool>> rows{
        {Qt::Key_A, true},      {Qt::Key_Return, true},   {Qt::Key_Escape, true},
        {Qt::Key_Space, true},  {Qt::Key_Tab, true},      {Qt::Key_F5, true},
        {Qt::Key_Shift, false}, {Qt::Key_Control, false}, {Qt::Key_Alt, false},
        {Qt::Key_Meta, false},  {Qt::Key_AltGr, false},   {Qt::Key_CapsLock, false}};
    for (const auto &[key, skips] : rows) {
        SCOPED_TRACE(key);
        show();
        ASSERT_TRUE(runUntil([this] { return letters() > 3; }));
        press(key);
        EXPECT_EQ(showsCard(), skips);
        const int fallen = letters();
        EXPECT_EQ(runUntil([this] { return !m_clock->isRunning(); }), true) << "they come to rest";
        EXPECT_EQ(letters() == fallen, skips) << "and no others come";
        EXPECT_THAT(m_ends, IsEmpty());
        m_controller.reset();
        EXPECT_FALSE(m_overlay);
    }
    show();
    QTest::mouseClick(m_overlay, Qt::LeftButton, {}, {5, 5});
    EXPECT_TRUE(showsCard());
}

TEST_F(Onboarding, TakesOnlyAKeyPressOfItsOwnForTheButton)
{
    loadFamilies();
    for (const Qt::Key key : {Qt::Key_Return, Qt::Key_Enter, Qt::Key_Space}) {
        m_ends.clear();
        show();
        press(Qt::Key_A);
        press(Qt::Key_Escape);
        press(Qt::Key_Tab);
        QKeyEvent repeated(QEvent::KeyPress, Qt::Key_Return, Qt::NoModifier, QString(), true);
        QCoreApplication::sendEvent(QApplication::focusWidget(), &repeated);
        EXPECT_THAT(m_ends, IsEmpty());
        press(key);
        EXPECT_THAT(m_ends, ElementsAre(End::continued));
        m_clock->run(400ms);
        EXPECT_TRUE(overlayIsGone());
    }
}

TEST_F(Onboarding, ShowsLettersOfTheSystemsFontWhileThereIsNoLibrary)
{
    show();
    ASSERT_TRUE(runUntil([this] { return showsCard(); }));
    EXPECT_GT(letters(), 0);
    EXPECT_LT(letters(), 20);
    press(Qt::Key_Return);
    EXPECT_THAT(m_ends, ElementsAre(End::continued));
}

TEST_F(Onboarding, TakesTheLibraryAsItComes)
{
    show();
    ASSERT_TRUE(runUntil([this] { return letters() == 2; }));
    loadFamilies();
    EXPECT_TRUE(runWithLettersUntil([this] { return letters() == 40; }));
}

TEST_F(Onboarding, IsOnlyACardWhereNothingMoves)
{
    setReducedMotionOverride(true);
    loadFamilies();
    show();
    EXPECT_TRUE(showsCard());
    EXPECT_FALSE(m_overlay->fall());
    EXPECT_FALSE(m_clock->isRunning());
    QTest::mouseClick(button(), Qt::LeftButton);
    EXPECT_THAT(m_ends, ElementsAre(End::continued));
    EXPECT_FALSE(m_overlay->isVisible());
    EXPECT_TRUE(overlayIsGone());
}

TEST_F(Onboarding, ComesAgainWhenItWasClosed)
{
    loadFamilies();
    show();
    m_clock->run(100ms);
    m_overlay->close();
    EXPECT_THAT(m_ends, ElementsAre(End::absent));
    EXPECT_TRUE(overlayIsGone());
    EXPECT_FALSE(m_clock->isRunning());
}

TEST_F(Onboarding, GoesWithItsWindowAndItsControllerWithoutAWord)
{
    loadFamilies();
    show();
    m_clock->run(200ms);
    m_window.reset();
    EXPECT_FALSE(m_overlay);
    EXPECT_FALSE(m_clock->isRunning());
    m_controller.reset();

    m_window = std::make_unique<QMainWindow>();
    m_window->show();
    show();
    m_clock->run(200ms);
    m_controller.reset();
    EXPECT_FALSE(m_overlay);
    EXPECT_THAT(m_ends, IsEmpty());
}

TEST_F(Onboarding, FollowsTheWindowInMidFall)
{
    loadFamilies();
    show();
    ASSERT_TRUE(runUntil([this] { return letters() > 20; }));
    for (const QRect rect : {QRect(20, 10, 1200, 700), QRect(0, 0, 320, 240)}) {
        m_window->setGeometry(rect);
        ASSERT_TRUE(test::waitUntil([&] { return m_overlay->geometry() == rect; }));
        m_clock->run(64ms);
    }
    ASSERT_TRUE(runUntil([this] { return showsCard() && !m_clock->isRunning(); }));
    EXPECT_TRUE(m_overlay->rect().contains(card()->geometry()));
    EXPECT_TRUE(
        card()->rect().contains(QRect(button()->mapTo(card(), QPoint()), button()->size())));
    for (int i = 0; i < letters(); ++i)
        EXPECT_LT(m_overlay->fall()->scene().bounds(i).bottom(), 242) << i;

    m_window->resize(400, 500);
    EXPECT_TRUE(test::waitUntil([this] { return m_clock->isRunning(); })) << "they fall on";
    EXPECT_TRUE(runUntil([this] { return !m_clock->isRunning(); }));
}

TEST_F(Onboarding, LiesInsideWhereWindowsCannotBePlaced)
{
    setReducedMotionOverride(false);
    auto *field = static_cast<QLineEdit *>(m_window->centralWidget());
    m_window->activateWindow();
    field->setFocus();
    bool isTriggered = false;
    QAction action;
    action.setShortcut(Qt::CTRL | Qt::Key_F);
    m_window->addAction(&action);
    QObject::connect(&action, &QAction::triggered, [&] { isTriggered = true; });

    m_overlay = new OnboardingOverlay(*m_window, OnboardingOverlay::Placement::inside,
                                      {QStringLiteral("One."), QStringLiteral("Continue")}, m_clock,
                                      [this](End end) { m_ends.push_back(end); });
    m_overlay->begin(nullptr);
    m_clock->run(600ms);
    m_window->resize(1000, 900);
    EXPECT_TRUE(test::waitUntil([this] { return m_overlay->rect() == m_window->rect(); }));
    QTest::keyClick(m_window->windowHandle(), Qt::Key_F, Qt::ControlModifier);
    EXPECT_FALSE(isTriggered);
    field->setFocus();
    EXPECT_EQ(QApplication::focusWidget(), button()) << "nothing below takes the keyboard";

    QTest::keyClick(m_window->windowHandle(), Qt::Key_Return);
    EXPECT_THAT(m_ends, ElementsAre(End::continued));
    EXPECT_EQ(QApplication::focusWidget(), field);
    m_clock->run(176ms);
    EXPECT_TRUE(m_overlay->isVisible());
    m_clock->run(400ms);
    EXPECT_TRUE(overlayIsGone());
}

TEST_F(Onboarding, StandsStillForAPicture)
{
    setReducedMotionOverride(true);
    loadFamilies();
    show();
    m_controller->settleForPicture(false);
    EXPECT_FALSE(showsCard());
    EXPECT_EQ(letters(), 40);
    EXPECT_TRUE(m_overlay->fall()->isAtRest());
    m_controller->settleForPicture(true);
    EXPECT_TRUE(showsCard());
    EXPECT_FALSE(m_clock->isRunning());
}

} // namespace
} // namespace lorva
