// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT

// What the parse cache and the snapshot promise alike: the last save wins, and whatever happens the
// file is whole.
#include "CacheSupport.h"
#include "catalog/CacheSaver.h"
#include "support/AdverseSystem.h"

#include <QProcess>
#include <QRandomGenerator>

#include <thread>

namespace lorva {

namespace {

struct ParseCacheFile
{
    using Writer = CacheSaver;
    static constexpr char kName[] = "parse";
    static PersistedCache sample(int seed, int count) { return test::sampleCache(seed, count); }
    static QByteArray encode(const PersistedCache &cache) { return encodePersistedCache(cache); }
    static Result<PersistedCache> read(const FilePath &file) { return readPersistedCache(file); }
};

struct SnapshotFile
{
    using Writer = CatalogCache;
    static constexpr char kName[] = "snapshot";
    static CatalogSnapshot sample(int seed, int count) { return test::sampleSnapshot(seed, count); }
    static QByteArray encode(const CatalogSnapshot &snapshot) { return encodeSnapshot(snapshot); }
    static std::optional<CatalogSnapshot> read(const FilePath &file)
    {
        return CatalogCache(file).load();
    }
};

template <class Store>
class CacheFiles : public ::testing::Test
{
protected:
    /// Saves, and waits until it is done.
    void save(int seed, int count = 20)
    {
        typename Store::Writer(m_file).save(sample(seed, count));
    }
    static auto sample(int seed, int count = 20) { return Store::sample(seed, count); }
    /// Whether the file holds exactly this.
    bool holds(int seed, int count = 20) const
    {
        const auto value = Store::read(m_file);
        return value && *value == sample(seed, count);
    }

    /// Which of the libraries 1 and 2 the file holds at this moment; 0 for neither.
    int seenNow(int count) const
    {
        const auto value = Store::read(m_file);
        return !value ? 0 : *value == sample(1, count) ? 1 : *value == sample(2, count) ? 2 : 0;
    }

    const FilePath m_folder = test::makeCaseFolder();
    FilePath m_file = m_folder.child("file.json");
};

using Stores = ::testing::Types<ParseCacheFile, SnapshotFile>;
TYPED_TEST_SUITE(CacheFiles, Stores);

TYPED_TEST(CacheFiles, MakeTheirFolderWheneverItIsMissing)
{
    this->m_file = this->m_folder.child("a").child("b").child("file.json");
    typename TypeParam::Writer writer(this->m_file);
    // Somebody clears the user's folders while the program runs.
    ASSERT_EQ(::rmdir(this->m_file.parent().c_str()), 0) << "it was not made at first";
    EXPECT_FALSE(TypeParam::read(this->m_file));
    for (int seed = 1; seed < 4; ++seed) {
        this->save(seed);
        EXPECT_TRUE(this->holds(seed));
        ::unlink(this->m_file.c_str());
        ::rmdir(this->m_file.parent().c_str());
    }
}

TYPED_TEST(CacheFiles, HoldTheLastOfManySaves)
{
    for (int round = 0; round < 10; ++round) {
        {
            typename TypeParam::Writer writer(this->m_file);
            for (int seed = 0; seed < 5; ++seed)
                writer.save(this->sample(seed + round));
            // It is destroyed while it is busy.
        }
        EXPECT_TRUE(this->holds(4 + round));
    }
}

TYPED_TEST(CacheFiles, StayWholeWhereTheyCannotBeWritten)
{
    this->save(1, 2);
    {
        const test::FullDisk disk(4096);
        this->save(2, 100);
    }
    EXPECT_TRUE(this->holds(1, 2));
    ::chmod(this->m_folder.c_str(), 0555);
    {
        const test::AsOrdinaryUser user;
        this->save(3, 2);
    }
    ::chmod(this->m_folder.c_str(), 0755);
    EXPECT_TRUE(this->holds(1, 2));
    this->save(4, 2);
    EXPECT_TRUE(this->holds(4, 2));
}

TYPED_TEST(CacheFiles, GiveNothingWhenTheyCannotBeRead)
{
    this->save(1);
    ASSERT_TRUE(this->holds(1));
    ::chmod(this->m_folder.c_str(), 0755);
    ::chmod(this->m_file.c_str(), 0);
    ASSERT_EQ(::mkdir(this->m_folder.child("folder").c_str(), 0755), 0);
    ASSERT_EQ(::mkfifo(this->m_folder.child("fifo").c_str(), 0666), 0);
    const test::AsOrdinaryUser user;
    for (const char *name : {"file.json", "folder", "fifo", "missing", "file.json/below"})
        EXPECT_FALSE(TypeParam::read(this->m_folder.child(name))) << name;
}

TYPED_TEST(CacheFiles, AreReadWholeWhileTheyAreReplaced)
{
    this->save(1);
    std::jthread reader([this](const std::stop_token &stop) {
        while (!stop.stop_requested())
            EXPECT_NE(this->seenNow(20), 0);
    });
    for (int i = 1; i < 40; ++i)
        this->save(1 + i % 2);
}

TYPED_TEST(CacheFiles, StayWholeWhenTheSavingProcessIsKilled)
{
    for (int round = 0; round < 20 && !this->HasFailure(); ++round) {
        // Not by the store: thread checkers want no new threads once a process was started.
        test::writeFile(this->m_folder, "file.json", TypeParam::encode(this->sample(1, 200)));
        QProcess probe;
        probe.start(QStringLiteral(LORVA_CACHE_SAVING_PROBE),
                    {QLatin1String(TypeParam::kName), this->m_file.displayText()});
        // It is at work once its second library is there; after some more reads it dies wherever
        // it stands.
        int seen = 1;
        while (seen == 1 && !probe.waitForFinished(0))
            seen = this->seenNow(200);
        for (int more = QRandomGenerator::global()->bounded(6); more > 0 && seen != 0; --more)
            seen = this->seenNow(200);
        EXPECT_NE(seen, 0) << "a reader saw a broken file";
        EXPECT_EQ(probe.state(), QProcess::Running);
        probe.kill();
        probe.waitForFinished();
        EXPECT_NE(this->seenNow(200), 0) << "a broken file was left";
    }
}

} // namespace

} // namespace lorva
