// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#include "model/records/RecordsJson.h"
#include "model/records/StyleCategories.h"
#include "model/stores/CollectionStore.h"
#include "model/stores/DisplaySettingsStore.h"
#include "model/stores/FoundryStore.h"
#include "model/stores/LogoStore.h"
#include "model/stores/StyleStore.h"
#include "platform/MemoryPreferenceStore.h"
#include "platform/SqlitePreferenceStore.h"
#include "support/TestHome.h"

#include <gmock/gmock.h>

namespace lorva {
namespace {

using testing::IsEmpty;

const QString kStylesKey = QStringLiteral("vantrel.merid.styles");
const QString kClassifiedKey = QStringLiteral("vantrel.merid.stylesClassified.v3");
const QString kCollectionsKey = QStringLiteral("vantrel.merid.collections");
const QString kLogoKey = QStringLiteral("vantrel.merid.logo");

/// Settings with what `fill` puts into them.
SourceDisplaySettings settingsWith(const std::function<void(SourceDisplaySettings &)> &fill)
{
    SourceDisplaySettings out;
    fill(out);
    return out;
}

const SourceDisplaySettings kWithText = settingsWith([](auto &entry) { entry.sampleText = "Aa"; });

/// One key: what it gives when nothing can be read, and a change of it.
struct KeyCase
{
    QString key;
    std::function<bool(PreferenceStore &)> givesDefault;
    std::function<void(PreferenceStore &)> change;
};

const std::vector<KeyCase> kKeys{
    {kCollectionsKey, [](auto &store) { return CollectionStore(store).load().empty(); },
     [](auto &store) {
         CollectionStore(store).save({{"1", "Posters", {"Inter"}}});
     }},
    {kStylesKey, [](auto &store) { return StyleStore(store).load() == defaultStyleCategories(); },
     [](auto &store) {
         std::vector<FontStyleCategoryRecord> categories = defaultStyleCategories();
         categories[0].familyNames.append("Amiri");
         StyleStore(store).save(categories);
     }},
    {kClassifiedKey, [](auto &store) { return !StyleStore(store).isClassified(); },
     [](auto &store) { StyleStore(store).setClassified(); }},
    {"vantrel.merid.displaySettings",
     [](auto &store) { return DisplaySettingsStore(store).all().empty(); },
     [](auto &store) { DisplaySettingsStore(store).set(kWithText, "allFonts"); }},
    {"vantrel.merid.dismissedFoundries",
     [](auto &store) { return FoundryStore(store).dismissed().isEmpty(); },
     [](auto &store) { FoundryStore(store).setDismissed("klim", true); }},
    {"vantrel.merid.collapsedSidebarGroups",
     [](auto &store) { return FoundryStore(store).collapsedGroups().isEmpty(); },
     [](auto &store) { FoundryStore(store).setCollapsed("styles", true); }},
    {"vantrel.merid.foundryOverrides",
     [](auto &store) { return FoundryStore(store).overrides().isEmpty(); },
     [](auto &store) { FoundryStore(store).setOverride("Inter", ""); }},
    {"vantrel.merid.foundryNameOverrides",
     [](auto &store) { return FoundryStore(store).nameOverrides().isEmpty(); },
     [](auto &store) { FoundryStore(store).setNameOverride("klim", "Klim & Co"); }},
};

struct Damage
{
    const char *what;
    std::function<void(PreferenceStore &, const QString &)> put;
};

const std::vector<Damage> kDamages{
    {"no JSON", [](auto &store, auto &key) { store.setData(key, R"([{"id":"1","na)"); }},
    {"no bytes", [](auto &store, auto &key) { store.setData(key, ""); }},
    {"another shape", [](auto &store, auto &key) { store.setData(key, R"({"id":["1"]})"); }},
    {"one bad record",
     [](auto &store, auto &key) {
         store.setData(key, R"([{"id":"1","name":"A","familyNames":[]},{"id":"2"}])");
     }},
    {"a text", [](auto &store, auto &key) { store.setString(key, "text"); }},
    {"a boolean", [](auto &store, auto &key) { store.setBoolean(key, false); }},
};

auto held(const PreferenceStore &store, const QString &key)
{
    return std::make_tuple(store.data(key), store.string(key), store.boolean(key));
}

TEST(PreferenceKeys, whatCannotBeReadGivesDefaultsAndIsKeptWhenItIsReplaced)
{
    for (const KeyCase &each : kKeys) {
        for (const Damage &damage : kDamages) {
            SCOPED_TRACE(testing::Message() << each.key.toStdString() << ", " << damage.what);
            const QString key = each.key;
            const QString aside = key + ".unreadable";
            MemoryPreferenceStore store;
            damage.put(store, key);
            const auto damaged = held(store, key);

            EXPECT_TRUE(each.givesDefault(store));
            EXPECT_EQ(held(store, key), damaged) << "reading writes nothing";
            EXPECT_FALSE(store.contains(aside));

            each.change(store);
            EXPECT_FALSE(each.givesDefault(store));
            const bool isItsKind = store.boolean(key) && std::get<2>(damaged);
            EXPECT_EQ(held(store, aside) == damaged, !isItsKind);
            each.change(store);
            EXPECT_FALSE(store.contains(key + ".unreadable.2")) << "what is sound is not kept";
        }
    }
}

TEST(PreferenceKeys, aChangeThatChangesNothingWritesNothing)
{
    const FilePath folder = test::TestHome::instance().makeFolder("unchanged");
    SqlitePreferenceStore store(folder);
    SqlitePreferenceStore watcher(folder);
    for (const KeyCase &each : kKeys) {
        EXPECT_TRUE(each.givesDefault(store)) << each.key.toStdString();
        watcher.takeChangesElsewhere();
        each.change(store);
        EXPECT_TRUE(watcher.takeChangesElsewhere()) << each.key.toStdString();
        EXPECT_FALSE(each.givesDefault(watcher)) << each.key.toStdString();
        each.change(store);
        EXPECT_FALSE(watcher.takeChangesElsewhere()) << each.key.toStdString();
    }
}

QString defaultName(const QString &id)
{
    for (const FontStyleCategoryRecord &each : defaultStyleCategories()) {
        if (each.id == id)
            return each.name;
    }
    return id;
}

/// "id=Name:Family,Family" for each, without what is empty or the default name.
template <class Grouping>
QString textOf(const std::vector<Grouping> &groupings)
{
    QStringList out;
    for (const Grouping &each : groupings) {
        const QString name = each.name == defaultName(each.id) ? QString() : "=" + each.name;
        const QString members = each.familyNames.join(u',');
        out.append(each.id + name + (members.isEmpty() ? "" : ":") + members);
    }
    return out.join(u' ');
}

std::vector<FontStyleCategoryRecord> categoriesOf(const QString &text)
{
    std::vector<FontStyleCategoryRecord> out;
    for (const QString &word : text.split(u' ')) {
        const QString id = word.section(u':', 0, 0).section(u'=', 0, 0);
        const QString name = word.section(u':', 0, 0).section(u'=', 1);
        const QString members = word.section(u':', 1);
        out.push_back({id, name.isEmpty() ? defaultName(id) : name,
                       members.isEmpty() ? QStringList() : members.split(u',')});
    }
    return out;
}

struct Loading
{
    const char *what;
    const char *stored;
    const char *loaded;
    bool isWrittenBack;
    bool forgetsClassification;
};

void PrintTo(const Loading &row, std::ostream *out)
{
    *out << row.what;
}

class StyleLoading : public testing::TestWithParam<Loading>
{
};

TEST_P(StyleLoading, bringsWhatIsStoredUpToDate)
{
    MemoryPreferenceStore store;
    StyleStore styles(store);
    const QByteArray stored = encodeJson(categoriesOf(QString::fromLatin1(GetParam().stored)));
    const QString loaded = QString::fromLatin1(GetParam().loaded);
    store.setData(kStylesKey, stored);
    styles.setClassified();

    EXPECT_EQ(textOf(styles.load()), loaded);
    EXPECT_EQ(store.data(kStylesKey) != stored, GetParam().isWrittenBack);
    EXPECT_EQ(styles.isClassified(), !GetParam().forgetsClassification);

    styles.setClassified();
    EXPECT_EQ(textOf(styles.load()), loaded);
    EXPECT_TRUE(styles.isClassified()) << "only the first load finds something to do";
}

INSTANTIATE_TEST_SUITE_P(
    Stored, StyleLoading,
    testing::Values(
        Loading{"rounded", "serif:A sans display mono rounded:R decorative",
                "serif:A sans display mono script decorative", true, true},
        Loading{"roundedTwiceAndScript", "rounded:R u=Mine:U script:S,T rounded=Again:Q",
                "serif sans display mono script:S,T decorative u=Mine:U", true, true},
        Loading{"oldLabel", "serif sans=Sans:B display mono script decorative",
                "serif sans:B display mono script decorative", true, false},
        Loading{"missingOnes", "z=Mine:Z decorative:F serif:A a",
                "serif:A sans display mono script decorative:F z=Mine:Z a", true, false},
        Loading{"anotherOrder", "b a:A decorative mono:M,L display sans serif script",
                "serif sans display mono:M,L script decorative b a:A", false, false},
        Loading{"idsAndMembersTwice",
                "serif:A,B,A,,C u=Mine:U serif=Other:D,B sans display mono u:V script decorative",
                "serif:A,B,C,D sans display mono script decorative u=Mine:U,V", false, false}),
    [](const auto &loading) { return loading.param.what; });

TEST(CollectionStore, loadsInTheOrderOfNamesAndLeavesTheStoredOrder)
{
    MemoryPreferenceStore store;
    CollectionStore(store).save({{"3", "éclair", {}},
                                 {"1", "Zebra", {"B", "A"}},
                                 {"5", "apple", {}},
                                 {"4", "Apple", {}},
                                 {"2", "Easy", {}},
                                 {"1", "zebra", {"C", "B"}}});
    const std::optional<QByteArray> stored = store.data(kCollectionsKey);
    EXPECT_EQ(textOf(CollectionStore(store).load()),
              "4=Apple 5=apple 2=Easy 3=éclair 1=Zebra:B,A,C");
    EXPECT_EQ(store.data(kCollectionsKey), stored);
}

TEST(PreferenceKeys, namesThatNobodyCouldHaveTypedAreShownMended)
{
    MemoryPreferenceStore store;
    CollectionStore(store).save(
        {{"1", " \n", {"A"}}, {"2", "untitled", {}}, {"3", " Two\nlines ", {}}, {"4", "", {}}});
    std::vector<FontStyleCategoryRecord> categories = defaultStyleCategories();
    categories[0].name = " ";
    categories.insert(categories.end(), {{"u", "", {}}, {"v", "\n", {}}});
    StyleStore(store).save(categories);
    FoundryStore foundries(store);
    foundries.save({{}, {{"klim", " Klim\t"}, {"rsms", "\u200B"}}, {}});
    const std::optional<QByteArray> stored = store.data(kCollectionsKey);

    EXPECT_EQ(textOf(CollectionStore(store).load()),
              "3=Two lines 2=untitled 1=Untitled 2:A 4=Untitled 3");
    EXPECT_EQ(textOf(StyleStore(store).load()),
              "serif sans display mono script decorative u=Untitled v=Untitled 2");
    EXPECT_EQ(foundries.nameOverrides(), (QHash<QString, QString>{{"klim", "Klim"}}));
    EXPECT_EQ(store.data(kCollectionsKey), stored) << "loading alone writes nothing";
}

TEST(DisplaySettingsStore, collectionsHaveTheirOwnAndAllElseShares)
{
    EXPECT_EQ(displaySettingsKey(BrowserSource::collection("7")), "collection::7");
    for (const BrowserSource &source :
         {BrowserSource::allFonts(), BrowserSource::active(), BrowserSource::inactive(),
          BrowserSource::discover(), BrowserSource::style("7"), BrowserSource::foundry("7")})
        EXPECT_EQ(displaySettingsKey(source), "allFonts");
}

TEST(DisplaySettingsStore, changesOneEntryAndNothingElse)
{
    MemoryPreferenceStore store;
    DisplaySettingsStore settings(store);
    SourceDisplaySettings poster = kWithText;
    poster.browserPointSize = 36;
    settings.set(poster, "collection::1");
    settings.set(kWithText, "allFonts");
    poster.browserPointSize = 48;
    const std::map<QString, SourceDisplaySettings> expected{{"allFonts", kWithText},
                                                            {"collection::1", poster}};
    EXPECT_TRUE(settings.update("collection::1", [](auto &entry) { entry.browserPointSize = 48; })
                == expected);
    EXPECT_TRUE(settings.update("collection::2", [](auto &entry) { entry.sampleText.reset(); })
                == expected);

    EXPECT_TRUE(settings.all() == expected) << "an empty change adds nothing";
    EXPECT_TRUE(settings.settings("collection::1") == poster);
    EXPECT_EQ(settings.settings("collection::2"), std::nullopt);
    settings.update("allFonts", [](auto &entry) { entry.sampleText.reset(); });
    EXPECT_TRUE(settings.settings("allFonts") == SourceDisplaySettings());
}

TEST(LogoStore, movesItsLogoToTheSharedSettings)
{
    const std::vector<std::pair<double, double>> ratios{
        {1.5, 0.15}, {1.0, 1.0}, {1.0000001, 0.15}, {0.4, 0.4}, {-1, -1}};
    for (const auto &[stored, expected] : ratios) {
        MemoryPreferenceStore store;
        DisplaySettingsStore settings(store);
        settings.set(kWithText, "allFonts");
        store.setData(kLogoKey, encodeJson(LogoConfiguration{"PNG", stored, 12}));

        LogoStore(store).migrate(settings);
        SourceDisplaySettings wanted = kWithText;
        wanted.logoImageData = "PNG";
        wanted.logoSizeRatio = expected;
        wanted.logoSpacing = 12;
        EXPECT_TRUE(settings.settings("allFonts") == wanted) << stored;
        EXPECT_FALSE(store.contains(kLogoKey));
        settings.set(kWithText, "allFonts");
        LogoStore(store).migrate(settings);
        EXPECT_TRUE(settings.settings("allFonts") == kWithText) << "it moves once";
    }
}

TEST(LogoStore, aLogoThatCannotBeReadStaysWhereItIs)
{
    for (const Damage &damage : kDamages) {
        MemoryPreferenceStore store;
        DisplaySettingsStore settings(store);
        damage.put(store, kLogoKey);
        const auto damaged = held(store, kLogoKey);
        LogoStore(store).migrate(settings);
        EXPECT_EQ(held(store, kLogoKey), damaged) << damage.what;
        EXPECT_THAT(settings.all(), IsEmpty()) << damage.what;
    }
}

TEST(FoundryStore, changesOneEntryAndIgnoresEmptyNames)
{
    MemoryPreferenceStore store;
    FoundryStore foundries(store);
    for (const char *const id : {"typotheque", "", "klim", "Zapf", "dinamo"})
        foundries.setDismissed(QString::fromLatin1(id), true);
    foundries.setDismissed("klim", false);
    foundries.setOverride("Inter", "rsms");
    foundries.setOverride("Amiri", "");
    foundries.setOverride("", "rsms");
    foundries.setOverride("Inter", std::nullopt);
    foundries.setNameOverride("rsms", "Rasmus");
    foundries.setNameOverride("rsms", "");
    foundries.setNameOverride("", "Nobody");

    EXPECT_EQ(store.stringArray("vantrel.merid.dismissedFoundries"),
              QStringList({"Zapf", "dinamo", "typotheque"}));
    const FoundryCorrections expected{
        {{"Amiri", ""}}, {{"rsms", "Rasmus"}}, {"Zapf", "dinamo", "typotheque"}};
    EXPECT_EQ(foundries.corrections(), expected);
    MemoryPreferenceStore other;
    FoundryStore(other).save(expected);
    EXPECT_EQ(FoundryStore(other).corrections(), expected);
}

} // namespace
} // namespace lorva
