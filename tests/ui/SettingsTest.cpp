// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT

// The settings as the user meets them: the real window over a real model, by keys, clicks and
// drops.

#include "commands/LorvaSettingsViewModel.h"
#include "support/LibraryFixture.h"
#include "ui/FontFamilyPasteboard.h"
#include "ui/settings/FontsSettingsTab.h"
#include "ui/settings/PopupButton.h"
#include "ui/settings/SettingsWindow.h"
#include "ui/settings/WatchedFolderList.h"
#include "ui/style/Palette.h"
#include "ui/style/ReducedMotion.h"

#include <QAccessible>
#include <QDir>
#include <QDragEnterEvent>
#include <QLabel>
#include <QListWidget>
#include <QMenu>
#include <QMimeData>
#include <QTest>

#include <gmock/gmock.h>

#include <sys/stat.h>
#include <unistd.h>

namespace lorva {
namespace {

using test::FontBuilder;
using ::testing::ElementsAre;
using ::testing::IsEmpty;

class Settings : public testing::Test
{
protected:
    Settings()
    {
        setReducedMotionOverride(true);
        home = test::TestHome::instance().home().child("Type");
        ::mkdir(home.c_str(), 0700);
        window.fontsTab().onFoldersWanted = [this](const FolderQuestion &question, auto done) {
            questions.push_back(question);
            done(chosen);
        };
        window.present();
        EXPECT_TRUE(QTest::qWaitForWindowExposed(&window));
    }
    ~Settings() override
    {
        setReducedMotionOverride(std::nullopt);
        setDarkDesktopOverride(std::nullopt);
        QDir(home.displayText()).removeRecursively();
    }

    template <class Part>
    Part *part(const char *name)
    {
        auto *found = window.findChild<Part *>(QLatin1String(name));
        EXPECT_TRUE(found) << name;
        return found;
    }
    void click(const char *name) { QTest::mouseClick(part<QWidget>(name), Qt::LeftButton); }
    void press(Qt::Key key) { QTest::keyClick(window.focusWidget(), key); }
    FilePath folder(const char *name, const QStringList &families = {})
    {
        const FilePath made = home.child(name);
        ::mkdir(made.c_str(), 0700);
        for (const QString &family : families)
            test::writeFile(made, family.toUtf8() + ".ttf", FontBuilder(family).build());
        return made;
    }
    bool ends()
    {
        return test::waitUntil([this] { return !settings.isIndexing(); });
    }
    bool add(const std::vector<FilePath> &folders)
    {
        chosen = folders;
        click("Settings.AddFolder");
        return ends();
    }
    /// As assistive technology reads the rows.
    QStringList rows()
    {
        QStringList texts;
        auto *list = part<QListWidget>("Settings.FolderList");
        for (int i = 0; i < list->count(); ++i)
            texts.append(list->item(i)->data(Qt::AccessibleTextRole).toString());
        return texts;
    }
    bool shows(const QStringList &texts)
    {
        return test::waitUntil([&] { return rows() == texts; });
    }
    std::optional<size_t> selected()
    {
        const std::optional<QString> id = window.fontsTab().selectedID();
        for (size_t i = 0; i < settings.folders().size(); ++i) {
            if (settings.folders()[i].id == id)
                return i;
        }
        return std::nullopt;
    }
    /// Texts that can be seen, from top to bottom.
    QStringList visibleTexts()
    {
        std::vector<std::pair<int, QString>> texts;
        for (QLabel *label : window.findChildren<QLabel *>()) {
            if (label->isVisible())
                texts.emplace_back(label->mapTo(&window, QPoint()).y(), label->text());
        }
        std::ranges::stable_sort(texts, {}, &std::pair<int, QString>::first);
        QStringList found;
        for (const auto &[y, text] : texts)
            found.append(text);
        return found;
    }

