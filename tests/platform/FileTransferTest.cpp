// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#include "platform/FileTransfer.h"

#include "platform/NewFile.h"
#include "platform/RunLock.h"
#include "support/AdverseSystem.h"
#include "support/FailingDisk.h"

#include <gmock/gmock.h>

#include <cerrno>
#include <climits>
#include <cstdlib>
#include <filesystem>
#include <functional>

#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <sys/syscall.h>
#include <unistd.h>

namespace {

/// Called in the middle of every copy.
std::function<void()> duringCopy;
/// As on file systems that cannot rename otherwise.
bool renamingReplaces = false;

} // namespace

// A program's own functions come before those of the C library.
// NOLINTBEGIN(readability-inconsistent-declaration-parameter-name): the library's are reserved
extern "C" ssize_t copy_file_range(int in, off64_t *inOffset, int out, off64_t *outOffset,
                                   size_t length, unsigned flags)
{
    if (duringCopy)
        duringCopy();
    return ::syscall(SYS_copy_file_range, in, inOffset, out, outOffset, length, flags);
}

extern "C" int renameat2(int fromFolder, const char *from, int toFolder, const char *to,
                         unsigned flags) noexcept
{
    if (renamingReplaces && flags != 0) {
        errno = EINVAL;
        return -1;
    }
    return int(::syscall(SYS_renameat2, fromFolder, from, toFolder, to, flags));
}
// NOLINTEND(readability-inconsistent-declaration-parameter-name)

namespace lorva {
namespace {

using namespace std::chrono_literals;
using test::readFile;
using test::writeFile;

size_t entryCount(const FilePath &folder)
{
    const std::filesystem::directory_iterator entries(folder.c_str());
    return size_t(std::distance(begin(entries), end(entries)));
}

FilePath makeLink(const FilePath &path, const FilePath &target)
{
    EXPECT_EQ(::symlink(target.c_str(), path.c_str()), 0);
    return path;
}

QByteArray linkTarget(const FilePath &path)
{
    char target[PATH_MAX];
    const ssize_t length = ::readlink(path.c_str(), target, sizeof target);
    return {target, std::max<ssize_t>(length, 0)};
}

/// A folder in memory, which is another file system than the home of the test on most machines.
class OtherFileSystem
{
public:
    OtherFileSystem()
    {
        char name[] = "/dev/shm/lorva-test-XXXXXX";
        if (::mkdtemp(name))
            m_folder = FilePath(name);
    }
    ~OtherFileSystem()
    {
        if (!m_folder.isEmpty())
            std::filesystem::remove_all(m_folder.c_str());
    }
    OtherFileSystem(const OtherFileSystem &) = delete;
    OtherFileSystem &operator=(const OtherFileSystem &) = delete;

