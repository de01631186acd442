// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#include "platform/PreferenceWatcher.h"
#include "platform/SqliteConnection.h"
#include "platform/SqlitePreferenceStore.h"
#include "support/AdverseSystem.h"
#include "support/Waiting.h"

#include <QFile>
#include <QGuiApplication>

#include <gmock/gmock.h>

#include <csignal>
#include <filesystem>
#include <random>

#include <sys/wait.h>
#include <unistd.h>

namespace lorva {
namespace {

using namespace std::chrono_literals;

QStringList words(const PreferenceStore &store)
{
    return store.stringArray("words").value_or(QStringList());
}

void append(PreferenceStore &store, const QString &word)
{
    store.inTransaction([&store, word] {
        store.setStringArray("words", QStringList(words(store) + QStringList(word)));
    });
}

/// Another process, forked before this one opens the file: connections must not be inherited.
class OtherProcess
{
public:
    explicit OtherProcess(const std::function<void(OtherProcess &)> &work)
    {
        EXPECT_EQ(::pipe(m_toParent) | ::pipe(m_toChild), 0);
        m_process = ::fork();
        ::close(m_process == 0 ? m_toParent[0] : m_toParent[1]);
        if (m_process != 0)
            return;
        work(*this);
        ::_exit(0);
    }
    OtherProcess(const OtherProcess &) = delete;
    OtherProcess &operator=(const OtherProcess &) = delete;

    void tell(int value) const { put(m_toParent[1], value); }
    std::optional<int> hear() const { return get(m_toParent[0]); }
    void letGo() const { put(m_toChild[1], 0); }
    void awaitGo() const { get(m_toChild[0]); }
    void kill() const { ::kill(m_process, SIGKILL); }
    void awaitEnd() const { ::waitpid(m_process, nullptr, 0); }

private:
    static void put(int pipe, int value)
    {
        if (::write(pipe, &value, sizeof value) != ssize_t(sizeof value))
            ::_exit(1);
    }
    static std::optional<int> get(int pipe)
    {
        int value = 0;
        const bool isThere = ::read(pipe, &value, sizeof value) == ssize_t(sizeof value);
        return isThere ? std::optional(value) : std::nullopt;
    }

    int m_toParent[2];
    int m_toChild[2];
    pid_t m_process = -1;
};

class PreferenceSharing : public testing::Test
{
protected:
    Result<SqliteConnection> openRaw() const
    {
        return SqliteConnection::open(m_folder.child("preferences.sqlite"),
                                      SqliteConnection::Access::readWrite);
    }

