// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT

#include "app/LaunchOptions.h"

#include <gmock/gmock.h>

namespace lorva {
namespace {

Result<LaunchOptions> parse(std::initializer_list<const char *> arguments)
{
    return parseLaunchOptions({arguments.begin(), arguments.size()}, FilePath("/here"));
}

TEST(LaunchOptions, TakesPathsFromTheWorkingFolderAndBytesAsTheyAre)
{
    const auto options =
        parse({"--screenshot", "shot.png", "--folder=/fonts", "--folder", "b\xff"});
    ASSERT_TRUE(options.has_value());
    EXPECT_EQ(options->screenshot, FilePath("/here/shot.png"));
    EXPECT_THAT(options->folders,
                ::testing::ElementsAre(FilePath("/fonts"), FilePath("/here/b\xff")));
}

TEST(LaunchOptions, ReadsHowTheWindowStarts)
{
    const auto options = parse({"--view=list", "--color", "black", "--point-size=58",
                                "--window-size", "960x800", "--text", "Ship it"});
    ASSERT_TRUE(options.has_value());
    EXPECT_EQ(options->viewMode, ViewMode::list);
    EXPECT_EQ(options->colorMode, ColorMode::black);
    EXPECT_EQ(options->pointSize, 58);
    EXPECT_EQ(options->windowSize, QSize(960, 800));
    EXPECT_EQ(options->sampleText, QStringLiteral("Ship it"));
}

TEST(LaunchOptions, RefusesWhatItDoesNotUnderstand)
{
    const struct
    {
        std::initializer_list<const char *> arguments;
        const char *named;
    } rows[]{
        {{"--colour", "black"}, "--colour"},
        {{"stray"}, "stray"},
        {{"--screenshot"}, "--screenshot"},
        {{"--screenshot="}, "--screenshot"},
        {{"--view", "tiles"}, "--view"},
        {{"--window-size", "960"}, "--window-size"},
        {{"--window-size", "0x10"}, "--window-size"},
        {{"--window-size", "99999x10"}, "--window-size"},
        {{"--point-size", "nan"}, "--point-size"},
        {{"--point-size", "-3"}, "--point-size"},
        {{"--color", "red"}, "--color"},
    };
    for (const auto &row : rows) {
        const auto options = parse(row.arguments);
        ASSERT_FALSE(options.has_value()) << row.named;
        EXPECT_EQ(options.error().kind, ErrorKind::usage);
        EXPECT_THAT(options.error().detail.toStdString(), ::testing::HasSubstr(row.named));
        EXPECT_FALSE(options.error().detail.contains(u'\n'));
    }
}

} // namespace
} // namespace lorva