    static std::unique_ptr<QMimeData> files(const std::vector<FilePath> &paths)
    {
        QByteArray lines;
        for (const FilePath &path : paths)
            lines += path.toUrl() + "\r\n";
        auto data = std::make_unique<QMimeData>();
        data->setData(QStringLiteral("text/uri-list"), lines);
        return data;
    }
    bool enter(const QMimeData &data)
    {
        const QPoint middle = window.fontsTab().rect().center();
        QDragEnterEvent event(middle, Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
        QCoreApplication::sendEvent(&window.fontsTab(), &event);
        return event.isAccepted();
    }
    bool move(const QMimeData &data)
    {
        QDragMoveEvent event(QPoint(30, 30), Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
        QCoreApplication::sendEvent(&window.fontsTab(), &event);
        return event.isAccepted();
    }
    bool drop(const QMimeData &data)
    {
        QDropEvent event(QPointF(30, 30), Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
        QCoreApplication::sendEvent(&window.fontsTab(), &event);
        return event.isAccepted();
    }
    bool isDropTarget() { return window.findChild<WatchedFolderList *>()->isDropTarget(); }

    FilePath home;
    test::LibraryFixture library;
    LorvaSettingsViewModel settings{*library.model};
    SettingsWindow window{settings};
    std::vector<FolderQuestion> questions;
    std::vector<FilePath> chosen;
};

TEST_F(Settings, SaysWhatItIsAbout)
{
    EXPECT_EQ(window.windowTitle(), QStringLiteral("Settings"));
    EXPECT_EQ(window.width(), 560);
    const QString whatIsScanned =
        "Lorva scans these folders for font files and includes them in your library without "
        "installing them on your Mac.";
    const QString whatMethodsDo =
        "Copying duplicates font files into your user Fonts folder. Registering activates fonts "
        "from their current location, but they deactivate if the source moves.";
    EXPECT_EQ(visibleTexts(),
              (QStringList{"Watched Folders", whatIsScanned, "Activating Fonts",
                           "When activating fonts:", whatMethodsDo}));
    EXPECT_EQ(part<QAbstractButton>("Settings.AddFolder")->toolTip(), "Watch Folder");
    EXPECT_EQ(part<QAbstractButton>("Settings.RemoveFolder")->toolTip(), "Remove Folder");
    EXPECT_FALSE(part<QWidget>("Settings.RemoveFolder")->isEnabled()) << "nothing is selected";
    for (QAbstractButton *button : window.findChildren<QAbstractButton *>()) {
        QAccessibleInterface *accessible = QAccessible::queryAccessibleInterface(button);
        EXPECT_FALSE(accessible->text(QAccessible::Name).isEmpty())
            << button->objectName().toStdString();
    }
}

TEST_F(Settings, PlusAddsFoldersAndSaysWhatCameOfIt)
{
    library.fonts->hold();
    chosen = {folder("sans", {"Alpha", "Beta"})};
    click("Settings.AddFolder");
    EXPECT_THAT(questions, ElementsAre(watchFoldersQuestion()));
    EXPECT_EQ(part<QLabel>("Settings.IndexingMessage")->text(),
              QString::fromUtf8("Scanning fonts…"));
    EXPECT_FALSE(part<QWidget>("Settings.AddFolder")->isEnabled());
    library.fonts->letGo();
    ASSERT_TRUE(ends());
    EXPECT_FALSE(part<QWidget>("Settings.IndexingMessage")->isVisible());
    EXPECT_EQ(part<QLabel>("Settings.CompletionTitle")->text(), "Added 2 fonts");
    EXPECT_EQ(part<QLabel>("Settings.CompletionBody")->text(),
              "You can find them in your library.");
    EXPECT_TRUE(shows({"~/Type/sans, 2 fonts"}));
    click("Settings.Dismiss");
    EXPECT_FALSE(part<QWidget>("Settings.CompletionTitle")->isVisible());

    const FilePath file = test::writeFile(home, "file", "x");
    ASSERT_TRUE(add({file}));
    EXPECT_EQ(part<QLabel>("Settings.Problem")->text(),
              QString::fromUtf8("“~/Type/file” is not a folder."));
    click("Settings.DismissProblem");
    EXPECT_FALSE(part<QWidget>("Settings.Problem")->isVisible());
}

TEST_F(Settings, OpensOverTheMiddleOfItsParent)
{
    const QRect screen = window.screen()->availableGeometry();
    const QSize size(600, 600);
    // Whatever its parent hangs over, it does not.
    for (const QRect &place : {QRect(screen.center() - QPoint(320, 320), size),
                               QRect(screen.bottomRight() - QPoint(80, 80), size),
                               QRect(screen.topLeft() - QPoint(520, 520), size)}) {
        QWidget parent;
        parent.setGeometry(place);
        parent.show();
        SettingsWindow opened(settings, &parent);
        opened.present();
        const QPoint off = opened.frameGeometry().center() - parent.frameGeometry().center();
        EXPECT_TRUE(screen.contains(opened.frameGeometry())) << place.x();
        EXPECT_EQ(off.manhattanLength() <= 2, screen.contains(place)) << place.x();
        opened.move(screen.topLeft());
        opened.close();
        opened.present();
        EXPECT_EQ(opened.pos(), screen.topLeft()) << "it stays where the user put it";
    }
}

TEST_F(Settings, CancelEndsTheScan)
{
    library.fonts->hold();
    chosen = {folder("sans", {"Alpha"})};
    click("Settings.AddFolder");
    ASSERT_TRUE(test::waitUntil([&] { return library.fonts->isAsked(); }));
    click("Settings.Cancel");
    EXPECT_FALSE(library.model->isLoading());
    EXPECT_FALSE(part<QWidget>("Settings.Cancel")->isVisible());
    EXPECT_EQ(rows().size(), 1);
    library.fonts->letGo();
}

TEST_F(Settings, KeysSelectAndRemove)
{
    ASSERT_TRUE(add({folder("a", {"Alpha"}), folder("b"), folder("c")}));
    const FilePath away = home.child("b");
    ASSERT_EQ(::rmdir(away.c_str()), 0);
    settings.refresh();
    EXPECT_TRUE(shows({"~/Type/a, 1 font", "~/Type/b, Not there", "~/Type/c, No fonts"}));

    auto *list = part<QListWidget>("Settings.FolderList");
    press(Qt::Key_Delete);
    EXPECT_EQ(list->count(), 3) << "nothing is selected yet";
    part<QWidget>("Settings.AddFolder")->setFocus();
    list->setFocus(Qt::BacktabFocusReason);
    EXPECT_EQ(selected(), 0u) << "what the keys act on can be seen";
    press(Qt::Key_Down);
    EXPECT_EQ(selected(), 1u);
    press(Qt::Key_Delete);
    ASSERT_TRUE(ends());
    EXPECT_TRUE(shows({"~/Type/a, 1 font", "~/Type/c, No fonts"}));
    EXPECT_EQ(selected(), 1u) << "the next one";
    click("Settings.RemoveFolder");
    EXPECT_EQ(selected(), 0u) << "or the one before";
    press(Qt::Key_Backspace);
    ASSERT_TRUE(ends());
    EXPECT_THAT(rows(), IsEmpty());
    press(Qt::Key_Delete);
    EXPECT_FALSE(part<QWidget>("Settings.RemoveFolder")->isEnabled());
}

TEST_F(Settings, TheSelectionStaysWithItsFolder)
{
    ASSERT_TRUE(add({folder("a"), folder("b")}));
    auto *list = part<QListWidget>("Settings.FolderList");
    QTest::mouseClick(list->viewport(), Qt::LeftButton, {},
                      list->visualItemRect(list->item(1)).center());
    const std::optional<QString> id = window.fontsTab().selectedID();
    EXPECT_EQ(selected(), 1u);
    ASSERT_TRUE(library.model->removeWatchedFolder(settings.folders().front().id));
    EXPECT_EQ(window.fontsTab().selectedID(), id);
    EXPECT_EQ(selected(), 0u);
    window.fontsTab().setSelectedID(QStringLiteral("unknown"));
    EXPECT_EQ(selected(), std::nullopt);
}

TEST_F(Settings, TakesFoldersFromAFileManager)
{
    const FilePath file = test::writeFile(home, "f.ttf", FontBuilder("F").build());
    const FilePath sans = folder("sans", {"Alpha"});
    const auto good = files({file, sans});
    EXPECT_TRUE(enter(*good));
    EXPECT_TRUE(test::waitUntil([&] { return isDropTarget(); })) << "shows where it lands";
    QDragLeaveEvent leaving;
    QCoreApplication::sendEvent(&window.fontsTab(), &leaving);
    EXPECT_FALSE(isDropTarget());

    EXPECT_TRUE(enter(*good));
    EXPECT_TRUE(test::waitUntil([&] { return isDropTarget(); }));
    EXPECT_TRUE(move(*good));
    EXPECT_TRUE(drop(*good));
    EXPECT_FALSE(isDropTarget());
    ASSERT_TRUE(ends());
    EXPECT_TRUE(shows({"~/Type/sans, 1 font"}));
    EXPECT_EQ(part<QLabel>("Settings.Problem")->text(),
              QString::fromUtf8("“~/Type/f.ttf” is not a folder."));
}

TEST_F(Settings, RefusesOtherDrops)
{
    const FilePath file = test::writeFile(home, "f.ttf", "x");
    const auto onlyFiles = files({file});
    enter(*onlyFiles);
    EXPECT_TRUE(test::waitUntil([&] { return !move(*onlyFiles); }));
    EXPECT_FALSE(isDropTarget());
    EXPECT_FALSE(drop(*onlyFiles));

    // In a hurry: nobody has looked yet.
    EXPECT_TRUE(enter(*onlyFiles));
    EXPECT_TRUE(drop(*onlyFiles));
    ASSERT_TRUE(ends());
    EXPECT_TRUE(part<QWidget>("Settings.Problem")->isVisible());

    QMimeData text;
    text.setText(QStringLiteral("~/Type"));
    EXPECT_FALSE(enter(text));
    auto web = std::make_unique<QMimeData>();
    web->setUrls({QUrl(QStringLiteral("https://example.org/fonts"))});
    EXPECT_FALSE(enter(*web));
    const QUrl url = QUrl::fromEncoded(folder("sans").toUrl());
    EXPECT_FALSE(enter(*makeFontFamilyMimeData({"Alpha"}, {url}))) << "our own families";
    EXPECT_THAT(rows(), IsEmpty());
}

TEST_F(Settings, ThePickerStoresWhatIsChosen)
{
    auto *picker = part<PopupButton>("Settings.MethodPicker");
    const auto openMenu = [&]() -> QMenu * {
        QMenu *menu = picker->findChild<QMenu *>();
        return menu && menu->isVisible() ? menu : nullptr;
    };
    QTest::mouseClick(picker, Qt::LeftButton);
    ASSERT_TRUE(openMenu());
    QStringList entries;
    for (const QAction *entry : openMenu()->actions())
        entries.append(entry->text() + (entry->isChecked() ? "*" : ""));
    EXPECT_EQ(entries,
              (QStringList{"Ask every time*", "Always copy to Fonts folder",
                           "Always register in place"}));
    QMenu *menu = openMenu();
    QTest::mouseClick(menu, Qt::LeftButton, {},
                      menu->actionGeometry(menu->actions().at(1)).center());
    EXPECT_EQ(library.installation->defaultMethod(), InstallMethod::copy);
    EXPECT_EQ(picker->text(), "Always copy to Fonts folder");
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);

    picker->setFocus(Qt::TabFocusReason);
    press(Qt::Key_Space);
    ASSERT_TRUE(openMenu());
    QTest::keyClick(openMenu(), Qt::Key_Down);
    QTest::keyClick(openMenu(), Qt::Key_Return);
    EXPECT_EQ(library.installation->defaultMethod(), InstallMethod::registerInPlace);
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    press(Qt::Key_Up);
    ASSERT_TRUE(openMenu());
    QTest::keyClick(openMenu(), Qt::Key_Escape);
    EXPECT_TRUE(window.isVisible()) << "Escape was the menu's";
    EXPECT_EQ(library.installation->defaultMethod(), InstallMethod::registerInPlace);

    // The method sheet's "remember", for instance.
    library.installation->setDefaultMethod(std::nullopt);
    settings.refresh();
    EXPECT_EQ(picker->text(), "Ask every time");
}

TEST_F(Settings, EscapeAndCtrlWCloseTheWindow)
{
    QTest::keyClick(part<QListWidget>("Settings.FolderList"), Qt::Key_Escape);
    EXPECT_FALSE(window.isVisible());
    window.present();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&window));
    QTest::keyClick(&window, Qt::Key_W, Qt::ControlModifier);
    EXPECT_FALSE(window.isVisible());
}

TEST_F(Settings, TheTabKeyReachesEverythingThatCanBeUsed)
{
    ASSERT_TRUE(add({folder("a")}));
    ASSERT_TRUE(QTest::qWaitForWindowActive(&window));
    part<QWidget>("Settings.FolderList")->setFocus();
    press(Qt::Key_Down);
    QStringList order;
    do {
        order.append(window.focusWidget()->objectName());
        QTest::keyClick(window.focusWidget(), Qt::Key_Tab);
    } while (window.focusWidget()->objectName() != order.front() && order.size() < 10);
    EXPECT_EQ(order,
              (QStringList{"Settings.FolderList", "Settings.AddFolder", "Settings.RemoveFolder",
                           "Settings.Dismiss", "Settings.MethodPicker"}));
}

TEST_F(Settings, EverythingIsReadableInLightAndDark)
{
    ASSERT_TRUE(add({folder("a", {"Alpha"})}));
    for (const bool isDark : {false, true}) {
        setDarkDesktopOverride(isDark);
        const QColor ground = neutralColors(isDark).ground;
        EXPECT_EQ(window.grab().toImage().pixelColor(4, 4).rgb(), ground.rgb());
        for (QLabel *label : window.findChildren<QLabel *>()) {
            const QColor ink = label->palette().color(QPalette::WindowText);
            EXPECT_GE(contrastRatio(blended(ink, ground), ground), 4.5)
                << label->text().toStdString() << isDark;
        }
    }
}

} // namespace
} // namespace lorva
