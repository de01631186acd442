// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#include "base/AtomicFile.h"

#include "support/AdverseSystem.h"

#include <csignal>
#include <filesystem>

#include <fcntl.h>
#include <sys/wait.h>

namespace lorva {

namespace {

using test::makeCaseFolder;
using test::readFile;
using test::TestHome;
using test::writeFile;

/// By the system's own listing: Qt's leaves out names that are no UTF-8.
std::vector<std::string> namesIn(const FilePath &folder)
{
    std::vector<std::string> names;
    for (const auto &entry : std::filesystem::directory_iterator(folder.c_str()))
        names.push_back(entry.path().filename());
    return names;
}

mode_t permissionsOf(const FilePath &path)
{
    struct stat info
    {
    };
    EXPECT_EQ(::stat(path.c_str(), &info), 0);
    return info.st_mode & 07777;
}

TEST(AtomicFile, WritesAndReplaces)
{
    const FilePath folder = makeCaseFolder();
    const FilePath path = folder.child("na\xFFme.json"); // no UTF-8
    ASSERT_TRUE(writeFileAtomically(path, "one"));
    EXPECT_EQ(readFile(path), "one");
    const QByteArray big(3'000'000, 'x');
    ASSERT_TRUE(writeFileAtomically(path, big));
    EXPECT_EQ(readFile(path), big);
    ASSERT_TRUE(writeFileAtomically(path, {}));
    EXPECT_EQ(readFile(path), "");
    EXPECT_EQ(namesIn(folder).size(), 1U);
    ::unlink(path.c_str()); // QTemporaryDir could not
}

TEST(AtomicFile, KeepsPermissionsAndLinks)
{
    const FilePath folder = makeCaseFolder();
    const FilePath path = writeFile(folder, "real", "old");
    ::chmod(path.c_str(), 0640);
    const FilePath link = folder.child("link");
    ASSERT_EQ(::symlink("real", link.c_str()), 0);
    ASSERT_TRUE(writeFileAtomically(link, "new"));
    EXPECT_EQ(readFile(path), "new");
    EXPECT_EQ(permissionsOf(path), mode_t(0640));
    char target[16]{};
    EXPECT_EQ(::readlink(link.c_str(), target, sizeof target), 4);
}

TEST(AtomicFile, ReplacesALinkThatLeadsNowhere)
{
    const FilePath folder = makeCaseFolder();
    const FilePath link = folder.child("link");
    ASSERT_EQ(::symlink("/nowhere/at/all", link.c_str()), 0);
    ASSERT_TRUE(writeFileAtomically(link, "new"));
    EXPECT_EQ(readFile(link), "new");
}

TEST(AtomicFile, FailsWithoutItsFolder)
{
    const FilePath path = TestHome::instance().root().child("missing").child("file");
    const Result<void> result = writeFileAtomically(path, "x");
    ASSERT_FALSE(result);
    EXPECT_EQ(result.error().kind, ErrorKind::notFound);
    EXPECT_TRUE(result.error().detail.startsWith(u"cannot write "));
    EXPECT_TRUE(result.error().detail.contains(path.displayText()));
}

TEST(AtomicFile, FailsOverAFolderAndLeavesNothingBehind)
{
    const FilePath folder = makeCaseFolder();
    const FilePath target = folder.child("target");
    ASSERT_EQ(::mkdir(target.c_str(), 0700), 0);
    const Result<void> result = writeFileAtomically(target, "x");
    ASSERT_FALSE(result);
    EXPECT_EQ(result.error().kind, ErrorKind::notRegularFile);
    EXPECT_EQ(namesIn(folder), std::vector<std::string>{"target"});
}

TEST(AtomicFile, LeavesPipesAndDevicesInTheirPlace)
{
    const FilePath folder = makeCaseFolder();
    const FilePath pipe = folder.child("pipe");
    ASSERT_EQ(::mkfifo(pipe.c_str(), 0600), 0);
    const FilePath link = folder.child("link");
    ASSERT_EQ(::symlink("pipe", link.c_str()), 0);
    for (const FilePath &path : {pipe, link}) {
        const Result<void> result = writeFileAtomically(path, "x");
        ASSERT_FALSE(result);
        EXPECT_EQ(result.error().kind, ErrorKind::notRegularFile);
    }
    struct stat info;
    ASSERT_EQ(::lstat(pipe.c_str(), &info), 0);
    EXPECT_TRUE(S_ISFIFO(info.st_mode));
    EXPECT_EQ(namesIn(folder).size(), 2U);
}

TEST(AtomicFile, FailsInAReadOnlyFolderAndKeepsTheOldFile)
{
    const FilePath folder = makeCaseFolder();
    const FilePath path = writeFile(folder, "file", "old");
    ::chmod(path.c_str(), 0666);
    ::chmod(folder.c_str(), 0555);
    {
        const test::AsOrdinaryUser user;
        const Result<void> result = writeFileAtomically(path, "new");
        ASSERT_FALSE(result);
        EXPECT_EQ(result.error().kind, ErrorKind::permissionDenied);
    }
    ::chmod(folder.c_str(), 0755);
    EXPECT_EQ(readFile(path), "old");
    EXPECT_EQ(namesIn(folder).size(), 1U);
}

TEST(AtomicFile, FailsOnAFullDiskAndKeepsTheOldFile)
{
    const FilePath folder = makeCaseFolder();
    const FilePath path = writeFile(folder, "file", "old");
    const auto result = [&] {
        const test::FullDisk disk(4096);
        return writeFileAtomically(path, QByteArray(10000, 'x'));
    }();
    ASSERT_FALSE(result);
    EXPECT_EQ(result.error().kind, ErrorKind::tooLarge);
    EXPECT_EQ(readFile(path), "old");
    EXPECT_EQ(namesIn(folder).size(), 1U);
}

TEST(AtomicFile, LeavesNothingBehindWhenKilledInTheMiddle)
{
    const FilePath folder = makeCaseFolder();
    const FilePath path = writeFile(folder, "file", "old");
    const int unnamed = ::open(folder.c_str(), O_TMPFILE | O_WRONLY | O_CLOEXEC, 0600);
    if (unnamed < 0)
        GTEST_SKIP() << "this file system knows no files without a name";
    ::close(unnamed);
    const pid_t child = ::fork();
    if (child == 0) {
        const test::FullDisk disk(4096);
        ::signal(SIGXFSZ, SIG_DFL);
        writeFileAtomically(path, QByteArray(10000, 'x'));
        ::_exit(0);
    }
    int status = 0;
    ASSERT_EQ(::waitpid(child, &status, 0), child);
    EXPECT_TRUE(WIFSIGNALED(status)) << "it died while it wrote";
    EXPECT_EQ(namesIn(folder), std::vector<std::string>{"file"});
    EXPECT_EQ(readFile(path), "old");
}

} // namespace

} // namespace lorva
