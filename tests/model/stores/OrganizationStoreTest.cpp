// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#include "model/stores/OrganizationStore.h"
#include "model/records/StyleCategories.h"
#include "model/stores/CollectionStore.h"
#include "model/stores/DisplaySettingsStore.h"
#include "model/stores/FoundryStore.h"
#include "model/stores/LogoStore.h"
#include "model/stores/OrganizationChanges.h"
#include "model/stores/StyleStore.h"
#include "platform/SqlitePreferenceStore.h"
#include "support/MemoryPreferences.h"
#include "support/TestHome.h"

#include <gmock/gmock.h>

namespace lorva {
namespace {

/// All stores of one process.
struct Stores
{
    explicit Stores(PreferenceStore &given)
        : preferences(given)
    {
    }

    Result<OrganizationStore::Outcome> change(std::function<Result<void>(Organization &)> what)
    {
        return organization.change(std::move(what));
    }

    PreferenceStore &preferences;
    CollectionStore collections{preferences};
    StyleStore styles{preferences};
    FoundryStore foundries{preferences};
    OrganizationStore organization{preferences, collections, styles, foundries};
};

class OrganizationStoreTest : public testing::Test
{
protected:
    const FilePath m_folder = test::TestHome::instance().makeFolder(
        testing::UnitTest::GetInstance()->current_test_info()->name());
    SqlitePreferenceStore m_preferences{m_folder};
    SqlitePreferenceStore m_theirPreferences{m_folder};
    Stores m_own{m_preferences};
    Stores m_theirs{m_theirPreferences};
};

TEST_F(OrganizationStoreTest, twoProcessesLoseNothing)
{
    ASSERT_TRUE(m_own.change([](auto &o) { return createCollection(o, "1", "Posters"); }));
    ASSERT_TRUE(m_theirs.change([](auto &o) { return createCollection(o, "2", "Books"); }));
    for (int i = 0; i < 20; ++i) {
        Stores &one = i % 2 == 0 ? m_own : m_theirs;
        const QString family = QStringLiteral("Family %1").arg(i, 2, 10, QLatin1Char('0'));
        ASSERT_TRUE(one.change([=](auto &o) { return addFamilies(o, "1", {family}); }));
        ASSERT_TRUE(one.change([=](auto &o) { return setStyle(o, {family}, "mono"); }));
        ASSERT_TRUE(one.change([=](auto &o) {
            setFoundry(o, {family}, "klim");
            dismissFoundry(o, family);
            return renameFoundry(o, family, family);
        }));
    }
    const Organization own = m_own.organization.load();
    EXPECT_TRUE(own == m_theirs.organization.load());
    ASSERT_EQ(own.collections.size(), 2u);
    EXPECT_EQ(own.collections[0].name, "Books");
    EXPECT_EQ(own.collections[1].familyNames.size(), 20);
    EXPECT_EQ(own.styleCategories[3].familyNames, own.collections[1].familyNames);
    EXPECT_EQ(own.foundries.overrides.size(), 20);
    EXPECT_EQ(own.foundries.names.size(), 20);
    EXPECT_EQ(own.foundries.dismissed.size(), 20);
}

TEST_F(OrganizationStoreTest, anEditUndoesOwnChangesInWhatOthersMadeOfIt)
{
    ASSERT_TRUE(m_own.change([](auto &o) { return createCollection(o, "1", "Posters"); }));
    const auto added = m_own.change([](auto &o) {
        return addFamilies(o, "1", QStringList({"Inter", "Lato"}));
    });
    ASSERT_TRUE(added);
    ASSERT_TRUE(m_theirs.change([](auto &o) { return addFamilies(o, "1", {"Amiri"}); }));
    const auto undone = m_own.change([edit = added->edit](auto &o) {
        apply(edit.inverted(), o);
        return Result<void>();
    });
    ASSERT_TRUE(undone);
    EXPECT_EQ(undone->after.collections[0].familyNames, QStringList("Amiri"));
    EXPECT_EQ(undone->edit, added->edit.inverted());
    EXPECT_TRUE(m_theirs.organization.load() == undone->after);
}

TEST_F(OrganizationStoreTest, whatFailsOrChangesNothingWritesNothing)
{
    ASSERT_TRUE(m_own.change([](auto &o) { return createCollection(o, "1", "Posters"); }));
    m_theirPreferences.takeChangesElsewhere();
    const auto failed = m_own.change([](auto &o) {
        dismissFoundry(o, "klim");
        return createCollection(o, "2", "posters");
    });
    ASSERT_FALSE(failed);
    EXPECT_EQ(failed.error().kind, ErrorKind::invalidValue);
    const auto nothing = m_own.change([](auto &o) { return removeFamilies(o, "1", {"Inter"}); });
    ASSERT_TRUE(nothing);
    EXPECT_TRUE(nothing->edit.isEmpty());
    EXPECT_FALSE(m_theirPreferences.takeChangesElsewhere());
    EXPECT_TRUE(m_own.organization.load().foundries.dismissed.isEmpty());
}

TEST_F(OrganizationStoreTest, onlyThePartThatDiffersIsWritten)
{
    const QByteArray damaged = "[{";
    const QString collectionsKey = QStringLiteral("vantrel.merid.collections");
    m_preferences.setData(collectionsKey, damaged);
    ASSERT_TRUE(m_own.change([](auto &o) { return setStyle(o, {"Inter"}, "sans"); }));
    EXPECT_EQ(m_preferences.data(collectionsKey), damaged);
    EXPECT_FALSE(m_preferences.contains("vantrel.merid.foundryOverrides"));
    ASSERT_TRUE(m_own.change([](auto &o) { return createCollection(o, "1", "Posters"); }));
    EXPECT_EQ(m_preferences.data(collectionsKey + ".unreadable"), damaged);
    EXPECT_EQ(m_own.organization.load().collections.size(), 1u);
}

/// A store whose file is locked for long: every change runs on what is in memory, and once more
/// over what the file has come to hold by then.
class LockedStore final : public test::MemoryPreferences
{
public:
    void inTransaction(std::function<void()> change) override
    {
        if (!m_isInside)
            m_waiting.push_back(change);
        const bool wasInside = std::exchange(m_isInside, true);
        change();
        m_isInside = wasInside;
    }
    bool writeWaitingChanges() override { return m_waiting.empty(); }