    const FilePath &folder() const { return m_folder; }
    bool isOther() const
    {
        struct stat own;
        struct stat other;
        return ::stat(test::TestHome::instance().root().c_str(), &own) == 0
            && ::stat(m_folder.c_str(), &other) == 0 && own.st_dev != other.st_dev;
    }

private:
    FilePath m_folder;
};

class FileTransferTest : public testing::Test
{
protected:
    const FilePath folder = test::makeCaseFolder();
    const FilePath target = test::TestHome::instance().makeFolder("target");
    const QByteArray bytes = QByteArray("0123456789").repeated(60'000);
};

TEST_F(FileTransferTest, ACopyHasTheBytesAndTheTimeAndReplacesNothing)
{
    const FilePath source = writeFile(folder, "a.ttf", bytes);
    const timespec times[] = {{5, 0}, {1'000'000'000, 123'456'789}};
    ::utimensat(AT_FDCWD, source.c_str(), times, 0);
    const FilePath viaLink = makeLink(folder.child("link.ttf"), source);

    EXPECT_EQ(copyToNewFile(viaLink, target.child("b.ttf")), Transfer::done);
    struct stat info;
    ASSERT_EQ(::lstat(target.child("b.ttf").c_str(), &info), 0);
    EXPECT_TRUE(S_ISREG(info.st_mode));
    EXPECT_EQ(info.st_mtim.tv_sec, 1'000'000'000);
    EXPECT_EQ(info.st_mtim.tv_nsec, 123'456'789);
    EXPECT_EQ(readFile(target.child("b.ttf")), bytes);
    EXPECT_TRUE(haveEqualBytes(source, target.child("b.ttf")));

    writeFile(target, "taken.ttf", "mine");
    makeLink(target.child("dangling.ttf"), FilePath("/nowhere/at/all"));
    for (const char *const name : {"taken.ttf", "dangling.ttf"}) {
        EXPECT_EQ(copyToNewFile(source, target.child(name)), Transfer::destinationExists);
        EXPECT_EQ(moveToNewFile(source, target.child(name)), Transfer::destinationExists);
    }
    EXPECT_EQ(copyToNewFile(source, source), Transfer::destinationExists);
    EXPECT_EQ(moveToNewFile(source, source), Transfer::destinationExists);
    EXPECT_EQ(readFile(target.child("taken.ttf")), "mine");
    EXPECT_EQ(readFile(source), bytes);
    EXPECT_EQ(entryCount(target), 3U);
}

TEST_F(FileTransferTest, WhatCannotBeCopiedLeavesNothing)
{
    const FilePath source = writeFile(folder, "a.ttf", bytes);
    const FilePath secret = writeFile(folder, "secret.ttf", bytes);
    ::chmod(secret.c_str(), 0);
    const FilePath readOnly = test::TestHome::instance().makeFolder("read-only");
    ::chmod(readOnly.c_str(), 0555);
    ASSERT_EQ(::mkfifo(folder.child("pipe.ttf").c_str(), 0666), 0);
    ::chmod(target.c_str(), 0777);
    ::chmod(folder.c_str(), 0755);

    const struct
    {
        FilePath from;
        FilePath to;
        ErrorKind kind;
    } cases[] = {
        {folder.child("missing.ttf"), target.child("x"), ErrorKind::notFound},
        {folder.child("pipe.ttf"), target.child("x"), ErrorKind::notRegularFile},
        {folder, target.child("x"), ErrorKind::notRegularFile},
        {secret, target.child("x"), ErrorKind::permissionDenied},
        {source, readOnly.child("x"), ErrorKind::permissionDenied},
        {source, target.child("missing").child("x"), ErrorKind::notFound},
        {source, source.child("x"), ErrorKind::notFound},
        {source, target.child(QByteArray(256, 'x')), ErrorKind::ioFailure},
    };
    const test::AsOrdinaryUser nobody;
    for (const auto &row : cases) {
        const Result<Transfer> outcome = copyToNewFile(row.from, row.to);
        ASSERT_FALSE(outcome) << row.from.c_str() << " " << row.to.c_str();
        EXPECT_EQ(outcome.error().kind, row.kind) << outcome.error().detail.toStdString();
        EXPECT_FALSE(outcome.error().detail.isEmpty());
    }
    EXPECT_EQ(entryCount(target), 0U);
    EXPECT_EQ(entryCount(readOnly), 0U);
}

TEST_F(FileTransferTest, AFullDiskLeavesNothing)
{
    const FilePath source = writeFile(folder, "a.ttf", bytes);
    {
        const test::FullDisk full(rlim_t(bytes.size() / 2));
        const Result<Transfer> outcome = copyToNewFile(source, target.child("a.ttf"));
        ASSERT_FALSE(outcome);
        EXPECT_EQ(outcome.error().kind, ErrorKind::ioFailure);
    }
    EXPECT_EQ(entryCount(target), 0U);
    EXPECT_EQ(copyToNewFile(source, target.child("a.ttf")), Transfer::done);
}

TEST_F(FileTransferTest, ASourceThatChangesMeanwhileIsNotCopied)
{
    const FilePath source = writeFile(folder, "a.ttf", bytes);
    const std::function<void()> changes[] = {
        [&] { EXPECT_EQ(::truncate(source.c_str(), 1000), 0); },
        [&] { EXPECT_EQ(::truncate(source.c_str(), bytes.size() * 2), 0); },
        [&] { writeFile(folder, "a.ttf", QByteArray(bytes.size(), 'x')); },
    };
    for (const std::function<void()> &change : changes) {
        writeFile(folder, "a.ttf", bytes);
        const timespec longAgo[] = {{5, 0}, {5, 0}};
        ::utimensat(AT_FDCWD, source.c_str(), longAgo, 0);
        duringCopy = change;
        const Result<Transfer> outcome = copyToNewFile(source, target.child("a.ttf"));
        duringCopy = nullptr;
        ASSERT_FALSE(outcome);
        EXPECT_EQ(outcome.error().kind, ErrorKind::ioFailure);
        EXPECT_EQ(entryCount(target), 0U);
    }
}

TEST_F(FileTransferTest, ANameThatIsTakenMeanwhileIsNotReplaced)
{
    const FilePath source = writeFile(folder, "a.ttf", bytes);
    duringCopy = [&] { writeFile(target, "a.ttf", "theirs"); };
    EXPECT_EQ(copyToNewFile(source, target.child("a.ttf")), Transfer::destinationExists);
    duringCopy = nullptr;
    EXPECT_EQ(readFile(target.child("a.ttf")), "theirs");
    EXPECT_EQ(entryCount(target), 1U);
}

TEST_F(FileTransferTest, SimplerFileSystemsReplaceNothingEither)
{
    writeFile(target, "taken", "mine");
    for (const bool isSimple : {false, true}) {
        renamingReplaces = isSimple;
        const FilePath source = writeFile(folder, "a", bytes);
        EXPECT_EQ(moveToNewFile(source, target.child("taken")), Transfer::destinationExists);
        EXPECT_EQ(moveToNewFile(source, target.child("free")), Transfer::done);
        EXPECT_EQ(entryCount(folder), 0U);
        {
            NewFile file(NewFile::Naming::atOnce);
            ASSERT_EQ(file.create(target), 0);
            EXPECT_EQ(entryCount(target), 3U);
            EXPECT_EQ(file.takeName(target.child("taken")), EEXIST);
            EXPECT_EQ(file.takeName(target.child("new")), 0);
        }
        EXPECT_EQ(readFile(target.child("taken")), "mine");
        EXPECT_EQ(entryCount(target), 3U);
        // What got no name is gone.
        EXPECT_EQ(NewFile(NewFile::Naming::atOnce).create(target), 0);
        EXPECT_EQ(entryCount(target), 3U);
        ::unlink(target.child("free").c_str());
        ::unlink(target.child("new").c_str());
    }
    renamingReplaces = false;
}

TEST_F(FileTransferTest, OnlyUnfinishedCopiesAreRemoved)
{
    writeFile(target, ".lorva-copy-a1b2c3", "left");
    for (const char *const name : {".lorva-copy-a1b2c", ".lorva-copy-A1b2c3", "lorva-copy-a1b2c3",
                                   ".lorva-copy-a1b2c3.ttf", "font.ttf"})
        writeFile(target, name, "kept");
    makeLink(target.child(".lorva-copy-linked"), target.child("font.ttf"));
    ::mkdir(target.child(".lorva-copy-folder").c_str(), 0700);
    removeUnfinishedCopies(target);
    removeUnfinishedCopies(target.child("missing"));
    EXPECT_EQ(entryCount(target), 7U);
    EXPECT_EQ(readFile(target.child(".lorva-copy-a1b2c3")), "");
}

TEST_F(FileTransferTest, AMoveTakesTheEntryItself)
{
    const FilePath source = writeFile(folder, "a.ttf", bytes);
    const FilePath link = makeLink(folder.child("link.ttf"), source);
    const FilePath dangling = makeLink(folder.child("dangling.ttf"), FilePath("/nowhere"));
    const FilePath relative = makeLink(folder.child("relative.ttf"), FilePath(source.fileName()));
    EXPECT_EQ(moveToNewFile(relative, target.child("r")), Transfer::done);
    EXPECT_EQ(test::readFile(target.child("r")), test::readFile(source)) << "leads where it led";
    EXPECT_EQ(linkTarget(relative), "");
    EXPECT_EQ(moveToNewFile(link, target.child("l")), Transfer::done);
    EXPECT_EQ(moveToNewFile(dangling, target.child("d")), Transfer::done);
    EXPECT_EQ(linkTarget(target.child("l")), source.bytes());
    EXPECT_EQ(linkTarget(target.child("d")), "/nowhere");
    EXPECT_EQ(moveToNewFile(source, target.child("a")), Transfer::done);
    EXPECT_EQ(readFile(target.child("a")), bytes);
    EXPECT_EQ(entryCount(folder), 0U);
    const Result<Transfer> missing = moveToNewFile(source, target.child("b"));
    ASSERT_FALSE(missing);
    EXPECT_EQ(missing.error().kind, ErrorKind::notFound);
}

TEST_F(FileTransferTest, AMoveToAnotherFileSystemIsACheckedCopy)
{
    const OtherFileSystem other;
    if (!other.isOther())
        GTEST_SKIP() << "no other file system here";
    const FilePath source = writeFile(folder, "a.ttf", bytes);
    const FilePath link = makeLink(folder.child("link.ttf"), FilePath("/nowhere"));
    writeFile(other.folder(), "taken", "mine");
    for (const FilePath &path : {source, link})
        EXPECT_EQ(moveToNewFile(path, other.folder().child("taken")), Transfer::destinationExists);
    {
        const test::FullDisk full(1000);
        EXPECT_FALSE(moveToNewFile(source, other.folder().child("a")));
    }
    {
        // What was written can no longer be read: the copy is worth nothing, the source stays.
        const test::FailingDisk disk(0);
        EXPECT_FALSE(moveToNewFile(source, other.folder().child("a")));
    }
    EXPECT_EQ(readFile(source), bytes);
    EXPECT_EQ(entryCount(other.folder()), 1U);

    EXPECT_EQ(moveToNewFile(source, other.folder().child("a")), Transfer::done);
    EXPECT_EQ(moveToNewFile(link, other.folder().child("l")), Transfer::done);
    EXPECT_EQ(readFile(other.folder().child("a")), bytes);
    EXPECT_EQ(linkTarget(other.folder().child("l")), "/nowhere");
    EXPECT_EQ(readFile(other.folder().child("taken")), "mine");
    EXPECT_EQ(entryCount(folder), 0U);
}

TEST_F(FileTransferTest, ASourceThatCannotGoKeepsItsPlaceAlone)
{
    const OtherFileSystem other;
    if (!other.isOther())
        GTEST_SKIP() << "no other file system here";
    const FilePath source = writeFile(folder, "a.ttf", bytes);
    ::chmod(folder.c_str(), 0555);
    ::chmod(source.c_str(), 0644);
    ::chmod(other.folder().c_str(), 0777);
    {
        const test::AsOrdinaryUser nobody;
        const Result<Transfer> outcome = moveToNewFile(source, other.folder().child("a"));
        ASSERT_FALSE(outcome);
        EXPECT_EQ(outcome.error().kind, ErrorKind::permissionDenied);
    }
    EXPECT_EQ(readFile(source), bytes);
    EXPECT_EQ(entryCount(other.folder()), 0U);
}

TEST_F(FileTransferTest, TellsEqualBytesFromOthers)
{
    const FilePath one = writeFile(folder, "1", bytes);
    EXPECT_TRUE(haveEqualBytes(one, makeLink(folder.child("link"), one)));
    EXPECT_TRUE(haveEqualBytes(writeFile(folder, "e1", ""), writeFile(folder, "e2", "")));
    QByteArray lastDiffers = bytes;
    lastDiffers.back() = 'x';
    for (const QByteArray &other : {lastDiffers, bytes.chopped(1), QByteArray(bytes + "x")})
        EXPECT_FALSE(haveEqualBytes(one, writeFile(folder, "2", other)));
    EXPECT_FALSE(haveEqualBytes(one, folder.child("missing")));
    EXPECT_FALSE(haveEqualBytes(folder, folder));
}

TEST(RunLock, IsHeldByOneUntilItEnds)
{
    const FilePath file = test::makeCaseFolder().child("not").child("yet").child("run.lock");
    {
        const Result<RunLock> first = RunLock::take(file, 0ms);
        ASSERT_TRUE(first);
        const Result<RunLock> second = RunLock::take(file, 30ms);
        ASSERT_FALSE(second);
        EXPECT_EQ(second.error().kind, ErrorKind::cancelled);
        // Whoever finds the file removed makes it anew.
        ::unlink(file.c_str());
        EXPECT_TRUE(RunLock::take(file, 0ms));
    }
    Result<RunLock> third = RunLock::take(file, 0ms);
    ASSERT_TRUE(third);
    RunLock moved = *std::move(third);
    EXPECT_FALSE(RunLock::take(file, 0ms));
}

TEST(RunLock, TellsWhyThereIsNoLockFile)
{
    const FilePath folder = test::makeCaseFolder();
    const FilePath plain = writeFile(folder, "plain", "");
    EXPECT_EQ(RunLock::take(plain.child("lock"), 0ms).error().kind, ErrorKind::notRegularFile);
    EXPECT_EQ(RunLock::take(folder, 0ms).error().kind, ErrorKind::notRegularFile);
}

} // namespace
} // namespace lorva
