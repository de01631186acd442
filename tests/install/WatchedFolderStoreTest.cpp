// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#include "install/WatchedFolderStore.h"

#include "install/ReplayingPreferences.h"
#include "install/WatchedFontRegistrar.h"
#include "platform/FontRegistrar.h"
#include "support/AdverseSystem.h"

#include <gmock/gmock.h>

#include <QUuid>

namespace lorva {
namespace {

using test::ReplayingPreferences;
using ::testing::ElementsAre;
using ::testing::IsEmpty;

const QString kKey = QStringLiteral("vantrel.merid.watchedFolders");

std::vector<FilePath> pathsOf(const std::vector<WatchedFolder> &folders)
{
    std::vector<FilePath> paths;
    for (const WatchedFolder &each : folders)
        paths.push_back(folderURL(each));
    return paths;
}

TEST(WatchedFolderStore, KeepsRecordsInTheirForm)
{
    ReplayingPreferences preferences;
    WatchedFolderStore store(preferences);
    EXPECT_THAT(store.load(), IsEmpty());
    const std::vector<WatchedFolder> folders{{"2", "\x01\xff", FilePath("/w/a b ä")},
                                             {"1", {}, FilePath("/v")}};
    store.save(folders);
    EXPECT_EQ(preferences.data(kKey),
              QByteArray(R"([{"id":"2","bookmark":"Af8=","lastKnownPath":"/w/a b ä"},)"
                         R"({"id":"1","bookmark":"","lastKnownPath":"/v"}])"));
    EXPECT_EQ(store.load(), folders);

    store.save({{"3", {}, FilePath("/\xff")}});
    EXPECT_EQ(store.load(), folders) << "what has no form is not written";
}

TEST(WatchedFolderStore, TakesDamagedListsForEmptyAndKeepsThem)
{
    const FilePath folder = test::makeCaseFolder();
    for (const char *stored :
         {"", "{}", "[1]", R"([{"id":"1","lastKnownPath":"/v"}])",
          R"([{"bookmark":"","lastKnownPath":"/v"}])", R"([{"id":"1","bookmark":""}])",
          R"([{"id":1,"bookmark":"","lastKnownPath":"/v"}])",
          R"([{"id":"1","bookmark":"?","lastKnownPath":"/v"}])",
          R"([{"id":"1","bookmark":"","lastKnownPath":"/v"},{}])"}) {
        SCOPED_TRACE(stored);
        ReplayingPreferences preferences;
        preferences.setData(kKey, stored);
        WatchedFolderStore store(preferences);
        EXPECT_THAT(store.load(), IsEmpty());
        EXPECT_EQ(store.remove("1"), std::nullopt);
        EXPECT_EQ(preferences.data(kKey), stored) << "nothing replaced it";
        EXPECT_THAT(pathsOf(store.add({folder})), ElementsAre(folder));
        EXPECT_THAT(pathsOf(store.load()), ElementsAre(folder));
        EXPECT_EQ(preferences.data(kKey + ".unreadable"), stored);
    }
}

/// Those that there are, as a caller finds them.
std::vector<FilePath> resolved(const std::vector<FilePath> &folders)
{
    std::vector<FilePath> out;
    for (const FilePath &folder : folders) {
        if (const Result<FilePath> path = resolvedFolder(folder))
            out.push_back(*path);
    }
    return out;
}

TEST(WatchedFolderStore, AddsEachFolderThatIsThereOnce)
{
    const FilePath root = test::makeCaseFolder();
    const FilePath one = root.child("one");
    const FilePath two = root.child("two");
    const FilePath bytes = root.child("\xff");
    for (const FilePath &each : {one, two, bytes})
        ASSERT_EQ(::mkdir(each.c_str(), 0700), 0);
    const FilePath link = root.child("link");
    ASSERT_EQ(::symlink("one", link.c_str()), 0);
    const FilePath file = test::writeFile(root, "file", "no folder");

    ReplayingPreferences preferences;
    WatchedFolderStore store(preferences);
    const auto added = store.add(resolved({link, one, root.child("gone"), file, bytes}));
    EXPECT_THAT(pathsOf(added), ElementsAre(one));
    EXPECT_FALSE(QUuid::fromString(added.at(0).id).isNull());
    EXPECT_EQ(added.at(0).bookmark, QByteArray());
    EXPECT_THAT(pathsOf(store.add(resolved({FilePath(two.bytes() + "/../one/"), two}))),
                ElementsAre(two));
    EXPECT_THAT(pathsOf(store.load()), ElementsAre(one, two));
    EXPECT_EQ(resolvedFolder(root.child("gone")).error().kind, ErrorKind::notFound);
    EXPECT_EQ(resolvedFolder(file).error().kind, ErrorKind::notRegularFile);
    EXPECT_EQ(folderURL({"1", {}, FilePath("relative")}), FilePath());
}

TEST(WatchedFolderStore, ChangesNothingButItsRecordWhenItChangesLater)
{
    const FilePath root = test::makeCaseFolder();
    ReplayingPreferences preferences;
    WatchedFolderStore store(preferences);
    const WatchedFolder other{"other", "bookmark", FilePath("/other")};
    const auto added = store.add({root});
    store.save({other});
    store.add({root});
    ASSERT_EQ(store.load().size(), 2u);

    const auto again = store.add({root});
    EXPECT_THAT(again, IsEmpty());
    preferences.setData(kKey, "[]");
    preferences.makeLastChangeAgain();
    EXPECT_THAT(pathsOf(store.load()), ElementsAre(root)) << "it went meanwhile, but was wanted";
    EXPECT_THAT(again, IsEmpty());

    const WatchedFolder kept = store.load().at(0);
    store.save({other, kept});
    const QByteArray both = preferences.data(kKey).value();
    EXPECT_EQ(store.remove(other.id), other);
    preferences.setData(kKey, both);
    preferences.makeLastChangeAgain();
    EXPECT_THAT(store.load(), ElementsAre(kept));
}

/// Notes what it is asked, and refuses every second font.
class NotingRegistrar final : public FontRegistrar
{
public:
    std::optional<FontManagerError> registerFont(const FilePath &, RegistrationScope) override
    {
        return FontManagerError{};
    }
    std::optional<FontManagerError> unregisterFont(const FilePath &file,
                                                   RegistrationScope scope) override
    {
        EXPECT_EQ(scope, RegistrationScope::process);
        files.push_back(file);
        if (files.size() % 2 == 0)
            return std::nullopt;
        return FontManagerError{FontManagerError::kNotRegistered, {}, {file}};
    }
    void registerFonts(const std::vector<FilePath> &, const Progress &) override { }
    void unregisterFonts(const std::vector<FilePath> &, const Progress &) override { }
    std::vector<FilePath> registeredFonts() const override { return {}; }
    void announceChanges() override { ADD_FAILURE() << "nobody else is concerned"; }

    std::vector<FilePath> files;
};

TEST(WatchedFontRegistrar, WithdrawsEveryFontOfTheFoldersFromTheProcess)
{
    const FilePath root = test::makeCaseFolder();
    const FilePath first = test::writeFile(root.child("b"), "1.otf", "");
    const FilePath second = test::writeFile(root.child("b"), "2.TTF", "");
    test::writeFile(root.child("b"), "notes.txt", "");
    const FilePath third = test::writeFile(root.child("a"), "3.otf", "");
    NotingRegistrar registrar;
    WatchedFontRegistrar().unregisterFonts({root.child("b"), root.child("gone"), root.child("a")},
                                           registrar);
    EXPECT_THAT(registrar.files, ElementsAre(first, second, third));
}

} // namespace
} // namespace lorva
