// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT

#include "app/LaunchOptions.h"
#include "ui/display/BackgroundImages.h"

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

TEST(LaunchOptions, ReadsWhatTheWindowShowsFirst)
{
    const auto options = parse({"--appearance",
                                "dark",
                                "--search",
                                "sans",
                                "--select",
                                "Noto Sans",
                                "--weight=700",
                                "--color",
                                "image",
                                "--image",
                                builtInBackgroundImages().back().id,
                                "--logo",
                                "l.svg",
                                "--source",
                                "collection:A: b",
                                "--sheet",
                                "deactivate",
                                "--detail",
                                "Inter",
                                "--stage=waterfall",
                                "--inspector",
                                "info",
                                "--quiz",
                                "playing",
                                "--welcome=card",
                                "--no-welcome"});
    ASSERT_TRUE(options.has_value());
    EXPECT_EQ(options->isDark, true);
    EXPECT_EQ(options->sheet, LaunchSheet::deactivate);
    EXPECT_EQ(options->detailFamily, QStringLiteral("Inter"));
    EXPECT_EQ(options->detailStage, DetailStage::waterfall);
    EXPECT_EQ(options->inspectorTab, FontInspectorViewController::Tab::info);
    EXPECT_EQ(options->quiz, LaunchQuiz::playing);
    EXPECT_EQ(options->welcome, LaunchWelcome::card);
    EXPECT_TRUE(options->skipsWelcome);
    EXPECT_EQ(options->searchText, QStringLiteral("sans"));
    EXPECT_EQ(options->selectedFamily, QStringLiteral("Noto Sans"));
    EXPECT_EQ(options->weight, 700);
    EXPECT_EQ(options->colorMode, ColorMode::image);
    EXPECT_EQ(options->backgroundImageID, QLatin1StringView(builtInBackgroundImages().back().id));
    EXPECT_EQ(options->logo, FilePath("/here/l.svg"));
    using Kind = BrowserSource::Kind;
    EXPECT_EQ(options->source, (LaunchSource{Kind::collection, QStringLiteral("A: b")}));
    const struct
    {
        const char *value;
        Kind kind;
    } sources[]{{"all", Kind::allFonts},      {"active", Kind::active},
                {"inactive", Kind::inactive}, {"style:x", Kind::style},
                {"foundry:x", Kind::foundry}, {"discover", Kind::discover}};
    for (const auto &row : sources) {
        const auto parsed = parse({"--source", row.value});
        ASSERT_TRUE(parsed.has_value()) << row.value;
        EXPECT_EQ(parsed->source->kind, row.kind) << row.value;
    }
}

TEST(LaunchOptions, TakesWhatIsToBeOpenedByPathOrAddress)
{
    const auto options = parse({"a b.ttf", "/fonts/\xff.otf", "file:///x%20y.ttc", "c:d.ttf",
                                "--appearance", "dark", "http://x.example/z.ttf", "--", "--view"});
    ASSERT_TRUE(options.has_value());
    EXPECT_THAT(options->places,
                ::testing::ElementsAre(FilePath("/here/a b.ttf"), FilePath("/fonts/\xff.otf"),
                                       FilePath("/x y.ttc"), FilePath("/here/c:d.ttf"),
                                       FilePath("/here/--view")));
    EXPECT_EQ(options->foreignPlaces, QStringList("http://x.example/z.ttf"));
    EXPECT_TRUE(opensPlacesAlone(*options)) << "of the library nothing is said";
    EXPECT_FALSE(opensPlacesAlone(*parse({"a.ttf", "--search", "x"})));
    EXPECT_FALSE(opensPlacesAlone(*parse({"--folder", "a"})));
    EXPECT_TRUE(opensPlacesAlone(*parse({"file://elsewhere/a.ttf"})));
    EXPECT_EQ(parse({"trash:/a/b.ttf"})->foreignPlaces, QStringList("trash:/a/b.ttf"));
    EXPECT_FALSE(parse({"a.ttf"})->windowSize) << "the window's own";
}

TEST(LaunchOptions, RefusesWhatItDoesNotUnderstand)
{
    const struct
    {
        std::initializer_list<const char *> arguments;
        const char *named;
    } rows[]{
        {{"--colour", "black"}, "--colour"},
        {{"-x"}, "-x"},
        {{"--screenshot"}, "--screenshot"},
        {{"--screenshot="}, "--screenshot"},
        {{"--view", "tiles"}, "--view"},
        {{"--window-size", "960"}, "--window-size"},
        {{"--window-size", "0x10"}, "--window-size"},
        {{"--window-size", "99999x10"}, "--window-size"},
        {{"--point-size", "nan"}, "--point-size"},
        {{"--point-size", "-3"}, "--point-size"},
        {{"--color", "red"}, "--color"},
        {{"--appearance", "grey"}, "--appearance"},
        {{"--weight", "50"}, "--weight"},
        {{"--weight", "bold"}, "--weight"},
        {{"--image", "nowhere"}, "--image"},
        {{"--source", "discover:x"}, "--source"},
        {{"--quiz", "done"}, "--quiz"},
        {{"--welcome", "off"}, "--welcome"},
        {{"--no-welcome=yes"}, "--no-welcome"},
        {{"--source", "style"}, "--source"},
        {{"--source", "style:"}, "--source"},
        {{"--source", "all:x"}, "--source"},
        {{"--sheet", "quiz"}, "--sheet"},
        {{"--stage", "grid"}, "--stage"},
        {{"--inspector", "off"}, "--inspector"},
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
