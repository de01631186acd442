// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#include "platform/SqliteConnection.h"
#include "platform/SqlitePreferenceStore.h"
#include "support/AdverseSystem.h"

#include <gmock/gmock.h>

#include <csignal>
#include <list>
#include <random>

#include <fcntl.h>
#include <sys/file.h>
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
        ::close(m_process == 0 ? m_toChild[1] : m_toChild[0]);
        if (m_process != 0)
            return;
        work(*this);
        ::_exit(0);
    }
    ~OtherProcess()
    {
        ::close(m_toParent[0]);
        ::close(m_toChild[1]);
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

TEST_F(PreferenceSharing, aChangeThatWroteNothingDoesNotWait)
{
    SqlitePreferenceStore own(m_folder, 0ms);
    int refused = 0;
    const auto refuse = [&own, &refused] { refused += own.contains("absent") ? 100 : 1; };
    auto raw = openRaw();
    ASSERT_TRUE(raw && raw->run("BEGIN IMMEDIATE"));
    own.inTransaction(refuse);
    EXPECT_EQ(own.status().waitingChanges, 0);
    own.setString("key", "value");
    own.inTransaction(refuse);
    EXPECT_EQ(own.status().waitingChanges, 1);
    ASSERT_TRUE(raw->run("ROLLBACK"));
    EXPECT_TRUE(own.writeWaitingChanges());
    EXPECT_EQ(refused, 2);
    EXPECT_EQ(SqlitePreferenceStore(m_folder).string("key"), "value");
}

TEST_F(PreferenceSharing, aChangeThatWaitedIsMadeAgainOnlyWhereTheOthersWroteWhatItRead)
{
    for (const auto &[othersKey, expectedRuns] : {std::pair("unrelated", 1), {"words", 2}}) {
        const QString key = QString::fromLatin1(othersKey);
        SqlitePreferenceStore other(m_folder);
        SqlitePreferenceStore own(m_folder, 0ms);
        int runs = 0;
        other.inTransaction([&] {
            other.setStringArray(key, {"other"});
            own.inTransaction([&] {
                ++runs;
                append(own, "own");
            });
        });
        EXPECT_TRUE(own.writeWaitingChanges());
        EXPECT_EQ(runs, expectedRuns) << othersKey;
        EXPECT_EQ(other.stringArray(key)->front(), "other");
        EXPECT_EQ(words(other).back(), "own");
    }
}

/// The file ends as it was when the first change ran, but the second one saw something else.
TEST_F(PreferenceSharing, whatWaitingChangesReadAtDifferentTimesIsReadAgain)
{
    SqlitePreferenceStore other(m_folder);
    SqlitePreferenceStore own(m_folder, 0ms);
    const auto copyTo = [&own](const QString &place) {
        own.inTransaction([&own, place] { own.setStringArray(place, words(own)); });
    };
    append(other, "a");
    other.inTransaction([&] {
        copyTo("first");
        append(other, "b");
    });
    other.inTransaction([&] {
        copyTo("second");
        other.setStringArray("words", {"a"});
    });
    EXPECT_EQ(own.stringArray("second"), (QStringList{"a", "b"}));
    EXPECT_TRUE(own.writeWaitingChanges());
    EXPECT_EQ(other.stringArray("second"), QStringList("a"));
    EXPECT_TRUE(own.takeChangesElsewhere());
}

TEST_F(PreferenceSharing, theLastTryWaitsThoughTheEarlierOnesWereInVain)
{
    const OtherProcess other([this](OtherProcess &self) {
        SqlitePreferenceStore store(m_folder);
        store.inTransaction([&] {
            append(store, "other");
            self.tell(1);
            self.awaitGo();
            store.setData("large", QByteArray(20000000, 'x')); // far longer than a try takes
        });
    });
    ASSERT_TRUE(other.hear());
    SqlitePreferenceStore own(m_folder, 0ms);
    append(own, "own");
    EXPECT_FALSE(own.writeLastChanges(1ms));
    other.letGo();
    EXPECT_TRUE(own.writeLastChanges(60s));
    other.awaitEnd();
    EXPECT_EQ(words(own), (QStringList{"other", "own"}));
}

TEST_F(PreferenceSharing, noNewFileIsMadeWhileADamagedOneIsMoved)
{
    const FilePath file = m_folder.child("preferences.sqlite");
    const int mover = ::open(m_folder.c_str(), O_RDONLY | O_DIRECTORY);
    ASSERT_EQ(::flock(mover, LOCK_EX), 0);
    SqlitePreferenceStore own(m_folder, 0ms);
    own.setString("key", "value");
    EXPECT_NE(::access(file.c_str(), F_OK), 0);
    EXPECT_EQ(own.status().failure->kind, ErrorKind::cancelled);
    ::close(mover);
    EXPECT_TRUE(own.writeWaitingChanges());
    EXPECT_EQ(SqlitePreferenceStore(m_folder).string("key"), "value");
}

TEST_F(PreferenceSharing, manyThatStartOnADamagedFileLoseNothing)
{
    for (int round = 0; round < 12; ++round) {
        const FilePath folder = m_folder.child(QByteArray::number(round));
        test::writeFile(folder, "preferences.sqlite", QByteArray(5000, 'x'));
        std::list<OtherProcess> starters;
        for (int i = 0; i < 6; ++i)
            starters.emplace_back([&folder, i](OtherProcess &self) {
                self.awaitGo();
                SqlitePreferenceStore store(folder, 60s);
                for (int key = 5 * i; key < 5 * i + 5; ++key)
                    store.setBoolean(QString::number(key), true);
                self.tell(store.writeLastChanges(60s));
            });
        for (const OtherProcess &starter : starters)
            starter.letGo();
        for (const OtherProcess &starter : starters) {
            EXPECT_EQ(starter.hear(), 1);
            starter.awaitEnd();
        }
        const PreferenceStoreStatus status = SqlitePreferenceStore(folder).status();
        EXPECT_EQ(status.entries.size(), 30u);
        EXPECT_EQ(status.movedAside.size(), 1u);
    }
}

} // namespace
} // namespace lorva
