// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#include "platform/SqlitePreferenceStore.h"

#include "platform/PreferenceFilesAside.h"
#include "platform/SqliteConnection.h"
#include "support/AdverseSystem.h"

#include <QDir>

#include <gmock/gmock.h>

#include <array>
#include <thread>

#include <fcntl.h>
#include <sys/inotify.h>
#include <sys/stat.h>
#include <unistd.h>

namespace lorva {
namespace {

using test::TestHome;
using test::writeFile;
using namespace std::chrono_literals;

class SqlitePreferenceStoreTest : public testing::Test
{
protected:
    QStringList filesAside() const
    {
        return QDir(m_folder.displayText()).entryList({"preferences.sqlite.damaged-*"});
    }

    const FilePath m_parent = test::makeCaseFolder();
    const FilePath m_folder = m_parent.child("Lorva");
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
    SqlitePreferenceStore store(folder, 60s);
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

void PrintTo(const Damage &row, std::ostream *out)
{
    *out << row.what;
}

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
    const FilePath aside = m_folder.child(filesAside().front().toUtf8());
    EXPECT_EQ(test::readFile(aside), damaged);
    EXPECT_THAT(SqlitePreferenceStore(m_folder).status().movedAside, testing::ElementsAre(aside));
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

QByteArray namesMovedFrom(int notices)
{
    alignas(inotify_event) std::array<char, 4096> buffer;
    const ssize_t size = ::read(notices, buffer.data(), buffer.size());
    QByteArray names;
    for (ssize_t at = 0; at < size;) {
        const auto *const event = reinterpret_cast<const inotify_event *>(buffer.data() + at);
        names.append(event->name).append(' ');
        at += ssize_t(sizeof *event) + event->len;
    }
    return names;
}

/// Last the file itself, as a new one may stand there from then on.
TEST_F(SqlitePreferenceStoreTest, theLogGoesAsideBeforeItsFileOrNotAtAll)
{
    const int notices = ::inotify_init();
    const QByteArray log = writeFile(m_folder, "preferences.sqlite-wal", "log").fileName();
    EXPECT_FALSE(movePreferencesAside(m_file));
    EXPECT_EQ(test::readFile(m_folder.child(log)), "log");

    writeFile(m_folder, "preferences.sqlite", "x");
    ::inotify_add_watch(notices, m_folder.c_str(), IN_MOVED_FROM);
    EXPECT_TRUE(movePreferencesAside(m_file));
    EXPECT_EQ(namesMovedFrom(notices), "preferences.sqlite-wal preferences.sqlite ");
    ::close(notices);
    const std::vector<FilePath> aside = preferencesAside(m_file);
    ASSERT_EQ(aside.size(), 1u);
    EXPECT_EQ(test::readFile(FilePath(QByteArray(aside[0].bytes() + "-wal"))), "log");
}

TEST_F(SqlitePreferenceStoreTest, anEmptyFileIsANewDatabase)
{
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
    EXPECT_EQ(store.status().entries.at(2),
              (PreferenceStoreStatus::Entry{"future", "number", 1, false}));

    store.keepUnreadable("array");
    store.keepUnreadable("future");
    const auto kept = raw->run("SELECT key, kind, value FROM preferences"
                               " WHERE key LIKE '%.unreadable' ORDER BY key");
    EXPECT_THAT(kept.value(),
                testing::ElementsAre(SqliteConnection::Row{"array.unreadable", "stringArray", "[1"},
                                     SqliteConnection::Row{"future.unreadable", "number", "a"}));
}

TEST_F(SqlitePreferenceStoreTest, withoutAFolderChangesWaitUntilThereIsOne)
{
    writeFile(m_parent, "Lorva", "a file where the folder should be");
    SqlitePreferenceStore store(m_folder);
    store.setString("key", "kept");
    store.inTransaction([&store] { store.setBoolean("flag", store.string("key") == "kept"); });
    EXPECT_EQ(store.boolean("flag"), true);
    EXPECT_FALSE(store.writeWaitingChanges());
    const PreferenceStoreStatus status = store.status();
    EXPECT_EQ(status.waitingChanges, 2);
    EXPECT_EQ(status.entries.size(), 2u);
    ASSERT_TRUE(status.failure);
    EXPECT_THAT(status.failure->detail.toStdString(),
                testing::HasSubstr(m_folder.displayText().toStdString()));

    ::unlink(m_folder.c_str());
    EXPECT_TRUE(store.writeWaitingChanges());
    EXPECT_EQ(store.status().failure, std::nullopt);
    EXPECT_EQ(SqlitePreferenceStore(m_folder).boolean("flag"), true);
}

TEST_F(SqlitePreferenceStoreTest, onAFullDiskChangesWaitForSpace)
{
    SqlitePreferenceStore store(m_folder);
    store.setString("key", "old");
    store.setString("gone", "old");
    const QString large(100000, u'x');
    int runs = 0;
    {
        const test::FullDisk full(0);
        store.inTransaction([&store, large] {
            store.setString("key", large);
            store.remove("gone");
        });
        for (int i = 0; i < 100; ++i)
            store.inTransaction([&store, &runs] {
                ++runs;
                store.setString("key", QString(store.string("key").value_or("") % QChar(u'y')));
            });
        EXPECT_EQ(store.string("key"), QString(large % QString(100, u'y')));
        EXPECT_EQ(store.string("gone"), std::nullopt);
        EXPECT_FALSE(store.writeWaitingChanges());
        store.inTransaction([&store] { EXPECT_FALSE(store.contains("gone")); });
        EXPECT_EQ(store.status().waitingChanges, 101);
        EXPECT_TRUE(store.status().failure);
    }
    EXPECT_EQ(SqlitePreferenceStore(m_folder).string("key"), "old");
    EXPECT_TRUE(store.writeWaitingChanges());
    EXPECT_EQ(runs, 100) << "each once, however often the writing was tried";
    EXPECT_FALSE(store.takeChangesElsewhere());
    EXPECT_EQ(SqlitePreferenceStore(m_folder).string("key"), QString(large % QString(100, u'y')));
    EXPECT_EQ(SqlitePreferenceStore(m_folder).string("gone"), std::nullopt);
}

struct Permissions
{
    const char *what;
    mode_t folder;
    mode_t file;
};

void PrintTo(const Permissions &row, std::ostream *out)
{
    *out << row.what;
}

class LockedAwayPreferences : public SqlitePreferenceStoreTest,
                              public testing::WithParamInterface<Permissions>
{
};

TEST_P(LockedAwayPreferences, areReadAndChangesWaitForPermission)
{
    SqlitePreferenceStore(m_folder).setString("key", "stored");
    ::chmod(m_parent.c_str(), 0755);
    ::chmod(m_file.c_str(), GetParam().file);
    ::chmod(m_folder.c_str(), GetParam().folder);
    std::optional<SqlitePreferenceStore> store;
    {
        const test::AsOrdinaryUser user;
        store.emplace(m_folder);
        EXPECT_EQ(store->string("key"), "stored");
        EXPECT_TRUE(store->status().failure);
        store->setString("key", "changed");
        EXPECT_EQ(store->string("key"), "changed");
        EXPECT_EQ(SqlitePreferenceStore(m_folder).string("key"), "stored");
    }
    EXPECT_TRUE(store->writeWaitingChanges());
    EXPECT_EQ(SqlitePreferenceStore(m_folder).string("key"), "changed");
    EXPECT_EQ(store->status().failure, std::nullopt);
    EXPECT_TRUE(filesAside().isEmpty());
}

INSTANTIATE_TEST_SUITE_P(Where, LockedAwayPreferences,
                         testing::Values(Permissions{"folderAndFile", 0555, 0444},
                                         Permissions{"folder", 0555, 0666},
                                         Permissions{"file", 0777, 0444}),
                         [](const auto &each) { return each.param.what; });

TEST_F(SqlitePreferenceStoreTest, aFileThatWasMovedAwayIsNotWrittenOn)
{
    SqlitePreferenceStore store(m_folder);
    store.setString("key", "old");
    ASSERT_EQ(::rename(m_file.c_str(), m_folder.child("elsewhere").c_str()), 0);
    store.setString("other", "new");
    EXPECT_TRUE(store.takeChangesElsewhere());
    EXPECT_EQ(SqlitePreferenceStore(m_folder).string("other"), "new");
    EXPECT_EQ(store.string("key"), std::nullopt);
}

TEST_F(SqlitePreferenceStoreTest, damageThatShowsLateIsMovedAsideToo)
{
    const QByteArray large(3000000, 'x'); // more than a connection keeps of the file
    SqlitePreferenceStore(m_folder).setData("large", large);
    SqlitePreferenceStore(m_folder).setData("key", large);
    SqlitePreferenceStore store(m_folder);
    const int file = ::open(m_file.c_str(), O_WRONLY);
    const QByteArray damage(5000000, '\xab');
    ASSERT_EQ(::pwrite(file, damage.constData(), size_t(damage.size()), 8192), damage.size());
    ::close(file);

    store.inTransaction([&store] { store.setBoolean("had", store.contains("large")); });
    EXPECT_EQ(store.status().waitingChanges, 1);
    EXPECT_TRUE(store.writeWaitingChanges());
    EXPECT_TRUE(store.takeChangesElsewhere());
    EXPECT_EQ(filesAside().size(), 1);
    EXPECT_EQ(SqlitePreferenceStore(m_folder).boolean("had"), false);
}

} // namespace
} // namespace lorva
