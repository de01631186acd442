// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT

// Fonts switched on and off by keys and clicks in the whole program, as fontconfig's own tool sees
// it.

#include "app/LorvaApplicationDelegate.h"
#include "catalog/CatalogCache.h"
#include "commands/LorvaSettingsViewModel.h"
#include "install/FontInstallationService.h"
#include "platform/linux/XdgFolders.h"
#include "platform/RunLock.h"
#include "support/FontBuilder.h"
#include "support/ListedFonts.h"
#include "support/TestHome.h"
#include "support/Waiting.h"
#include "ui/browser/BrowserCollectionView.h"
#include "ui/browser/FontBrowserViewController.h"
#include "ui/LorvaRootSplitViewController.h"
#include "ui/settings/SettingsWindow.h"
#include "ui/sheets/AlertSheet.h"
#include "ui/sidebar/ProjectSidebarViewController.h"
#include "ui/sidebar/SidebarModel.h"
#include "ui/sidebar/SidebarOutlineView.h"
#include "ui/style/ReducedMotion.h"

#include <QAbstractButton>
#include <QApplication>
#include <QContextMenuEvent>
#include <QLabel>
#include <QMenu>
#include <QTest>

#include <gmock/gmock.h>

#include <filesystem>

namespace lorva {
namespace {

using test::FontBuilder;
using test::waitUntil;

/// The names of the files that programs find.
QStringList listedFiles()
{
    QStringList names;
    for (const QString &file : test::listedFontFiles())
        names.append(file.section(u'/', -1));
    names.removeDuplicates();
    names.sort();
    return names;
}

class ActivationJourney : public testing::Test
{
protected:
    ActivationJourney()
    {
        setReducedMotionOverride(true);
        const PlatformFolders folders = xdgFolders();
        std::filesystem::remove_all(folders.applicationSupport.c_str());
        std::filesystem::remove_all(folders.userFonts.c_str());
        const FilePath watched = test::TestHome::instance().makeFolder("watched");
        test::writeFile(watched, "one.ttf", FontBuilder("One").build());
        test::writeFile(watched, "one-bold.ttf",
                        FontBuilder("One", "Bold").weightClass(700).build());
        test::writeFile(watched, "two.ttf", FontBuilder("Two").build());
        test::writeFile(test::TestHome::instance().systemFonts(), "system.ttf",
                        FontBuilder("System").build());
        LaunchOptions options;
        options.folders = {watched};
        program = std::make_unique<LorvaApplicationDelegate>(options);
        program->applicationDidFinishLaunching();
        program->window()->activateWindow();
    }
    ~ActivationJourney() override
    {
        program.reset();
        setReducedMotionOverride(std::nullopt);
        std::filesystem::remove(
            test::TestHome::instance().systemFonts().child("system.ttf").c_str());
        std::filesystem::remove_all(xdgFolders().userFonts.c_str());
    }

