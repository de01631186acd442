// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT

#include "commands/LorvaSettingsViewModel.h"
#include "support/AdverseSystem.h"
#include "support/LibraryFixture.h"

#include <gmock/gmock.h>

#include <sys/stat.h>
#include <unistd.h>

namespace lorva {
namespace {

using test::FontBuilder;
using test::LibraryFixture;
using ::testing::ElementsAre;
using ::testing::SizeIs;

const QString kDefaultMethodKey = QStringLiteral("vantrel.merid.defaultInstallMethod");

class SettingsModel : public testing::Test
{
protected:
    SettingsModel()
    {
        home = test::makeCaseFolder();
        open();
    }

    void open()
    {
        settings = std::make_unique<LorvaSettingsViewModel>(*library.model);
        QObject::connect(settings.get(), &LorvaSettingsViewModel::refused,
                         [this](const QString &reason) { refusals.append(reason); });
        // At every moment: a message exactly while indexing, and never beside a result.
        QObject::connect(settings.get(), &LorvaSettingsViewModel::changed, [this] {
            ++changes;
            EXPECT_EQ(settings->isIndexing(), !settings->indexingMessage().isEmpty());
            EXPECT_FALSE(settings->isIndexing() && settings->completionMessage());
            messages.append(settings->indexingMessage());
        });
    }
    FilePath folder(const char *name, const QStringList &families)
    {
        const FilePath made = home.child(name);
        ::mkdir(made.c_str(), 0700);
        for (const QString &family : families)
            test::writeFile(made, family.toUtf8() + ".ttf", FontBuilder(family).build());
        return made;
    }
    bool ends()
    {
        return test::waitUntil([this] { return !settings->isIndexing(); });
    }
    bool add(const std::vector<FilePath> &folders)
    {
        settings->addFolders(folders);
        return ends();
    }
    QString title() const
    {
        const auto &completion = settings->completionMessage();
        return completion ? completion->title : QString();
    }

