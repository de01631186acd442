// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT

#include "commands/ScanProgress.h"

#include <QDir>

#include <gmock/gmock.h>

namespace lorva {
namespace {

TEST(ScanProgress, SaysHowFarAScanIs)
{
    const struct
    {
        FontScanPhase phase;
        const char *text;
        std::optional<double> fraction;
    } rows[]{
        {FontScanPhase::enumerating(0), "Finding fonts…", {}},
        {FontScanPhase::enumerating(12345), "Finding fonts… 12,345", {}},
        {FontScanPhase::scanning(0, 0), "Scanning 0 of 0 fonts", {}},
        {FontScanPhase::scanning(335, 1340), "Scanning 335 of 1,340 fonts", 0.25},
        {FontScanPhase::scanning(9, 3), "Scanning 9 of 3 fonts", 1.0},
        {FontScanPhase::identifying(1, 4), "Identifying fonts… 1 of 4", 0.25},
        {FontScanPhase::preparing(), "Preparing…", {}},
    };
    for (const auto &row : rows)
        EXPECT_EQ(scanProgress(row.phase),
                  (ProgressState{QString::fromUtf8(row.text), row.fraction}));
    EXPECT_EQ(scanBegins(), (ProgressState{QString::fromUtf8("Scanning fonts…"), {}}));
}

TEST(ScanProgress, SaysWhatItHasComeTo)
{
    const char *const some = "You can find them in your library.";
    const struct
    {
        int families;
        const char *title;
        const char *body;
    } rows[]{
        {0, "No new fonts added", "Lorva didn't find any new fonts in the selected location."},
        {1, "Added 1 font", some},
        {2, "Added 2 fonts", some},
        {1340, "Added 1,340 fonts", some},
    };
    for (const auto &row : rows)
        EXPECT_EQ(indexingCompletion(row.families),
                  (IndexingCompletion{QLatin1String(row.title), QLatin1String(row.body)}));
}

TEST(ScanProgress, NamesFoldersAsPeopleKnowThem)
{
    const FilePath home = FilePath::fromText(QDir::homePath());
    const FilePath namesake(home.bytes() + "s");
    EXPECT_EQ(folderText(home), QStringLiteral("~"));
    EXPECT_EQ(folderText(home.child("Type").child("Sans")), QStringLiteral("~/Type/Sans"));
    EXPECT_EQ(folderText(namesake), namesake.displayText());
    EXPECT_EQ(folderText(FilePath("/srv/a\xff")), QString::fromUtf8("/srv/a\xEF\xBF\xBD"));
}

TEST(ScanProgress, SaysWhyFoldersWereRefusedAndDoesNotGoOnForever)
{
    EXPECT_EQ(refusedFoldersText({}), QString());
    const std::map<FilePath, Error> failures{
        {FilePath("/a"), {ErrorKind::notFound, {}}},
        {FilePath("/b"), {ErrorKind::notRegularFile, {}}},
        {FilePath("/c"), {ErrorKind::permissionDenied, {}}},
        {FilePath("/d %1"), {ErrorKind::invalidValue, {}}},
        {FilePath("/e"), {ErrorKind::ioFailure, {}}},
    };
    EXPECT_EQ(
        refusedFoldersText(failures),
        QString::fromUtf8("“/a” is not there.\n"
                          "“/b” is not a folder.\n"
                          "You do not have permission to look into “/c”.\n"
                          "“/d %1” has a name that is not valid text, so it cannot be remembered.\n"
                          "“/e” could not be looked at."));
    std::map<FilePath, Error> many;
    for (char name = 'a'; name < 'i'; ++name)
        many.emplace(FilePath(QByteArray("/") + name), Error{ErrorKind::notFound, {}});
    const QStringList lines = refusedFoldersText(many).split(u'\n');
    ASSERT_EQ(lines.size(), 7);
    EXPECT_EQ(lines.back(), QStringLiteral("2 more folders could not be added."));
}

} // namespace
} // namespace lorva
