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

#include <filesystem>

#include <sys/stat.h>

namespace lorva {
namespace {

using namespace std::chrono_literals;

/// Shows what is asked of it, and has changed when it is told so.
class ScriptedStore final : public ValuePreferenceStore
{
public:
    explicit ScriptedStore(FilePath file)
        : m_file(std::move(file))
    {
    }

    void inTransaction(std::function<void()> change) override { change(); }
    bool writeWaitingChanges() override { return true; }
    bool writeLastChanges(std::chrono::milliseconds patience) override
    {
        lastPatience = patience;
        return true;
    }
    bool takeChangesElsewhere() override
    {
        ++looks;
        return std::exchange(hasChanged, false);
    }
    std::optional<FilePath> file() const override { return m_file; }
    PreferenceStoreStatus status() const override
    {
        ADD_FAILURE() << "reads every value";
        return {};
    }

    int looks = 0;
    bool hasChanged = false;
    std::chrono::milliseconds lastPatience{};

private:
    std::optional<PreferenceRow> row(const QString &) const override { return std::nullopt; }
    void setRow(const QString &, const std::optional<PreferenceRow> &) override { }

    const FilePath m_file;
};

class PreferenceWatcherTest : public testing::Test
{
protected:
    Result<SqliteConnection> openRaw(const char *name = "preferences.sqlite") const
    {
        return SqliteConnection::open(m_folder.child(name), SqliteConnection::Access::readWrite);
    }
    SqlitePreferenceStore &watch(const FilePath &folder)
    {
        m_own.emplace(folder, 0ms);
        m_watcher.emplace(*m_own);
        QObject::connect(&*m_watcher, &PreferenceWatcher::changedElsewhere,
                         [this] { ++m_notices; });
        return *m_own;
    }

    const FilePath m_folder = test::makeCaseFolder();
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
        other.setString("other", "new");
        own.setString("own", "new");
    });
    Q_EMIT qGuiApp->applicationStateChanged(Qt::ApplicationInactive);
    EXPECT_EQ(m_notices, 0);
    Q_EMIT qGuiApp->applicationStateChanged(Qt::ApplicationActive);
    EXPECT_EQ(m_notices, 1);
    EXPECT_EQ(own.string("other"), "new");
    EXPECT_EQ(other.string("own"), "new");
    std::filesystem::remove_all(unwatchable.c_str()); // which Qt cannot
}

TEST_F(PreferenceWatcherTest, looksAgainAsANoticeMayComeBeforeTheCommit)
{
    const FilePath file = test::writeFile(m_folder, "preferences.sqlite", "x");
    ScriptedStore store(file);
    PreferenceWatcher watcher(store);
    QObject::connect(&watcher, &PreferenceWatcher::changedElsewhere, [this] { ++m_notices; });
    ASSERT_TRUE(test::waitUntil([&store] { return store.looks == 1; }));
    ASSERT_EQ(::chmod(file.c_str(), 0600), 0);
    ASSERT_TRUE(test::waitUntil([&store] { return store.looks > 1; }));
    QTimer::singleShot(20ms, [&store] { store.hasChanged = true; });
    EXPECT_TRUE(test::waitUntil([this] { return m_notices > 0; }));
    EXPECT_EQ(m_notices, 1);
}

TEST_F(PreferenceWatcherTest, theLastTryBeforeTheEndIsPatient)
{
    ScriptedStore store(m_folder.child("preferences.sqlite"));
    const PreferenceWatcher watcher(store);
    ASSERT_TRUE(QMetaObject::invokeMethod(qGuiApp, "aboutToQuit"));
    EXPECT_THAT(store.lastPatience, testing::AllOf(testing::Ge(1s), testing::Le(2s)));
}

/// As on a network volume, where there is no log and a writer keeps readers out. One that writes
/// nothing leaves no trace.
TEST_F(PreferenceWatcherTest, tellsOnceWhatWasLockedCanBeRead)
{
    for (const bool isLockedAtTheStart : {true, false}) {
        SqlitePreferenceStore(m_folder).setString("key", "mine");
        auto raw = openRaw();
        ASSERT_TRUE(raw && raw->run("PRAGMA journal_mode=DELETE"));
        ASSERT_TRUE(raw->run(isLockedAtTheStart ? "BEGIN EXCLUSIVE" : "BEGIN"));
        ASSERT_TRUE(raw->run("SELECT * FROM preferences"));
        SqlitePreferenceStore &own = watch(m_folder);
        m_notices = 0;
        if (!isLockedAtTheStart) { // but when it is first read
            Q_EMIT qGuiApp->applicationStateChanged(Qt::ApplicationActive);
            ASSERT_TRUE(raw->run("COMMIT") && raw->run("BEGIN EXCLUSIVE"));
        }
        EXPECT_EQ(own.string("key"), std::nullopt);
        EXPECT_EQ(m_notices, 0);
        ASSERT_TRUE(raw->run("ROLLBACK"));
        EXPECT_TRUE(test::waitUntil([this] { return m_notices > 0; }));
        EXPECT_EQ(own.string("key"), "mine");
        m_watcher.reset();
        m_own.reset();
    }
}

TEST_F(PreferenceWatcherTest, readsALockedFileThatTookThePlaceOnceItCan)
{
    SqlitePreferenceStore &own = watch(m_folder);
    Q_EMIT qGuiApp->applicationStateChanged(Qt::ApplicationActive);
    SqlitePreferenceStore(m_folder.child("other")).setString("key", "other");
    auto raw = openRaw("other/preferences.sqlite");
    ASSERT_TRUE(raw && raw->run("PRAGMA journal_mode=DELETE") && raw->run("BEGIN EXCLUSIVE"));
    std::filesystem::remove(m_folder.child("preferences.sqlite-wal").c_str());
    std::filesystem::rename(m_folder.child("other/preferences.sqlite").c_str(),
                            m_folder.child("preferences.sqlite").c_str());
    ASSERT_TRUE(test::waitUntil([this] { return m_notices == 1; }));
    ASSERT_TRUE(raw->run("ROLLBACK"));
    EXPECT_TRUE(test::waitUntil([this] { return m_notices == 2; }));
    EXPECT_EQ(own.string("key"), "other");
}

TEST_F(PreferenceWatcherTest, writesOncePermissionIsGivenRightAfterItWasMissed)
{
    const FilePath file = m_folder.child("preferences.sqlite");
    SqlitePreferenceStore(m_folder).setString("key", "stored");
    ::chmod(file.c_str(), 0444);
    ::chmod(m_folder.c_str(), 0755);
    {
        const test::AsOrdinaryUser user;
        watch(m_folder);
        EXPECT_TRUE(m_own->status().failure);
    }
    ::chmod(file.c_str(), 0644);
    EXPECT_TRUE(test::waitUntil([this] { return m_notices == 1; }));
    EXPECT_FALSE(m_own->status().failure);
}

} // namespace
} // namespace lorva