    FilePath home;
    LibraryFixture library;
    std::unique_ptr<LorvaSettingsViewModel> settings;
    QStringList refusals;
    QStringList messages;
    int changes = 0;
};

TEST_F(SettingsModel, AddsFoldersAndSaysWhatCameOfIt)
{
    const FilePath file = test::writeFile(home, "file", "x");
    const struct
    {
        const char *what;
        std::vector<FilePath> folders;
        const char *title;
        size_t listed;
        int refusals;
    } rows[]{
        {"none were chosen", {}, "", 0, 0},
        {"one new font", {folder("one", {"Alpha"})}, "Added 1 font", 1, 0},
        {"two", {folder("two", {"Beta", "Gamma"})}, "Added 2 fonts", 2, 0},
        {"no font", {folder("none", {})}, "No new fonts added", 3, 0},
        {"a file", {file}, "", 3, 1},
        {"a file among folders", {file, folder("more", {"Mu"})}, "Added 1 font", 4, 1},
    };
    for (const auto &row : rows) {
        SCOPED_TRACE(row.what);
        refusals.clear();
        ASSERT_TRUE(add(row.folders));
        EXPECT_EQ(title(), QLatin1String(row.title));
        EXPECT_THAT(settings->folders(), SizeIs(row.listed));
        EXPECT_THAT(refusals, SizeIs(row.refusals));
    }
    EXPECT_EQ(refusals.front(), QString::fromUtf8("“%1” is not a folder.").arg(file.displayText()));
    EXPECT_EQ(settings->completionMessage()->body,
              QStringLiteral("You can find them in your library."));
    settings->dismissCompletion();
    EXPECT_EQ(settings->completionMessage(), std::nullopt);
}

TEST_F(SettingsModel, ShowsTheScanThatItStartedAndNoOther)
{
    ASSERT_TRUE(library.load());
    EXPECT_EQ(settings->indexingMessage(), QString());
    settings->addFolders({folder("one", {"Alpha"})});
    EXPECT_EQ(settings->indexingMessage(), QString::fromUtf8("Scanning fonts…"));
    EXPECT_FALSE(settings->canAddFolders());
    settings->addFolders({home});
    ASSERT_TRUE(ends());
    EXPECT_TRUE(messages.contains(QString::fromUtf8("Preparing…")));
    EXPECT_THAT(settings->folders(), SizeIs(1)) << "one after the other";
    EXPECT_TRUE(settings->canAddFolders());
}

TEST_F(SettingsModel, RemovesAFolderWithoutAResult)
{
    ASSERT_TRUE(add({folder("one", {"Alpha"}), folder("two", {"Beta"})}));
    const QString first = settings->folders().front().id;
    settings->removeFolder(first);
    EXPECT_TRUE(settings->isIndexing());
    ASSERT_TRUE(ends());
    EXPECT_EQ(settings->completionMessage(), std::nullopt);
    EXPECT_THAT(settings->folders(), SizeIs(1));
    EXPECT_EQ(library.visibleNames(), QStringList{"Beta"});
    settings->removeFolder(first);
    EXPECT_THAT(refusals, ElementsAre(QStringLiteral("This folder is not watched any more.")));
    EXPECT_FALSE(settings->isIndexing());

    library.fonts->hold();
    settings->addFolders({folder("three", {"Gamma"})});
    ASSERT_TRUE(test::waitUntil([&] { return settings->folders().size() == 2; }));
    settings->removeFolder(settings->folders().front().id);
    library.fonts->letGo();
    ASSERT_TRUE(ends());
    EXPECT_EQ(title(), QStringLiteral("Added 1 font")) << "adding goes on";
}

TEST_F(SettingsModel, CancelEndsTheScanAndKeepsTheFolders)
{
    library.fonts->hold();
    settings->addFolders({folder("one", {"Alpha"})});
    ASSERT_TRUE(test::waitUntil([&] { return library.fonts->isAsked(); }));
    settings->cancelIndexing();
    EXPECT_FALSE(settings->isIndexing());
    EXPECT_FALSE(library.model->isLoading());
    EXPECT_EQ(settings->completionMessage(), std::nullopt);
    library.fonts->letGo();

    settings->addFolders({folder("two", {"Beta"})});
    settings->cancelIndexing();
    ASSERT_TRUE(test::waitUntil([&] {
        return settings->folders().size() == 2 && !library.model->isLoading();
    })) << "also when it had not begun";
    EXPECT_EQ(title(), QString());
    ASSERT_TRUE(library.load());
    EXPECT_EQ(library.visibleNames(), (QStringList{"Alpha", "Beta"}));
    EXPECT_EQ(title(), QString()) << "of a scan that was started elsewhere nothing is told";
}

TEST_F(SettingsModel, KnowsWhichFoldersAreThere)
{
    const FilePath full = folder("full", {"Alpha", "Beta"});
    const FilePath away = folder("away", {});
    ASSERT_TRUE(add({full, away}));
    ASSERT_EQ(::rmdir(away.c_str()), 0);
    settings->refresh();
    using Look = std::optional<LorvaAppModel::FolderLook>;
    const auto look = [&](size_t place) { return settings->look(settings->folders()[place].id); };
    EXPECT_TRUE(test::waitUntil([&] {
        return look(0) == Look({true, 2}) && look(1) == Look({false, 0});
    }));
    EXPECT_EQ(settings->look(QStringLiteral("other")), std::nullopt);
    test::writeFile(full, "Gamma.ttf", FontBuilder(QStringLiteral("Gamma")).build());
    ASSERT_TRUE(library.load());
    EXPECT_TRUE(test::waitUntil([&] {
        return look(0) == Look({true, 3});
    })) << "a scan changes the numbers";
}

TEST_F(SettingsModel, StoresTheDefaultMethodAndFollowsIt)
{
    PreferenceStore &preferences = *library.preferences;
    const struct
    {
        std::optional<InstallMethod> method;
        std::optional<QString> stored;
    } rows[]{
        {InstallMethod::copy, QStringLiteral("copy")},
        {InstallMethod::registerInPlace, QStringLiteral("register")},
        {std::nullopt, std::nullopt},
    };
    for (const auto &row : rows) {
        settings->setDefaultInstallMethod(row.method);
        EXPECT_EQ(settings->defaultInstallMethod(), row.method);
        EXPECT_EQ(preferences.string(kDefaultMethodKey), row.stored);
        open();
        EXPECT_EQ(settings->defaultInstallMethod(), row.method) << "as another window reads it";
    }
    preferences.setString(kDefaultMethodKey, QStringLiteral("register"));
    changes = 0;
    settings->refresh();
    EXPECT_EQ(settings->defaultInstallMethod(), InstallMethod::registerInPlace);
    EXPECT_EQ(changes, 1);
    preferences.setString(kDefaultMethodKey, QStringLiteral("teleport"));
    NotificationCentre::shared().post(ActivationProvider::changeNotification());
    EXPECT_EQ(settings->defaultInstallMethod(), std::nullopt) << "unknown is none";
}

TEST_F(SettingsModel, GoesAwayWhileItIndexes)
{
    library.fonts->hold();
    settings->addFolders({folder("one", {"Alpha"})});
    settings.reset();
    ASSERT_TRUE(test::waitUntil([&] { return library.fonts->isAsked(); }));
    open();
    settings->addFolders({folder("two", {"Beta"})});
    ASSERT_TRUE(test::waitUntil([&] { return library.model->watchedFolders().size() == 2; }));
    settings.reset();
    library.fonts->letGo();
    EXPECT_TRUE(test::waitUntil([&] { return !library.model->isLoading(); }));
    EXPECT_EQ(library.visibleNames(), (QStringList{"Alpha", "Beta"}));
}

} // namespace
} // namespace lorva