    const FilePath m_folder = test::makeCaseFolder();
};

TEST_F(PreferenceSharing, aChangeThatWaitedIsMadeOverTheOthersWhicheverWasFirst)
{
    for (const bool isOtherFirst : {false, true}) {
        SqlitePreferenceStore other(m_folder);
        SqlitePreferenceStore own(m_folder, 0ms);
        other.setStringArray("words", {"start"});
        EXPECT_TRUE(own.takeChangesElsewhere());
        other.inTransaction([&] {
            if (isOtherFirst)
                append(other, "other");
            append(own, "own");
            EXPECT_EQ(words(own), (QStringList{"start", "own"}));
            if (!isOtherFirst)
                append(other, "other");
            EXPECT_FALSE(own.writeWaitingChanges());
        });
        EXPECT_EQ(words(own), (QStringList{"start", "own"}));
        EXPECT_TRUE(own.writeWaitingChanges());
        EXPECT_EQ(words(other), (QStringList{"start", "other", "own"}));
        EXPECT_TRUE(own.takeChangesElsewhere());
        EXPECT_FALSE(own.takeChangesElsewhere());
    }
}

TEST_F(PreferenceSharing, laterChangesQueueBehindTheOnesThatWait)
{
    SqlitePreferenceStore other(m_folder);
    SqlitePreferenceStore own(m_folder, 0ms);
    int notices = 0;
    own.onChangeWaits = [&notices] { ++notices; };
    other.inTransaction([&] {
        append(own, "1");
        own.setBoolean("flag", true);
        own.remove("flag");
        append(own, "2");
    });
    EXPECT_EQ(notices, 4);
    EXPECT_EQ(own.status().waitingChanges, 4);
    EXPECT_EQ(own.status().failure->kind, ErrorKind::cancelled);
    append(own, "3");
    EXPECT_EQ(own.status().waitingChanges, 0);
    EXPECT_EQ(words(other), (QStringList{"1", "2", "3"}));
    EXPECT_FALSE(other.contains("flag"));
    EXPECT_FALSE(own.takeChangesElsewhere()) << "what was written is what was read before";
    EXPECT_TRUE(other.takeChangesElsewhere());
}

TEST_F(PreferenceSharing, twoProcessesAtOnceLoseNothing)
{
    const OtherProcess other([this](OtherProcess &self) {
        SqlitePreferenceStore store(m_folder);
        store.inTransaction([&] {
            append(store, "other");
            self.tell(1);
            self.awaitGo();
        });
    });
    ASSERT_TRUE(other.hear());
    SqlitePreferenceStore own(m_folder, 0ms);
    append(own, "own");
    EXPECT_EQ(words(own), QStringList("own"));
    EXPECT_FALSE(own.takeChangesElsewhere());
    other.letGo();
    other.awaitEnd();
    EXPECT_TRUE(own.takeChangesElsewhere());
    EXPECT_FALSE(own.takeChangesElsewhere());
    EXPECT_TRUE(own.writeWaitingChanges());
    EXPECT_EQ(words(own), (QStringList{"other", "own"}));
}

QStringList numbersBelow(int count)
{
    QStringList numbers;
    for (int i = 0; i < count; ++i)
        numbers.append(QString::number(i));
    return numbers;
}

TEST_F(PreferenceSharing, aKilledWriterLosesAtMostTheChangeUnderWay)
{
    std::mt19937 random(4711);
    int kept = 0;
    for (int round = 0; round < 8; ++round) {
        const OtherProcess writer([&](OtherProcess &self) {
            SqlitePreferenceStore store(m_folder, 60s);
            for (int i = kept; i < kept + 1000; ++i) {
                append(store, QString::number(i));
                self.tell(i + 1);
            }
        });
        const int last = kept + int(random() % 150) + 1;
        int told = 0;
        while (told < last)
            told = writer.hear().value_or(last);
        writer.kill();
        while (const std::optional<int> more = writer.hear())
            told = *more;
        writer.awaitEnd();

        const QStringList found = words(SqlitePreferenceStore(m_folder));
        kept = int(found.size());
        EXPECT_THAT(kept, testing::AllOf(testing::Ge(told), testing::Le(told + 1)));
        ASSERT_EQ(found, numbersBelow(kept));
    }
    EXPECT_TRUE(SqlitePreferenceStore(m_folder).status().movedAside.empty());
}

/// As on a network volume, where there is no log and a writer keeps readers out.
TEST_F(PreferenceSharing, aReadThatIsLockedOutGivesTheLastKnownValue)
{
    SqlitePreferenceStore(m_folder).setString("key", "old");
    auto raw = openRaw();
    ASSERT_TRUE(raw && raw->run("PRAGMA journal_mode=DELETE") && raw->run("BEGIN")
                && raw->run("SELECT * FROM preferences"));
    SqlitePreferenceStore store(m_folder, 0ms); // cannot turn to the log meanwhile
    EXPECT_EQ(store.string("key"), "old");
    ASSERT_TRUE(raw->run("COMMIT") && raw->run("BEGIN EXCLUSIVE")
                && raw->run("UPDATE preferences SET value = 'new'"));
    EXPECT_EQ(store.string("key"), "old");
    EXPECT_EQ(store.status().failure->kind, ErrorKind::cancelled);
    EXPECT_EQ(store.status().entries.size(), 1u);
    ASSERT_TRUE(raw->run("COMMIT"));
    EXPECT_EQ(store.string("key"), "new");
    EXPECT_TRUE(store.takeChangesElsewhere());
}

TEST_F(PreferenceSharing, aStoreThatWasLockedOutAtFirstOpensLater)
{
    SqlitePreferenceStore(m_folder).setString("key", "old");
    auto raw = openRaw();
    ASSERT_TRUE(raw && raw->run("PRAGMA journal_mode=DELETE") && raw->run("BEGIN EXCLUSIVE"));
    SqlitePreferenceStore store(m_folder, 0ms);
    store.inTransaction([&store] {
        store.setString("key", QString(store.string("key").value_or("?") % QStringLiteral("+")));
    });
    EXPECT_EQ(store.string("key"), "?+");
    ASSERT_TRUE(raw->run("COMMIT"));
    EXPECT_TRUE(store.writeWaitingChanges());
    EXPECT_EQ(store.string("key"), "old+");
    EXPECT_TRUE(store.takeChangesElsewhere());
}

class PreferenceWatcherTest : public PreferenceSharing
{
protected:
    SqlitePreferenceStore &watch(const FilePath &folder)
    {
        m_own.emplace(folder, 0ms);
        m_watcher.emplace(*m_own);
        QObject::connect(&*m_watcher, &PreferenceWatcher::changedElsewhere,
                         [this] { ++m_notices; });
        return *m_own;
    }