    LorvaAppModel &model() { return program->model(); }
    LorvaRootSplitViewController &root() { return *program->rootController(); }
    BrowserCollectionView &cards() { return root().browser().collectionView(); }
    bool isReady()
    {
        // The display of the tests does not give it back when a menu has gone.
        program->window()->activateWindow();
        return waitUntil([this] {
            return !model().isLoading() && model().allFamilies()->size() == 3
                && program->window()->isActiveWindow() && root().isSettled()
                && !root().activation().isRunning();
        });
    }
    void press(Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::NoModifier)
    {
        QTest::keyClick(program->window()->windowHandle(), key, modifiers);
    }
    QPoint centreOf(const QString &family)
    {
        const int index = cards().selection().indexOf(family);
        return cards().viewportRect(cards().arrangement().cardRect(index)).center();
    }
    bool choose(const QString &family)
    {
        const auto index = [&] { return cards().selection().indexOf(family); };
        if (!waitUntil([&] { return index() >= 0 && cards().visibleItem(index()); }))
            return false;
        QTest::mouseClick(cards().viewport(), Qt::LeftButton, {}, centreOf(family));
        return root().browser().selectedNames() == QStringList(family);
    }
    template <class Widget>
    Widget *shown(const QString &name)
    {
        for (Widget *widget : program->window()->findChildren<Widget *>(name))
            if (widget->isVisible())
                return widget;
        return nullptr;
    }
    bool says(const QString &title)
    {
        return waitUntil([&] {
            const auto *label = shown<QLabel>(QStringLiteral("AlertSheet.Title"));
            return label && label->text() == title;
        });
    }
    bool click(const char *name)
    {
        const QString button = QString::fromLatin1(name);
        if (!waitUntil([&] { return shown<QAbstractButton>(button); }))
            return false;
        QTest::mouseClick(shown<QAbstractButton>(button), Qt::LeftButton);
        return true;
    }
    void openMenuOf(const SidebarItem &item)
    {
        SidebarOutlineView &outline = root().sidebar().outlineView();
        const auto &rows = dynamic_cast<const SidebarModel &>(*outline.model());
        const QPoint place = outline.visualRect(rows.indexOf(item)).center();
        QContextMenuEvent event(QContextMenuEvent::Mouse, place,
                                outline.viewport()->mapToGlobal(place));
        QCoreApplication::sendEvent(outline.viewport(), &event);
    }
    bool clickInMenu(const char *item)
    {
        auto *menu = qobject_cast<QMenu *>(QApplication::activePopupWidget());
        auto *action = menu ? menu->findChild<QAction *>(QString::fromLatin1(item)) : nullptr;
        if (!action)
            return false;
        QTest::mouseClick(menu, Qt::LeftButton, {}, menu->actionGeometry(action).center());
        return true;
    }