    /// The lock is gone: what waits runs over what `fill` puts there.
    void release(const std::function<void(PreferenceStore &)> &fill)
    {
        clear();
        const auto waiting = std::exchange(m_waiting, {});
        fill(*this);
        m_waiting.clear();
        for (const auto &change : waiting)
            change();
    }

private:
    std::vector<std::function<void()>> m_waiting;
    bool m_isInside = false;
};

TEST(OrganizationOnALockedStore, changesAreMadeAgainWithoutTheStoresThatMadeThem)
{
    LockedStore preferences;
    {
        Stores stores(preferences);
        DisplaySettingsStore display(preferences);
        ASSERT_TRUE(stores.change([](auto &o) { return createCollection(o, "1", "Own"); }));
        const QStringList families{"Inter", "Lato"};
        const auto added =
            stores.change([families](auto &o) { return addFamilies(o, "1", families); });
        EXPECT_EQ(added->after.collections[0].familyNames, families);
        stores.foundries.setDismissed("klim", true);
        stores.foundries.setOverride("Inter", "rsms");
        stores.styles.setClassified();
        display.update("allFonts", [](auto &entry) { entry.browserPointSize = 48; });
    }
    preferences.release([](PreferenceStore &store) {
        CollectionStore(store).save({{"2", "Theirs", {"Amiri"}}});
        StyleStore(store).save({{"rounded", "Rounded", {}}});
        FoundryStore(store).setDismissed("dinamo", true);
        FoundryStore(store).setOverride("Lato", "");
        DisplaySettingsStore(store).update("allFonts",
                                           [](auto &entry) { entry.sampleText = "Aa"; });
    });

    const std::vector<FontCollectionRecord> expected{{"1", "Own", {"Inter", "Lato"}},
                                                     {"2", "Theirs", {"Amiri"}}};
    Stores stores(preferences);
    EXPECT_TRUE(stores.organization.load().collections == expected);
    const FoundryCorrections corrections{{{"Inter", "rsms"}, {"Lato", ""}}, {}, {"dinamo", "klim"}};
    EXPECT_TRUE(stores.foundries.corrections() == corrections);
    EXPECT_TRUE(stores.styles.load() == defaultStyleCategories());
    SourceDisplaySettings settings;
    settings.browserPointSize = 48;
    settings.sampleText = "Aa";
    EXPECT_TRUE(DisplaySettingsStore(preferences).settings("allFonts") == settings);
}

TEST(OrganizationOnALockedStore, whatTheUserSawIsMadeAgainAndNotTheCommand)
{
    LockedStore preferences;
    {
        Stores stores(preferences);
        const QStringList families{"Inter", "Lato"};
        ASSERT_TRUE(stores.change([](auto &o) { return createCollection(o, "1", "Posters"); }));
        ASSERT_TRUE(stores.change([=](auto &o) { return addFamilies(o, "1", families); }));
        ASSERT_TRUE(stores.change([](auto &o) { return createStyleCategory(o, "u", "Comic"); }));
        EXPECT_FALSE(stores.change([](auto &o) { return createCollection(o, "2", "POSTERS"); }));
        EXPECT_FALSE(stores.change([](auto &o) { return renameCollection(o, "3", "Books"); }));
        ASSERT_TRUE(stores.change([](auto &o) { return removeFamilies(o, "1", {"Amiri"}); }));
    }
    preferences.release([](PreferenceStore &store) {
        CollectionStore(store).save({{"3", "posters", {"Amiri"}}});
        std::vector<FontStyleCategoryRecord> categories = defaultStyleCategories();
        categories.push_back({"v", "COMIC", {}});
        StyleStore(store).save(categories);
    });
    Stores stores(preferences);
    const std::vector<FontCollectionRecord> expected{{"3", "posters", {"Amiri"}},
                                                     {"1", "Posters 2", {"Inter", "Lato"}}};
    const Organization organization = stores.organization.load();
    EXPECT_TRUE(organization.collections == expected);
    ASSERT_EQ(organization.styleCategories.size(), 8u);
    EXPECT_EQ(organization.styleCategories[6].name, "Comic 2");
    EXPECT_EQ(organization.styleCategories[7].name, "COMIC");
}

} // namespace
} // namespace lorva
