// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#include "base/WholeFile.h"

#include "base/AtomicFile.h"
#include "support/AdverseSystem.h"
#include "support/OtherLanguage.h"

#include <atomic>
#include <thread>

namespace lorva {

namespace {

using test::AsOrdinaryUser;
using test::makeCaseFolder;
using test::writeFile;

constexpr qint64 kPlenty = 1 << 20;

TEST(WholeFile, ReadsEveryByte)
{
    const FilePath folder = makeCaseFolder();
    const QByteArray big = QByteArray("a\0b\xFF", 4).repeated(100'000);
    for (const QByteArray &bytes : {QByteArray(), QByteArray("x"), big}) {
        const FilePath path = writeFile(folder, "na\xFFme", bytes);
        EXPECT_EQ(readWholeFile(path, kPlenty), bytes);
        EXPECT_EQ(readWholeFile(path, bytes.size()), bytes);
        ::unlink(path.c_str());
    }
}

TEST(WholeFile, SaysWhyItCannotRead)
{
    const FilePath folder = makeCaseFolder();
    writeFile(folder, "plain", "12345678");
    ::chmod(writeFile(folder, "secret", "x").c_str(), 0);
    ASSERT_EQ(::mkdir(folder.child("folder").c_str(), 0755), 0);
    ASSERT_EQ(::mkfifo(folder.child("fifo").c_str(), 0666), 0);
    ASSERT_EQ(::symlink("nothing", folder.child("dangling").c_str()), 0);
    ::chmod(folder.c_str(), 0755);
    const struct
    {
        const char *name;
        ErrorKind kind;
    } rows[]{
        {"missing", ErrorKind::notFound},        {"plain/below", ErrorKind::notFound},
        {"dangling", ErrorKind::notFound},       {"folder", ErrorKind::notRegularFile},
        {"fifo", ErrorKind::notRegularFile},     {"plain", ErrorKind::tooLarge},
        {"secret", ErrorKind::permissionDenied},
    };
    for (const auto &row : rows) {
        const AsOrdinaryUser user;
        const Result<QByteArray> bytes = readWholeFile(folder.child(row.name), 7);
        ASSERT_FALSE(bytes) << row.name;
        EXPECT_EQ(bytes.error().kind, row.kind) << row.name;
        EXPECT_TRUE(bytes.error().detail.contains(QLatin1String(row.name)));
    }
}

TEST(WholeFile, SaysWhyInTheUsersLanguage)
{
    const test::OtherLanguage other({{"cannot read %1: %2", "%2 (%1)"}});
    const FilePath path = makeCaseFolder().child("missing");
    EXPECT_EQ(readWholeFile(path, 7).error().detail,
              QString("No such file or directory (" + path.displayText() + u')'));
}

TEST(WholeFile, GivesOneWholeFileWhileItIsReplaced)
{
    const FilePath path = makeCaseFolder().child("file");
    const QByteArray contents[]{QByteArray(300'000, 'a'), QByteArray(100'000, 'b')};
    ASSERT_TRUE(writeFileAtomically(path, contents[0]));
    std::atomic<bool> isDone = false;
    std::jthread writer([&] {
        for (int i = 1; i < 100; ++i)
            EXPECT_TRUE(writeFileAtomically(path, contents[i % 2]));
        isDone = true;
    });
    while (!isDone) {
        const Result<QByteArray> bytes = readWholeFile(path, kPlenty);
        ASSERT_TRUE(bytes);
        EXPECT_TRUE(*bytes == contents[0] || *bytes == contents[1]);
    }
}

TEST(WholeFile, MakesFoldersWithTheirParents)
{
    const FilePath folder = makeCaseFolder().child("a").child("b\xFF").child("c");
    EXPECT_TRUE(makeFolders(folder));
    EXPECT_TRUE(makeFolders(folder)) << "again";
    struct stat info
    {
    };
    ASSERT_EQ(::stat(folder.parent().c_str(), &info), 0);
    EXPECT_TRUE(S_ISDIR(info.st_mode));
    EXPECT_EQ(info.st_mode & 07777, mode_t(0700));
    EXPECT_TRUE(makeFolders(FilePath("/")));
    ::rmdir(folder.c_str());
    ::rmdir(folder.parent().c_str()); // QTemporaryDir could not
}

TEST(WholeFile, SaysWhyAFolderCannotBeMade)
{
    const FilePath folder = makeCaseFolder();
    const FilePath file = writeFile(folder, "file", "x");
    ASSERT_EQ(::mkdir(folder.child("closed").c_str(), 0555), 0);
    ::chmod(folder.c_str(), 0755);
    const struct
    {
        FilePath path;
        ErrorKind kind;
    } rows[]{
        {file, ErrorKind::notRegularFile},
        {file.child("a").child("b"), ErrorKind::notRegularFile},
        {folder.child("closed").child("a").child("b"), ErrorKind::permissionDenied},
        {folder.child(QByteArray(300, 'x')).child("a"), ErrorKind::ioFailure},
        {FilePath(), ErrorKind::notFound},
    };
    for (const auto &row : rows) {
        const AsOrdinaryUser user;
        const Result<void> made = makeFolders(row.path);
        ASSERT_FALSE(made) << row.path.c_str();
        EXPECT_EQ(made.error().kind, row.kind) << row.path.c_str();
    }
    EXPECT_EQ(test::readFile(file), "x");
}

} // namespace

} // namespace lorva