    std::unique_ptr<LorvaApplicationDelegate> program;
};

TEST_F(ActivationJourney, ByKeysAlone)
{
    ASSERT_TRUE(isReady());
    press(Qt::Key_O);
    ASSERT_EQ(root().browser().selectedNames(), QStringList{"One"});
    press(Qt::Key_E, Qt::ControlModifier);
    ASSERT_TRUE(
        waitUntil([&] { return shown<QAbstractButton>(QStringLiteral("InstallSheet.Copy")); }));
    press(Qt::Key_2, Qt::ControlModifier);
    EXPECT_EQ(model().viewMode(), ViewMode::grid) << "nothing else acts while it asks";
    press(Qt::Key_Return);
    ASSERT_TRUE(says(QStringLiteral("One installed")));
    press(Qt::Key_Return);
    EXPECT_EQ(listedFiles(), (QStringList{"one-bold.ttf", "one.ttf", "system.ttf"}));

    ASSERT_TRUE(isReady());
    press(Qt::Key_E, Qt::ControlModifier | Qt::ShiftModifier);
    ASSERT_TRUE(says(QStringLiteral("De-activate One?")));
    press(Qt::Key_Escape);
    EXPECT_FALSE(hasAlertSheet(*program->window()));
    press(Qt::Key_E, Qt::ControlModifier | Qt::ShiftModifier);
    ASSERT_TRUE(says(QStringLiteral("De-activate One?")));
    press(Qt::Key_Return);
    ASSERT_TRUE(says(QStringLiteral("One removed")));
    press(Qt::Key_Return);
    EXPECT_EQ(listedFiles(), QStringList{"system.ttf"});

    ASSERT_TRUE(isReady());
    press(Qt::Key_Z, Qt::ControlModifier);
    EXPECT_TRUE(waitUntil([] {
        return listedFiles() == QStringList{"one-bold.ttf", "one.ttf", "system.ttf"};
    }));
}

TEST_F(ActivationJourney, ByClicksOnACard)
{
    ASSERT_TRUE(isReady());
    ASSERT_TRUE(choose(QStringLiteral("Two")));
    const QPoint centre = centreOf(QStringLiteral("Two"));
    const auto openMenu = [&] {
        QContextMenuEvent event(QContextMenuEvent::Mouse, centre,
                                cards().viewport()->mapToGlobal(centre));
        QCoreApplication::sendEvent(cards().viewport(), &event);
    };
    openMenu();
    ASSERT_TRUE(clickInMenu("activateItem"));
    ASSERT_TRUE(click("InstallSheet.Remember"));
    ASSERT_TRUE(click("InstallSheet.Register"));
    ASSERT_TRUE(says(QStringLiteral("Two installed")));
    ASSERT_TRUE(click("AlertSheet.Button0"));
    EXPECT_EQ(listedFiles().size(), 2);
    EXPECT_FALSE(std::filesystem::exists(xdgFolders().userFonts.child("two.ttf").c_str()));
    EXPECT_EQ(model().installationService()->defaultMethod(), InstallMethod::registerInPlace);

    ASSERT_TRUE(isReady());
    openMenu();
    ASSERT_TRUE(clickInMenu("deactivateItem"));
    ASSERT_TRUE(click("AlertSheet.Button0"));
    ASSERT_TRUE(says(QStringLiteral("Two removed")));
    EXPECT_EQ(listedFiles(), QStringList{"system.ttf"});
}

TEST_F(ActivationJourney, AWholeCollectionFromTheSidebar)
{
    ASSERT_TRUE(isReady());
    const QString id = model().createCollection(QStringLiteral("Poster")).value();
    ASSERT_TRUE(model().addFamilies(id, {"One", "Two", "System", "Gone"}).has_value());
    model().installationService()->setDefaultMethod(InstallMethod::copy);
    ASSERT_TRUE(isReady());
    root().render();
    openMenuOf(SidebarItem::collection(id));
    ASSERT_TRUE(clickInMenu("SidebarActivate"));
    ASSERT_TRUE(says(QStringLiteral("2 Fonts installed")));
    ASSERT_TRUE(click("AlertSheet.Button0"));
    EXPECT_EQ(listedFiles(), (QStringList{"one-bold.ttf", "one.ttf", "system.ttf", "two.ttf"}));
    ASSERT_TRUE(isReady());
    openMenuOf(SidebarItem::collection(id));
    ASSERT_TRUE(clickInMenu("SidebarDeactivate"));
    ASSERT_TRUE(says(QStringLiteral("De-activate 2 fonts?")));
}

TEST_F(ActivationJourney, ClosingTheWindowEndsWhatRunsFirst)
{
    ASSERT_TRUE(isReady());
    model().installationService()->setDefaultMethod(InstallMethod::copy);
    {
        // Another process switches fonts: the run waits for it.
        const auto lock =
            RunLock::take(xdgFolders().activationLock(), std::chrono::seconds(10), {});
        ASSERT_TRUE(lock.has_value());
        root().activation().activate({"One", "Two"});
        ASSERT_TRUE(waitUntil([&] { return root().activation().isRunning(); }));
        program->window()->close();
        ASSERT_TRUE(waitUntil([&] { return !program->window()->isVisible(); }));
    }
    EXPECT_FALSE(model().installationService()->hasRuns());
    EXPECT_FALSE(hasAlertSheet(*program->window())) << "nobody is there to be told";
    EXPECT_EQ(listedFiles(), QStringList{"system.ttf"});
}

TEST_F(ActivationJourney, ClosingTheWindowLeavesASheetUnanswered)
{
    ASSERT_TRUE(isReady());
    root().activation().activate({"One"});
    ASSERT_TRUE(waitUntil([&] { return hasAlertSheet(*program->window()); }));
    program->window()->close();
    EXPECT_FALSE(program->window()->isVisible());
    program.reset();
    EXPECT_EQ(listedFiles(), QStringList{"system.ttf"});
}

TEST_F(ActivationJourney, SettingsFollowTheRememberedChoice)
{
    ASSERT_TRUE(isReady());
    press(Qt::Key_Comma, Qt::ControlModifier);
    auto *settings = program->window()->findChild<SettingsWindow *>();
    ASSERT_TRUE(settings && settings->isVisible());
    auto *picker = settings->findChild<QAbstractButton *>(QStringLiteral("Settings.MethodPicker"));
    ASSERT_TRUE(picker);
    EXPECT_TRUE(picker->text().contains(QStringLiteral("Ask every time")));
    model().installationService()->setDefaultMethod(InstallMethod::copy);
    model().setViewMode(ViewMode::list);
    EXPECT_TRUE(waitUntil(
        [&] { return picker->text().contains(QStringLiteral("Always copy to Fonts folder")); }));
    QTest::keyClick(settings, Qt::Key_Escape);
    EXPECT_FALSE(settings->isVisible());
    program->window()->close();
    EXPECT_FALSE(program->window()->isVisible());
}

} // namespace
} // namespace lorva
