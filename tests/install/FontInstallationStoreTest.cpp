// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#include "install/FontInstallationStore.h"

#include "install/ReplayingPreferences.h"

#include <gmock/gmock.h>

namespace lorva {
namespace {

using test::ReplayingPreferences;
using ::testing::IsEmpty;
using Methods = std::map<QString, InstallMethod>;

const QString kMethods = QStringLiteral("vantrel.merid.fontInstallations");
const QString kRegistered = QStringLiteral("vantrel.merid.lorvaRegisteredURLs");
const QString kOrigins = QStringLiteral("vantrel.merid.fontOrigins");
const QString kDefaultMethod = QStringLiteral("vantrel.merid.defaultInstallMethod");

constexpr InstallMethod kCopy = InstallMethod::copy;
constexpr InstallMethod kRegister = InstallMethod::registerInPlace;

FontInstallationStore::Changes someChanges()
{
    return {{{"Zed", kCopy}, {"Ä", kRegister}},
            {{FilePath("/z"), true}, {FilePath("/a"), true}, {FilePath("/\xff"), true}},
            {{FilePath("/f/a"), FilePath("/w/a")}, {FilePath("/f/b"), FilePath("/\xff")}}};
}

TEST(FontInstallationStore, KeepsItsBooksInTheirForms)
{
    ReplayingPreferences preferences;
    FontInstallationStore store(preferences);
    EXPECT_THAT(store.methods(), IsEmpty());
    store.change(someChanges());
    store.setDefaultMethod(kRegister);

    EXPECT_EQ(preferences.data(kMethods), QByteArray(R"({"Zed":"copy","Ä":"register"})"));
    EXPECT_EQ(preferences.stringArray(kRegistered), (QStringList{"/a", "/z"}));
    EXPECT_EQ(preferences.stringDictionary(kOrigins), (QHash<QString, QString>{{"/f/a", "/w/a"}}));
    EXPECT_EQ(preferences.string(kDefaultMethod), "register");
    EXPECT_EQ(store.methods(), (Methods{{"Zed", kCopy}, {"Ä", kRegister}}));
    EXPECT_EQ(store.registeredURLs(), (QSet{FilePath("/a"), FilePath("/z")}));
    EXPECT_EQ(store.origins().value(FilePath("/f/a")), FilePath("/w/a"));
    EXPECT_EQ(store.defaultMethod(), kRegister);

    store.change({{{"Zed", {}}, {"Ä", {}}}, {{FilePath("/z"), false}}, {{FilePath("/f/a"), {}}}});
    store.setDefaultMethod({});
    EXPECT_EQ(preferences.data(kMethods), QByteArray("{}"));
    EXPECT_EQ(preferences.stringArray(kRegistered), QStringList{"/a"});
    EXPECT_EQ(preferences.stringDictionary(kOrigins), (QHash<QString, QString>()));
    EXPECT_FALSE(preferences.contains(kDefaultMethod));
}

TEST(FontInstallationStore, LosesNothingThatAnotherWroteMeanwhile)
{
    ReplayingPreferences preferences;
    FontInstallationStore ours(preferences);
    FontInstallationStore theirs(preferences);
    EXPECT_THAT(ours.methods(), IsEmpty());
    EXPECT_THAT(ours.registeredURLs(), IsEmpty());
    EXPECT_THAT(ours.origins(), IsEmpty());
    theirs.change(someChanges());
    EXPECT_THAT(ours.methods(), IsEmpty()) << "read once";
    ours.change({{{"Own", kCopy}}, {{FilePath("/own"), true}}, {{FilePath("/f/a"), {}}}});

    EXPECT_EQ(ours.methods().size(), 3u);
    EXPECT_EQ(ours.registeredURLs().size(), 3);
    EXPECT_THAT(ours.origins(), IsEmpty());

    theirs.change({{{"Zed", {}}}, {{FilePath("/own"), false}}, {}});
    ours.change({{{"New", kCopy}}, {{FilePath("/new"), true}}, {}});
    theirs.change({{{"Ä", {}}}, {{FilePath("/a"), false}}, {}});
    preferences.makeLastChangeAgain();
    theirs.dropCaches();
    EXPECT_EQ(theirs.methods(), (Methods{{"Own", kCopy}, {"New", kCopy}}));
    EXPECT_EQ(theirs.registeredURLs(), (QSet{FilePath("/z"), FilePath("/new")}));
}

TEST(FontInstallationStore, WritesOnlyWhatDiffers)
{
    ReplayingPreferences preferences;
    FontInstallationStore store(preferences);
    preferences.setStringArray(kRegistered, {"/z", "/a"});
    store.change(someChanges());
    store.setDefaultMethod(kCopy);
    EXPECT_EQ(preferences.stringArray(kRegistered), (QStringList{"/z", "/a"})) << "the same set";

    const int before = preferences.writes();
    store.change({});
    store.change(someChanges());
    store.change({{{"None", {}}}, {{FilePath("/none"), false}}, {{FilePath("/none"), {}}}});
    store.setDefaultMethod(kCopy);
    EXPECT_EQ(preferences.writes(), before);
}

TEST(FontInstallationStore, KeepsWhatItCannotRead)
{
    const struct
    {
        QString key;
        std::function<void(PreferenceStore &, const QString &)> damage;
    } rows[]{
        {kMethods, [](auto &in, const QString &key) { in.setData(key, "{\"A\":\"copy\""); }},
        {kMethods, [](auto &in, const QString &key) { in.setData(key, R"({"A":1})"); }},
        {kMethods, [](auto &in, const QString &key) { in.setString(key, "{}"); }},
        {kRegistered, [](auto &in, const QString &key) { in.setData(key, "[\"/a\"]"); }},
        {kOrigins, [](auto &in, const QString &key) { in.setStringArray(key, {"/a"}); }},
        {kDefaultMethod, [](auto &in, const QString &key) { in.setString(key, "ask"); }},
        {kDefaultMethod, [](auto &in, const QString &key) { in.setBoolean(key, true); }},
    };
    for (const auto &row : rows) {
        SCOPED_TRACE(row.key.toStdString());
        ReplayingPreferences preferences;
        row.damage(preferences, row.key);
        FontInstallationStore store(preferences);
        EXPECT_TRUE(store.methods().empty() && store.registeredURLs().isEmpty()
                    && store.origins().isEmpty() && !store.defaultMethod());
        store.change({{{"None", {}}}, {{FilePath("/none"), false}}, {{FilePath("/none"), {}}}});
        EXPECT_FALSE(preferences.contains(row.key + ".unreadable")) << "nothing replaced it";
        store.change(someChanges());
        store.setDefaultMethod(kCopy);
        EXPECT_TRUE(preferences.contains(row.key + ".unreadable"));
        EXPECT_EQ(store.methods().size() + size_t(store.registeredURLs().size())
                      + size_t(store.origins().size()),
                  5u);
        EXPECT_EQ(store.defaultMethod(), kCopy);
    }
}

TEST(FontInstallationStore, TakesOnlyPathsAndMethodsFromWhatOthersWrote)
{
    ReplayingPreferences preferences;
    preferences.setData(kMethods, R"({"A":"register","B":"link"})");
    preferences.setStringArray(kRegistered,
                               {"", "relative.otf", QString::fromLatin1("/a\0b", 4), "/ok"});
    preferences.setStringDictionary(kOrigins, {{"/f/a", "a"}, {"b", "/w/b"}, {"/f/c", "/w/c"}});
    const FontInstallationStore store(preferences);
    EXPECT_EQ(store.methods(), (Methods{{"A", kRegister}, {"B", kCopy}}));
    EXPECT_EQ(store.registeredURLs(), QSet{FilePath("/ok")});
    EXPECT_EQ(store.origins(), (QHash<FilePath, FilePath>{{FilePath("/f/c"), FilePath("/w/c")}}));
}

} // namespace
} // namespace lorva
