// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#include "platform/linux/DesktopTrash.h"

#include "support/AdverseSystem.h"

#include <QDateTime>

#include <gmock/gmock.h>

#include <climits>
#include <cstdlib>
#include <filesystem>

#include <sys/stat.h>
#include <unistd.h>

namespace lorva {
namespace {

using test::readFile;
using test::writeFile;
using testing::MatchesRegex;

constexpr char kDate[] = "DeletionDate=[0-9]+-[0-9]+-[0-9]+T[0-9]+:[0-9]+:[0-9]+\n";

bool isThere(const FilePath &path)
{
    struct stat info;
    return ::lstat(path.c_str(), &info) == 0;
}

size_t entryCount(const FilePath &folder)
{
    std::error_code error;
    const std::filesystem::directory_iterator entries(folder.c_str(), error);
    return error ? 0 : size_t(std::distance(begin(entries), end(entries)));
}

class DesktopTrashTest : public testing::Test
{
protected:
    const FilePath folder = test::makeCaseFolder();
    const FilePath home = test::TestHome::instance().userFonts().parent().child("Trash");
    DesktopTrash trash;
};

TEST_F(DesktopTrashTest, NotesWhereAFileWasAndWhen)
{
    const FilePath file = writeFile(folder, "Größe 100%\xff.otf", "bytes");
    const QDateTime before = QDateTime::currentDateTime().addSecs(-1);
    ASSERT_TRUE(trash.moveToTrash(file));
    EXPECT_FALSE(isThere(file));
    EXPECT_EQ(readFile(home.child("files").child(file.fileName())), "bytes");

    const QByteArray note =
        readFile(home.child("info").child(QByteArray(file.fileName() + ".trashinfo")));
    const QByteArray start =
        "[Trash Info]\nPath=" + folder.bytes() + "/Gr%C3%B6%C3%9Fe%20100%25%FF.otf\nDeletionDate=";
    ASSERT_TRUE(note.startsWith(start)) << note.constData();
    const QDateTime date =
        QDateTime::fromString(QString::fromLatin1(note.mid(start.size()).trimmed()), Qt::ISODate);
    EXPECT_TRUE(date >= before && date <= QDateTime::currentDateTime()) << note.constData();
    std::filesystem::remove_all(home.c_str()); // the home of the test cannot remove such names
}

TEST_F(DesktopTrashTest, KeepsBothFilesOfOneName)
{
    // Left by a program that wrote no note: it stays, too.
    ::mkdir(home.c_str(), 0700);
    writeFile(home.child("files"), "font 2.otf", "stray");
    for (const char *const bytes : {"one", "two", "three"})
        EXPECT_TRUE(trash.moveToTrash(writeFile(folder, "font.otf", bytes)));
    const FilePath files = home.child("files");
    EXPECT_EQ(readFile(files.child("font.otf")), "one");
    EXPECT_EQ(readFile(files.child("font 2.otf")), "stray");
    EXPECT_EQ(readFile(files.child("font 3.otf")), "two");
    EXPECT_EQ(readFile(files.child("font 4.otf")), "three");
    EXPECT_EQ(entryCount(home.child("info")), 3U);
    EXPECT_THAT(readFile(home.child("info").child("font 4.otf.trashinfo")).toStdString(),
                MatchesRegex("\\[Trash Info\\]\nPath=.*/font.otf\n" + std::string(kDate)));

    const QByteArray longest = QByteArray(251, 'x') + ".otf";
    for (int i = 0; i < 2; ++i)
        EXPECT_TRUE(trash.moveToTrash(writeFile(folder, longest, "long")));
    EXPECT_EQ(entryCount(home.child("info")), 5U);
    EXPECT_EQ(entryCount(files), 6U);
}

TEST_F(DesktopTrashTest, MovesLinksAndNotWhatTheyLeadTo)
{
    const FilePath target = writeFile(folder, "target.otf", "bytes");
    const FilePath link = folder.child("link.otf");
    const FilePath dangling = folder.child("dangling.otf");
    ASSERT_EQ(::symlink(target.c_str(), link.c_str()), 0);
    ASSERT_EQ(::symlink("/nowhere", dangling.c_str()), 0);
    for (const FilePath &path : {link, dangling}) {
        EXPECT_TRUE(trash.moveToTrash(path));
        EXPECT_FALSE(isThere(path));
        char buffer[PATH_MAX];
        EXPECT_GT(
            ::readlink(home.child("files").child(path.fileName()).c_str(), buffer, sizeof buffer),
            0);
    }
    EXPECT_EQ(readFile(target), "bytes");
}

TEST_F(DesktopTrashTest, WhatCannotGoStaysWhereItIs)
{
    const FilePath file = writeFile(folder, "font.otf", "bytes");
    EXPECT_EQ(trash.moveToTrash(folder.child("missing")).error().kind, ErrorKind::notFound);
    ::chmod(folder.c_str(), 0555);
    ::chmod(home.parent().c_str(), 0777);
    for (FilePath above = home.parent(); above.isInside(test::TestHome::instance().root());
         above = above.parent())
        ::chmod(above.c_str(), 0777);
    {
        const test::AsOrdinaryUser nobody;
        EXPECT_EQ(trash.moveToTrash(file).error().kind, ErrorKind::permissionDenied);
        EXPECT_EQ(entryCount(home.child("info")), 0U);
    }
    std::filesystem::remove_all(home.c_str());
    ::chmod(folder.c_str(), 0755);
    {
        const test::FullDisk full(8);
        EXPECT_EQ(trash.moveToTrash(file).error().kind, ErrorKind::ioFailure);
    }
    EXPECT_EQ(entryCount(home.child("info")), 0U);
    std::filesystem::remove_all(home.c_str());
    writeFile(home.parent(), "Trash", "a file has the name");
    EXPECT_EQ(trash.moveToTrash(file).error().kind, ErrorKind::unsupported);
    EXPECT_EQ(readFile(file), "bytes");
}

TEST_F(DesktopTrashTest, GivesBackWhatItWasGiven)
{
    const QByteArray longName = QByteArray(251, 'x') + ".otf";
    for (const QByteArray &name :
         {QByteArray("font.otf"), QByteArray("font.otf"), QByteArray("\xff%20\n.otf"), longName}) {
        const FilePath file = writeFile(folder, name, "bytes");
        const Result<FilePath> place = trash.moveToTrash(file);
        ASSERT_TRUE(place);
        EXPECT_EQ(readFile(*place), "bytes");
        const FilePath back = folder.child("back.otf");
        EXPECT_TRUE(trash.takeFromTrash(*place, back));
        EXPECT_EQ(readFile(back), "bytes");
        EXPECT_EQ(entryCount(home.child("info")), 0U);
        EXPECT_EQ(trash.takeFromTrash(*place, file).error().kind, ErrorKind::notFound) << "twice";
        ASSERT_EQ(::unlink(back.c_str()), 0);
    }
    const FilePath link = folder.child("link.otf");
    ASSERT_EQ(::symlink("relative", link.c_str()), 0);
    ASSERT_TRUE(trash.takeFromTrash(trash.moveToTrash(link).value(), link));
    char target[PATH_MAX];
    EXPECT_EQ(QByteArray(target, ::readlink(link.c_str(), target, sizeof target)), "relative");
    ::unlink(link.c_str());
}

TEST_F(DesktopTrashTest, WhatCannotBeGivenBackStaysInIt)
{
    const FilePath file = writeFile(folder, "font.otf", "bytes");
    const FilePath place = trash.moveToTrash(file).value();
    const FilePath other = writeFile(folder, "other.otf", "other");
    const FilePath dangling = folder.child("dangling.otf");
    const FilePath locked = folder.child("locked");
    ASSERT_EQ(::symlink("/nowhere", dangling.c_str()), 0);
    ::mkdir(locked.c_str(), 0555);
    const struct
    {
        const char *what;
        FilePath from;
        FilePath to;
        ErrorKind kind;
    } rows[]{
        {"taken", place, other, ErrorKind::invalidValue},
        {"taken by a link to nothing", place, dangling, ErrorKind::invalidValue},
        {"taken by a folder", place, folder, ErrorKind::invalidValue},
        {"no such folder", place, folder.child("none").child("font.otf"), ErrorKind::ioFailure},
        {"below a file", place, other.child("font.otf"), ErrorKind::ioFailure},
        {"not in it", place.parent().child("none"), file, ErrorKind::notFound},
        {"no place in a Trash", other, file, ErrorKind::notFound},
        {"nothing", FilePath(), file, ErrorKind::notFound},
    };
    for (const auto &row : rows) {
        const Result<void> taken = trash.takeFromTrash(row.from, row.to);
        ASSERT_FALSE(taken) << row.what;
        EXPECT_EQ(taken.error().kind, row.kind) << row.what;
        EXPECT_FALSE(taken.error().detail.isEmpty());
    }
    for (FilePath above = place.parent(); above.isInside(test::TestHome::instance().root());
         above = above.parent())
        ::chmod(above.c_str(), 0777);
    {
        const test::AsOrdinaryUser nobody;
        EXPECT_EQ(trash.takeFromTrash(place, locked.child("font.otf")).error().kind,
                  ErrorKind::permissionDenied);
    }
    EXPECT_EQ(readFile(place), "bytes");
    EXPECT_EQ(readFile(other), "other");
    EXPECT_EQ(entryCount(home.child("info")), 1U) << "its note stays, too";
    std::filesystem::remove_all(home.c_str());
}

/// A folder in memory stands for a volume; its top is what the case says.
class VolumeTrashTest : public DesktopTrashTest
{
protected:
    void SetUp() override
    {
        char name[] = "/dev/shm/lorva-test-XXXXXX";
        struct stat own;
        struct stat other;
        if (!::mkdtemp(name))
            GTEST_SKIP() << "no memory file system here";
        top = FilePath(name);
        if (::stat(folder.c_str(), &own) != 0 || ::stat(name, &other) != 0
            || own.st_dev == other.st_dev)
            GTEST_SKIP() << "no other file system here";
        below = writeFile(top.child("fonts"), "a b.otf", "bytes");
    }
    void TearDown() override
    {
        if (!top.isEmpty())
            std::filesystem::remove_all(top.c_str());
    }
    void expectTrashed(const FilePath &place)
    {
        EXPECT_EQ(volumeTrash.moveToTrash(below), place.child("files").child("a b.otf"));
        EXPECT_FALSE(isThere(below));
        EXPECT_EQ(readFile(place.child("files").child("a b.otf")), "bytes");
        EXPECT_THAT(readFile(place.child("info").child("a b.otf.trashinfo")).toStdString(),
                    MatchesRegex("\\[Trash Info\\]\nPath=fonts/a%20b.otf\n" + std::string(kDate)));
        EXPECT_FALSE(isThere(home));
        EXPECT_TRUE(volumeTrash.takeFromTrash(place.child("files").child("a b.otf"), below));
        EXPECT_EQ(readFile(below), "bytes");
        EXPECT_EQ(entryCount(place.child("info")), 0U);
    }