    std::optional<SqlitePreferenceStore> m_own;
    std::optional<PreferenceWatcher> m_watcher;
    int m_notices = 0;
};

TEST_F(PreferenceWatcherTest, tellsOfOthersWritesOnlyAndOnce)
{
    SqlitePreferenceStore &own = watch(m_folder);
    const auto other = std::make_unique<SqlitePreferenceStore>(m_folder);
    own.setBoolean("own", true);
    other->inTransaction([&other] {
        for (int i = 0; i < 50; ++i)
            other->setData(QString::number(i), QByteArray(10000, 'x'));
    });
    EXPECT_TRUE(test::waitUntil([this] { return m_notices > 0; }));
    own.setBoolean("own", false);
    other->setBoolean("other", true);
    EXPECT_TRUE(test::waitUntil([this] { return m_notices > 1; }));
    EXPECT_EQ(m_notices, 2);
}

TEST_F(PreferenceWatcherTest, followsFilesThatComeAndGo)
{
    SqlitePreferenceStore &own = watch(m_folder);
    const QString file = QString::fromUtf8(m_folder.child("preferences.sqlite").bytes());
    for (int round = 1; round <= 4; ++round) {
        const QString other = file + QString::number(round);
        const bool isReplaced = round % 2 == 0; // else it goes, and a new one is made
        ASSERT_TRUE(!isReplaced || QFile::copy(file, other));
        ASSERT_EQ(std::rename(qPrintable(isReplaced ? other : file),
                              qPrintable(isReplaced ? file : other)),
                  0);
        ASSERT_TRUE(test::waitUntil([&] { return m_notices == 2 * round - 1; }));
        SqlitePreferenceStore(m_folder).setString("key", QString::number(round));
        ASSERT_TRUE(test::waitUntil([&] { return m_notices == 2 * round; }));
        EXPECT_EQ(own.string("key"), QString::number(round));
    }
}

TEST_F(PreferenceWatcherTest, writesWhatWaitsOnceTheLockIsFree)
{
    SqlitePreferenceStore &own = watch(m_folder);
    auto raw = openRaw();
    ASSERT_TRUE(raw && raw->run("BEGIN IMMEDIATE"));
    own.setString("key", "value");
    EXPECT_EQ(own.status().waitingChanges, 1);
    ASSERT_TRUE(raw->run("ROLLBACK")); // which no file notice tells
    EXPECT_TRUE(test::waitUntil([&own] { return own.status().waitingChanges == 0; }));
    EXPECT_EQ(SqlitePreferenceStore(m_folder).string("key"), "value");
    EXPECT_EQ(m_notices, 0);
}

TEST_F(PreferenceWatcherTest, looksAndWritesWhenTheApplicationBecomesActive)
{
    const FilePath unwatchable = m_folder.child("\xff");
    SqlitePreferenceStore &own = watch(unwatchable);
    SqlitePreferenceStore other(unwatchable);
    other.inTransaction([&] {
        append(other, "other");
        append(own, "own");
    });
    Q_EMIT qGuiApp->applicationStateChanged(Qt::ApplicationInactive);
    EXPECT_EQ(m_notices, 0);
    Q_EMIT qGuiApp->applicationStateChanged(Qt::ApplicationActive);
    EXPECT_EQ(m_notices, 1);
    EXPECT_EQ(words(other), (QStringList{"other", "own"}));
    std::filesystem::remove_all(unwatchable.c_str()); // which Qt cannot
}

} // namespace
} // namespace lorva
