// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#include "platform/MemoryPreferenceStore.h"
#include "platform/SqlitePreferenceStore.h"
#include "support/AdverseSystem.h"

#include <gmock/gmock.h>

namespace lorva {
namespace {

using Dictionary = QHash<QString, QString>;

/// What every kind of store owes its users.
class AnyPreferenceStore : public testing::TestWithParam<bool>
{
protected:
    void putValue(const QString &key, const PreferenceValue &value)
    {
        std::visit(Setter{*m_store, key}, value);
    }

    const std::unique_ptr<PreferenceStore> m_store = makeStore();

private:
    struct Setter
    {
        PreferenceStore &store;
        QString key;
        void operator()(const QByteArray &value) const { store.setData(key, value); }
        void operator()(const QString &value) const { store.setString(key, value); }
        void operator()(const QStringList &value) const { store.setStringArray(key, value); }
        void operator()(const Dictionary &value) const { store.setStringDictionary(key, value); }
        void operator()(bool value) const { store.setBoolean(key, value); }
    };

    static std::unique_ptr<PreferenceStore> makeStore()
    {
        if (GetParam())
            return std::make_unique<SqlitePreferenceStore>(test::makeCaseFolder());
        return std::make_unique<MemoryPreferenceStore>();
    }
};

INSTANTIATE_TEST_SUITE_P(Stores, AnyPreferenceStore, testing::Bool(),
                         [](const auto &each) { return each.param ? "Sqlite" : "Memory"; });

TEST_P(AnyPreferenceStore, keepsEveryKindExactly)
{
    const QByteArray bytes("\0\xff'\n", 4);
    const QString text = QStringLiteral("Ünï \"quoted\" \U0001F600\n");
    const QStringList texts{text, QString(), QStringLiteral("b"), QStringLiteral("a")};
    const Dictionary dictionary{{text, QString()}, {QStringLiteral("a.b"), text}};
    m_store->setData("data", bytes);
    m_store->setData("empty", QByteArray());
    m_store->setString("string", text);
    m_store->setStringArray("array", texts);
    m_store->setStringDictionary("dictionary", dictionary);
    m_store->setBoolean("no", false);

    EXPECT_EQ(m_store->data("data"), bytes);
    EXPECT_EQ(m_store->data("empty"), QByteArray());
    EXPECT_EQ(m_store->string("string"), text);
    EXPECT_EQ(m_store->stringArray("array"), texts);
    EXPECT_EQ(m_store->stringDictionary("dictionary"), dictionary);
    EXPECT_EQ(m_store->boolean("no"), false);
}

TEST_P(AnyPreferenceStore, anotherKindOrAnAbsentKeyGivesNothing)
{
    m_store->setString("key", "1");
    EXPECT_EQ(m_store->data("key"), std::nullopt);
    EXPECT_EQ(m_store->boolean("key"), std::nullopt);
    EXPECT_EQ(m_store->stringArray("key"), std::nullopt);
    EXPECT_EQ(m_store->string("KEY"), std::nullopt);
}

TEST_P(AnyPreferenceStore, aLaterValueReplacesWhateverStoodThere)
{
    m_store->setString("key", "old");
    m_store->setBoolean("key", true);
    EXPECT_EQ(m_store->string("key"), std::nullopt);
    EXPECT_EQ(m_store->boolean("key"), true);
    m_store->remove("key");
    m_store->remove("never there");
    EXPECT_EQ(m_store->boolean("key"), std::nullopt);
}

TEST_P(AnyPreferenceStore, aTransactionSeesItsOwnWrites)
{
    m_store->inTransaction([this] {
        m_store->setString("key", "inner");
        m_store->inTransaction([this] { m_store->setBoolean("nested", true); });
        EXPECT_EQ(m_store->string("key"), "inner");
        m_store->remove("key");
        EXPECT_EQ(m_store->string("key"), std::nullopt);
    });
    EXPECT_EQ(m_store->boolean("nested"), true);
    EXPECT_EQ(m_store->string("key"), std::nullopt);
}

TEST_P(AnyPreferenceStore, keepsWhatIsReplacedOnceAndAsItIs)
{
    const QString key = QStringLiteral("key");
    m_store->keepUnreadable(key);
    EXPECT_FALSE(m_store->contains("key.unreadable"));
    const std::vector<PreferenceValue> values{QByteArray("[\0\xff", 3), QStringLiteral("[ä"),
                                              QStringList{"a", QString()}, Dictionary{{"a", "b"}},
                                              false};
    for (const PreferenceValue &value : values) {
        putValue(key, value);
        m_store->keepUnreadable(key);
        m_store->inTransaction([this, key] { m_store->keepUnreadable(key); });
    }
    putValue(key, values[1]);
    m_store->keepUnreadable(key);
    m_store->remove(key);

    EXPECT_EQ(m_store->data("key.unreadable"), std::get<QByteArray>(values[0]));
    EXPECT_EQ(m_store->string("key.unreadable.2"), std::get<QString>(values[1]));
    EXPECT_EQ(m_store->stringArray("key.unreadable.3"), std::get<QStringList>(values[2]));
    EXPECT_EQ(m_store->stringDictionary("key.unreadable.4"), std::get<Dictionary>(values[3]));
    EXPECT_EQ(m_store->boolean("key.unreadable.5"), false);
    const std::vector<PreferenceStoreStatus::Entry> entries = m_store->status().entries;
    ASSERT_EQ(entries.size(), 5u);
    EXPECT_EQ(entries[1].key, "key.unreadable.2");
    EXPECT_EQ(entries[1].kind, "string");
    EXPECT_EQ(entries[1].size, 3);
}

} // namespace
} // namespace lorva
