// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT

#include "ui/onboarding/WindowReveal.h"
#include "support/Waiting.h"
#include "ui/onboarding/Spring.h"
#include "ui/style/ReducedMotion.h"

#include <QMainWindow>
#include <QVariantAnimation>

#include <gmock/gmock.h>

namespace lorva {
namespace {

using testing::DoubleNear;

TEST(Spring, FollowsTheEquationOfMotionAndSettles)
{
    const Spring spring{20, 180, 1};
    EXPECT_THAT(spring.progress(0), DoubleNear(0, 1e-12));
    // m·x″ + c·x′ + k·(x − 1) = 0, by differences.
    const double h = 1e-4;
    double farthest = 0;
    for (double t = h; t < 1.0; t += 0.01) {
        const double before = spring.progress(t - h);
        const double here = spring.progress(t);
        const double after = spring.progress(t + h);
        const double force = (after - 2 * here + before) / (h * h) + 20 * (after - before) / (2 * h)
            + 180 * (here - 1);
        EXPECT_THAT(force, DoubleNear(0, 1e-3)) << t;
        farthest = std::max(farthest, here);
    }
    EXPECT_GT(farthest, 1.01) << "it swings over";
    EXPECT_LT(farthest, 1.05);

    const double settled = spring.settlingSeconds();
    EXPECT_GT(settled, 0.5);
    for (double t = settled; t < settled + 1; t += 0.005)
        EXPECT_THAT(spring.progress(t), DoubleNear(1, 0.001)) << t;
}

class WindowReveal : public testing::Test
{
protected:
    WindowReveal()
        : m_content(new QWidget)
    {
        m_window.setCentralWidget(m_content);
        concealWindow(m_window);
        m_window.show();
    }
    QList<QVariantAnimation *> animations() const
    {
        return m_window.findChildren<QVariantAnimation *>(QStringLiteral("mainWindowReveal"));
    }

    QMainWindow m_window;
    QWidget *m_content;
};

TEST_F(WindowReveal, FadesInWhileTheContentSpringsUpAndLeavesNothingBehind)
{
    setReducedMotionOverride(false);
    EXPECT_EQ(m_window.windowOpacity(), 0.0);
    revealWindow(m_window, *m_content);
    ASSERT_EQ(animations().size(), 2);
    EXPECT_EQ(animations().at(0)->duration(), 700);
    EXPECT_EQ(animations().at(1)->duration(), int(Spring().settlingSeconds() * 1000));
    EXPECT_TRUE(m_content->graphicsEffect());

    for (QVariantAnimation *animation : animations())
        animation->setCurrentTime(animation->duration() / 2);
    // Ease out: more than half is done in half of the time.
    EXPECT_GT(m_window.windowOpacity(), 0.55);
    EXPECT_LT(m_window.windowOpacity(), 1.0);
    EXPECT_FALSE(m_window.grab().isNull());

    EXPECT_TRUE(test::waitUntil([this] { return animations().isEmpty(); }));
    EXPECT_EQ(m_window.windowOpacity(), 1.0);
    EXPECT_FALSE(m_content->graphicsEffect());
}

TEST_F(WindowReveal, IsThereAtOnceWhereNothingIsToMove)
{
    setReducedMotionOverride(true);
    revealWindow(m_window, *m_content);
    EXPECT_EQ(m_window.windowOpacity(), 1.0);
    EXPECT_TRUE(animations().isEmpty());
}

TEST_F(WindowReveal, OutlivesItsContent)
{
    setReducedMotionOverride(false);
    revealWindow(m_window, *m_content);
    delete m_content;
    EXPECT_TRUE(test::waitUntil([this] { return animations().isEmpty(); }));
    EXPECT_EQ(m_window.windowOpacity(), 1.0);
}

} // namespace
} // namespace lorva
