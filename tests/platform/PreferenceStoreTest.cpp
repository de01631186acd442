// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#include "platform/MemoryPreferenceStore.h"
#include "platform/SqlitePreferenceStore.h"
#include "support/TestHome.h"

#include <gmock/gmock.h>

namespace lorva {
namespace {

using Dictionary = QHash<QString, QString>;

/// What every kind of store owes its users.
class AnyPreferenceStore : public testing::TestWithParam<bool>
{
protected:
    const std::unique_ptr<PreferenceStore> m_store = makeStore();

private:
    static std::unique_ptr<PreferenceStore> makeStore()
    {
        if (GetParam())
            return std::make_unique<SqlitePreferenceStore>(test::TestHome::instance().root());
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

} // namespace
} // namespace lorva
