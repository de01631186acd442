// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#include "model/stores/WindowFrameStore.h"
#include "model/stores/WindowGeometry.h"
#include "platform/MemoryPreferenceStore.h"

#include <gmock/gmock.h>

namespace lorva {
namespace {

struct Opening
{
    const char *what;
    std::optional<QRect> saved;
    QRect visibleFrame;
    QRect expected;
};

void PrintTo(const Opening &row, std::ostream *out)
{
    *out << row.what;
}

class MainWindowFrame : public testing::TestWithParam<Opening>
{
};

TEST_P(MainWindowFrame, opensWhereItShould)
{
    const QRect frame = mainWindowFrame(GetParam().saved, GetParam().visibleFrame);
    EXPECT_EQ(windowFrameText(frame), windowFrameText(GetParam().expected));
}

INSTANTIATE_TEST_SUITE_P(
    Screens, MainWindowFrame,
    testing::Values(
        Opening{"roomy", {}, {0, 0, 2560, 1440}, {420, 260, 1720, 920}},
        Opening{"laptop", {}, {0, 0, 1440, 860}, {20, 20, 1400, 820}},
        Opening{"besidePanels", {}, {60, 30, 1380, 1000}, {80, 70, 1340, 920}},
        Opening{"secondScreenLeft", {}, {-1920, 0, 1920, 1080}, {-1820, 80, 1720, 920}},
        Opening{"tooSmall", {}, {0, 0, 900, 700}, {-30, -50, 960, 800}},
        Opening{"tooNarrow", {}, {0, 0, 800, 1200}, {-80, 140, 960, 920}},
        Opening{"tooSmallForTheMargin", {}, {0, 0, 30, 30}, {-465, -385, 960, 800}},
        Opening{"noScreen", {}, {}, {-860, -460, 1720, 920}},
        Opening{"savedStands", {{10, 20, 1000, 900}}, {0, 0, 1440, 860}, {10, 20, 1000, 900}},
        Opening{"savedStandsOffTheScreen",
                {{5000, 20, 1000, 900}},
                {0, 0, 1440, 860},
                {5000, 20, 1000, 900}},
        Opening{"savedGrowsInOneDirection",
                {{10, 20, 2000, 500}},
                {0, 0, 2560, 1440},
                {280, 320, 2000, 800}}),
    [](const auto &opening) { return opening.param.what; });

TEST(WindowFrameStore, aFrameOutlivesTheStore)
{
    MemoryPreferenceStore preferences;
    EXPECT_EQ(WindowFrameStore(preferences).load(), std::nullopt);
    WindowFrameStore(preferences).save({-1900, 20, 1000, 900});
    EXPECT_EQ(WindowFrameStore(preferences).load(), QRect(-1900, 20, 1000, 900));
    WindowFrameStore(preferences).save({});
    EXPECT_EQ(WindowFrameStore(preferences).load(), QRect(-1900, 20, 1000, 900));
    EXPECT_EQ(preferences.string("vantrel.merid.windowFrame.LorvaMainWindow"), "-1900 20 1000 900");
}

TEST(WindowFrameStore, damageIsNoFrame)
{
    for (const char *const text : {"", "1 2 3", "1 2 3 4 5", "1 2 3 x", "1  2 3 4", " 1 2 3 4",
                                   "1 2 3 4 ", "1.5 2 3 4", "+1 2 3 4", "1 2 0 4", "1 2 3 -4",
                                   "1 2 99999 4", "1 2 99999999999 4", "-2147483648 0 960 800"})
        EXPECT_EQ(windowFrameFromText(QString::fromLatin1(text)), std::nullopt) << text;
}

} // namespace
} // namespace lorva
