// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#include "platform/SqlitePreferenceStore.h"
#include "platform/SqliteConnection.h"
#include "support/TestHome.h"

#include <QDir>

#include <gmock/gmock.h>

#include <csignal>
#include <thread>

#include <sys/resource.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

namespace lorva {
namespace {

using test::TestHome;
using test::writeFile;

class SqlitePreferenceStoreTest : public testing::Test
{
protected:
    QStringList filesAside() const
    {
        return QDir(m_folder.displayText()).entryList({"preferences.sqlite.damaged-*"});
    }

    const FilePath m_folder = TestHome::instance().root().child("share").child("Lorva");
    const FilePath m_file = m_folder.child("preferences.sqlite");
};

TEST_F(SqlitePreferenceStoreTest, makesItsFolderAndOutlivesTheStore)
{
    SqlitePreferenceStore(m_folder).setString("key", "value");
    EXPECT_EQ(SqlitePreferenceStore(m_folder).string("key"), "value");
    struct stat info;
    ASSERT_EQ(::stat(m_folder.c_str(), &info), 0);
    EXPECT_EQ(info.st_mode & 0777, 0700u);
}

TEST_F(SqlitePreferenceStoreTest, storesOnOneFileSeeEachOthersWrites)
{
    SqlitePreferenceStore one(m_folder);
    SqlitePreferenceStore two(m_folder);
    one.setString("a", "1");
    two.setString("b", "2");
    EXPECT_EQ(two.string("a"), "1");
    EXPECT_EQ(one.string("b"), "2");
    two.remove("a");
    EXPECT_EQ(one.string("a"), std::nullopt);
}

void appendOften(const FilePath &folder, const QString &word, int times)
{
    SqlitePreferenceStore store(folder);
    for (int i = 0; i < times; ++i) {
        store.inTransaction([&] {
            QStringList words = store.stringArray("words").value_or(QStringList());
            words.append(word);
            store.setStringArray("words", words);
        });
    }
}

TEST_F(SqlitePreferenceStoreTest, transactionsOfTwoLoseNothing)
{
    SqlitePreferenceStore store(m_folder);
    std::thread other(appendOften, m_folder, QStringLiteral("other"), 30);
    appendOften(m_folder, QStringLiteral("own"), 30);
    other.join();
    const QStringList words = store.stringArray("words").value_or(QStringList());
    EXPECT_EQ(words.count("own"), 30);
    EXPECT_EQ(words.count("other"), 30);
}

TEST_F(SqlitePreferenceStoreTest, aKilledWriterLeavesWholeValues)
{
    SqlitePreferenceStore(m_folder).setStringArray("words", {});
    int ready[2];
    ASSERT_EQ(::pipe(ready), 0);
    const pid_t child = ::fork();
    if (child == 0) {
        SqlitePreferenceStore store(m_folder);
        store.inTransaction([&] {
            store.setString("half", "done");
            store.setStringArray("words", QStringList(2000, QStringLiteral("word")));
            const ssize_t told = ::write(ready[1], "x", 1);
            static_cast<void>(told);
            ::pause();
        });
        ::_exit(0);
    }
    char byte = 0;
    ASSERT_EQ(::read(ready[0], &byte, 1), 1);
    ::kill(child, SIGKILL);
    ::waitpid(child, nullptr, 0);

    SqlitePreferenceStore store(m_folder);
    EXPECT_EQ(store.string("half"), std::nullopt);
    EXPECT_EQ(store.stringArray("words"), QStringList());
    store.setBoolean("writable", true);
    EXPECT_EQ(SqlitePreferenceStore(m_folder).boolean("writable"), true);
}

/// Several pages of it.
void fillDatabase(const FilePath &folder)
{
    SqlitePreferenceStore store(folder);
    for (int i = 0; i < 200; ++i)
        store.setData(QString::number(i), QByteArray(300, char('a' + i % 26)));
}

struct Damage
{
    const char *what;
    std::function<QByteArray(QByteArray)> apply;
};

class DamagedPreferences : public SqlitePreferenceStoreTest,
                           public testing::WithParamInterface<Damage>
{
};

TEST_P(DamagedPreferences, areMovedAsideAndNewOnesStarted)
{
    fillDatabase(m_folder); // the log is folded in when the last connection closes
    const QByteArray damaged = GetParam().apply(test::readFile(m_file));
    writeFile(m_folder, "preferences.sqlite", damaged);
    {
        SqlitePreferenceStore store(m_folder);
        EXPECT_EQ(store.data("1"), std::nullopt);
        store.setString("key", "new");
    }
    EXPECT_EQ(SqlitePreferenceStore(m_folder).string("key"), "new");
    ASSERT_EQ(filesAside().size(), 1);
    EXPECT_EQ(test::readFile(m_folder.child(filesAside().front().toUtf8())), damaged);
}

QByteArray otherDatabase(const QByteArray &)
{
    const FilePath file = TestHome::instance().root().child("other.sqlite");
    auto connection = SqliteConnection::open(file, SqliteConnection::Access::readWrite);
    EXPECT_TRUE(connection->run("CREATE TABLE preferences (name TEXT)"));
    return test::readFile(file);
}

INSTANTIATE_TEST_SUITE_P(
    Kinds, DamagedPreferences,
    testing::Values(
        Damage{"text", [](const QByteArray &) { return QByteArray(5000, 'x'); }},
        Damage{"anotherProgramsSettings",
               [](const QByteArray &) { return QByteArray("[a]\nb=1\n"); }},
        Damage{"lostPage",
               [](QByteArray file) { return file.replace(4096, 4096, QByteArray(4096, '\xab')); }},
        Damage{"cutShort", [](const QByteArray &file) { return file.first(file.size() / 2); }},
        Damage{"tableOfAnotherShape", otherDatabase}),
    [](const auto &damage) { return damage.param.what; });

TEST_F(SqlitePreferenceStoreTest, anEmptyFileIsANewDatabase)
{
    TestHome::instance().makeFolder("share");
    writeFile(m_folder, "preferences.sqlite", "");
    SqlitePreferenceStore(m_folder).setBoolean("key", true);
    EXPECT_EQ(SqlitePreferenceStore(m_folder).boolean("key"), true);
    EXPECT_TRUE(filesAside().isEmpty());
}

TEST_F(SqlitePreferenceStoreTest, damagedValuesAndUnknownKindsCountAsAbsent)
{
    SqlitePreferenceStore store(m_folder);
    store.setStringArray("array", {"a"});
    store.setString("future", "a");
    store.setBoolean("flag", true);
    auto raw = SqliteConnection::open(m_file, SqliteConnection::Access::readWrite);
    ASSERT_TRUE(raw);
    ASSERT_TRUE(raw->run("UPDATE preferences SET value = '[1' WHERE key = 'array'"));
    ASSERT_TRUE(raw->run("UPDATE preferences SET kind = 'number' WHERE key = 'future'"));
    ASSERT_TRUE(raw->run("UPDATE preferences SET value = 'yes' WHERE key = 'flag'"));
    EXPECT_EQ(store.stringArray("array"), std::nullopt);
    EXPECT_EQ(store.string("future"), std::nullopt);
    EXPECT_EQ(store.boolean("flag"), std::nullopt);
}

TEST_F(SqlitePreferenceStoreTest, withoutAFolderValuesLiveInMemory)
{
    writeFile(TestHome::instance().root(), "share", "a file where the folder should be");
    SqlitePreferenceStore store(m_folder);
    store.setString("key", "kept");
    store.inTransaction([&] { store.setBoolean("flag", store.string("key") == "kept"); });
    EXPECT_EQ(store.boolean("flag"), true);
    EXPECT_EQ(SqlitePreferenceStore(m_folder).string("key"), std::nullopt);
}

TEST_F(SqlitePreferenceStoreTest, onAFullDiskValuesLiveInMemory)
{
    SqlitePreferenceStore store(m_folder);
    store.setString("key", "old");
    store.setString("gone", "old");
    std::signal(SIGXFSZ, SIG_IGN);
    rlimit before{};
    ::getrlimit(RLIMIT_FSIZE, &before);
    const rlimit full{0, before.rlim_max};
    ::setrlimit(RLIMIT_FSIZE, &full);
    store.inTransaction([&] {
        store.setString("key", QString(100000, u'x'));
        store.remove("gone");
    });
    EXPECT_EQ(store.string("key"), QString(100000, u'x'));
    EXPECT_EQ(store.string("gone"), std::nullopt);
    ::setrlimit(RLIMIT_FSIZE, &before);
    // The file holds what was there, and both stores go on working.
    EXPECT_EQ(SqlitePreferenceStore(m_folder).string("key"), "old");
    store.setString("key", "new");
    EXPECT_EQ(SqlitePreferenceStore(m_folder).string("key"), "new");
}

/// Becomes a user without rights, where the tests run as root and permissions would not hold.
class Unprivileged
{
public:
    Unprivileged() { EXPECT_EQ(::seteuid(::geteuid() == 0 ? 65534 : ::geteuid()), 0); }
    ~Unprivileged() { EXPECT_EQ(::seteuid(::getuid()), 0); }
};

TEST_F(SqlitePreferenceStoreTest, aReadOnlyFolderIsReadAndChangesLiveInMemory)
{
    SqlitePreferenceStore(m_folder).setString("key", "stored");
    ::chmod(TestHome::instance().root().c_str(), 0755);
    ::chmod(m_folder.parent().c_str(), 0755);
    ::chmod(m_file.c_str(), 0444);
    ::chmod(m_folder.c_str(), 0555);
    {
        const Unprivileged user;
        SqlitePreferenceStore store(m_folder);
        EXPECT_EQ(store.string("key"), "stored");
        store.setString("key", "changed");
        EXPECT_EQ(store.string("key"), "changed");
        EXPECT_EQ(SqlitePreferenceStore(m_folder).string("key"), "stored");
    }
    ::chmod(m_folder.c_str(), 0755);
    EXPECT_TRUE(filesAside().isEmpty());
}

} // namespace
} // namespace lorva
