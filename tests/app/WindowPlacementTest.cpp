// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT

#include "app/WindowPlacement.h"
#include "app/SpecimenSizes.h"
#include "model/LorvaAppModel.h"
#include "ui/DetailActions.h"

#include <gmock/gmock.h>

namespace lorva {
namespace {

TEST(WindowPlacement, KeepsTheWindowWithinReach)
{
    const QRect left(-1920, 0, 1920, 1080);
    const QRect main(0, 30, 1440, 830);
    const struct
    {
        const char *what;
        QRect frame;
        std::vector<QRect> screens;
        QRect expected;
    } rows[]{
        {"as it was", {100, 100, 1000, 900}, {main}, {100, 100, 1000, 900}},
        {"partly out", {1300, 100, 1000, 900}, {main}, {1300, 100, 1000, 900}},
        {"on the other screen", {-1900, 20, 1000, 900}, {left, main}, {-1900, 20, 1000, 900}},
        {"that screen is gone", {-1900, 20, 1000, 900}, {main}, {220, 30, 1000, 900}},
        {"far away", {5000, 5000, 960, 800}, {left, main}, {240, 45, 960, 800}},
        {"nearest screen", {-5000, 0, 960, 800}, {left, main}, {-1440, 140, 960, 800}},
        {"title bar above the top", {100, -200, 1000, 900}, {main}, {220, 30, 1000, 900}},
        {"only a corner left", {1400, 100, 1000, 900}, {main}, {220, 30, 1000, 900}},
        {"larger than the screen", {3000, 0, 4000, 3000}, {main}, {0, 30, 4000, 3000}},
        {"no screen", {5000, 20, 1000, 900}, {}, {5000, 20, 1000, 900}},
    };
    for (const auto &row : rows)
        EXPECT_EQ(keptReachable(row.frame, row.screens), row.expected) << row.what;
}

TEST(WindowPlacement, TakesNoFrameThatNoDesktopHasRoomFor)
{
    const QRect whole(0, 0, 16384, 16384);
    EXPECT_EQ(plausibleFrame(whole), whole);
    EXPECT_EQ(plausibleFrame(QRect(0, 0, 16385, 800)), std::nullopt);
    EXPECT_EQ(plausibleFrame(QRect(0, 0, 960, 65535)), std::nullopt);
    EXPECT_EQ(plausibleFrame(std::nullopt), std::nullopt);
}

TEST(SpecimenSizes, GoUpAndDownTheSameSteps)
{
    double size = LorvaAppModel::kMinimumPointSize;
    EXPECT_EQ(smallerSpecimenSize(size), size);
    int steps = 0;
    for (double next = largerSpecimenSize(size); next != size; next = largerSpecimenSize(size)) {
        EXPECT_GT(next, size);
        EXPECT_EQ(smallerSpecimenSize(next), size);
        size = next;
        ASSERT_LT(++steps, 50);
    }
    EXPECT_EQ(size, DetailSession::kMaximumPointSize);
    EXPECT_EQ(largerSpecimenSize(LorvaAppModel::kMaximumPointSize - 1),
              LorvaAppModel::kMaximumPointSize)
        << "where the cards' sizes end";
    EXPECT_EQ(largerSpecimenSize(37), 42) << "from between two steps";
    EXPECT_EQ(smallerSpecimenSize(37), 36);
}

} // namespace
} // namespace lorva