    const QByteArray user = QByteArray::number(::geteuid());
    FilePath top;
    FilePath below;
    DesktopTrash volumeTrash{[this](const FilePath &) { return top; }};
};

TEST_F(VolumeTrashTest, IsMadeForTheUserAlone)
{
    const FilePath own = top.child(QByteArray(".Trash-" + user));
    expectTrashed(own);
    struct stat info;
    ASSERT_EQ(::stat(own.c_str(), &info), 0);
    EXPECT_EQ(info.st_mode & 07777, 0700U);
}

TEST_F(VolumeTrashTest, IsTheSharedOneWhereThatIsSafe)
{
    ::mkdir(top.child(".Trash").c_str(), 0777);
    ::chmod(top.child(".Trash").c_str(), 01777);
    expectTrashed(top.child(".Trash").child(user));
}

TEST_F(VolumeTrashTest, IsNeverOneThatOthersPrepared)
{
    const FilePath trap = test::TestHome::instance().makeFolder("trap");
    ::chmod(trap.c_str(), 01777);
    ASSERT_EQ(::symlink(trap.c_str(), top.child(".Trash").c_str()), 0);
    ASSERT_EQ(::symlink(trap.c_str(), top.child(QByteArray(".Trash-" + user)).c_str()), 0);
    EXPECT_EQ(volumeTrash.moveToTrash(below).error().kind, ErrorKind::unsupported);
    EXPECT_EQ(readFile(below), "bytes");
    EXPECT_EQ(entryCount(trap), 0U);
    EXPECT_FALSE(isThere(home));

    // Without the sticky bit one user could take what another threw away.
    ::unlink(top.child(".Trash").c_str());
    ::unlink(top.child(QByteArray(".Trash-" + user)).c_str());
    ::mkdir(top.child(".Trash").c_str(), 0777);
    expectTrashed(top.child(QByteArray(".Trash-" + user)));
}

TEST_F(VolumeTrashTest, FindsTheTopOfAVolume)
{
    EXPECT_EQ(DesktopTrash::topOfVolume(below.parent()), FilePath("/dev/shm"));
}

} // namespace
} // namespace lorva
