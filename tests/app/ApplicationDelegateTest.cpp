// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT

#include "app/LorvaApplicationDelegate.h"
#include "catalog/CatalogCache.h"
#include "platform/linux/XdgFolders.h"
#include "platform/RunLock.h"
#include "platform/SqlitePreferenceStore.h"
#include "support/FontBuilder.h"
#include "support/TestHome.h"
#include "support/Waiting.h"
#include "ui/browser/BrowserCollectionView.h"
#include "ui/browser/FontBrowserViewController.h"
#include "ui/LorvaRootSplitViewController.h"
#include "ui/sheets/AlertSheet.h"
#include "ui/sidebar/ProjectSidebarViewController.h"
#include "ui/style/ReducedMotion.h"

#include <QAbstractButton>
#include <QClipboard>
#include <QDir>
#include <QDropEvent>
#include <QLineEdit>
#include <QMenu>
#include <QMenuBar>
#include <QMimeData>
#include <QTest>

#include <gmock/gmock.h>

namespace lorva {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

/// What the scripted parts of the program were asked for, in order.
using Journal = std::vector<std::string>;

class ScriptedUpdater final : public UpdaterController
{
public:
    ScriptedUpdater(Journal &journal, Result<void> outcome)
        : m_journal(journal)
        , m_outcome(std::move(outcome))
    {
    }
    Result<void> start() override
    {
        m_journal.push_back("start");
        return m_outcome;
    }
    bool canCheckForUpdates() const override { return !m_journal.empty() && m_outcome.has_value(); }
    void checkForUpdates() override { m_journal.push_back("check"); }

private:
    Journal &m_journal;
    const Result<void> m_outcome;
};

class ScriptedOnboarding final : public OnboardingOverlayController
{
public:
    ScriptedOnboarding(Journal &journal, std::function<void(End)> &ended)
        : m_journal(journal)
        , m_ended(ended)
    {
    }
    ~ScriptedOnboarding() override { m_journal.push_back("welcome gone"); }
    void show(QWidget &, const WelcomeText &, std::function<void(End)> ended) override
    {
        m_journal.push_back("welcome");
        m_ended = std::move(ended);
    }

private:
    Journal &m_journal;
    std::function<void(End)> &m_ended;
};

QStringList &messages()
{
    static QStringList list;
    return list;
}

class ApplicationDelegate : public testing::Test
{
protected:
    ApplicationDelegate()
    {
        setReducedMotionOverride(true);
        QDir(xdgFolders().applicationSupport.displayText()).removeRecursively();
        const auto &home = test::TestHome::instance();
        for (const char *name : {"One", "Two"})
            test::writeFile(
                home.systemFonts(), QByteArray(name) + ".ttf",
                test::FontBuilder(QString::fromLatin1(name)).codePoints(U"Aa 123").build());
    }

    ProgramParts scripted(Result<void> updaterOutcome = {})
    {
        return {std::make_unique<ScriptedUpdater>(m_journal, std::move(updaterOutcome)),
                [this](LorvaAppModel &) {
                    return std::make_unique<ScriptedOnboarding>(m_journal, m_continue);
                }};
    }
    LorvaApplicationDelegate &launch(const LaunchOptions &options = {}, ProgramParts parts = {})
    {
        m_delegate.reset();
        m_delegate = std::make_unique<LorvaApplicationDelegate>(options, nullptr, std::move(parts));
        m_delegate->applicationDidFinishLaunching();
        m_delegate->window()->activateWindow();
        return *m_delegate;
    }
    bool waitForLibrary()
    {
        return test::waitUntil([this] {
            const LorvaAppModel &model = m_delegate->model();
            return !model.isLoading() && model.allFamilies()->size() == 2
                && m_delegate->rootController()->browser().isSettled();
        });
    }
    /// As the display would deliver it.
    void press(Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::NoModifier)
    {
        QTest::keyClick(m_delegate->window()->windowHandle(), key, modifiers);
    }
    QAction *command(const char *name) const
    {
        const QList<QAction *> actions = m_delegate->window()->actions();
        const auto found =
            std::ranges::find(actions, QString::fromLatin1(name), &QAction::objectName);
        EXPECT_NE(found, actions.end()) << name;
        return found == actions.end() ? nullptr : *found;
    }

    static void openMenuOf(const QAction *action)
    {
        for (QObject *object : action->associatedObjects())
            if (auto *menu = qobject_cast<QMenu *>(object)) {
                menu->popup({});
                menu->close();
            }
    }

    Journal m_journal;
    std::function<void(OnboardingOverlayController::End)> m_continue;
    std::unique_ptr<LorvaApplicationDelegate> m_delegate;
};

std::optional<bool> storedFlag()
{
    return SqlitePreferenceStore(xdgFolders().applicationSupport)
        .boolean(LorvaApplicationDelegate::onboardingFlag());
}

std::optional<QRect> storedFrame()
{
    SqlitePreferenceStore preferences(xdgFolders().applicationSupport);
    return WindowFrameStore(preferences).load();
}

TEST_F(ApplicationDelegate, OpensItsOneWindowAndKeepsItsFrame)
{
    QMainWindow *window = launch().window();
    EXPECT_EQ(window->windowTitle(), QStringLiteral("All Fonts"));
    EXPECT_EQ(window->minimumSize(), QSize(960, 800));
    EXPECT_TRUE(window->isVisible());
    EXPECT_EQ(window->windowOpacity(), 1.0) << "no welcome, no waiting";
    const QRect screen = QGuiApplication::primaryScreen()->availableGeometry();
    ASSERT_LT(screen.width(), 960) << "the offscreen display is a small one";
    EXPECT_EQ(window->size(), QSize(960, 800));
    EXPECT_EQ(window->geometry().center(),
              QRect(screen.center() - QPoint(479, 399), QSize(960, 800)).center());
    EXPECT_EQ(storedFlag(), std::nullopt) << "nobody has gone through a welcome";

    window->setGeometry(30, 20, 1000, 850);
    EXPECT_TRUE(test::waitUntil([] { return storedFrame() == QRect(30, 20, 1000, 850); }))
        << "also when it is never closed";
    window->setGeometry(20, 10, 1100, 900);
    window->close();
    EXPECT_EQ(launch().window()->geometry(), QRect(20, 10, 1100, 900));

    m_delegate->window()->setGeometry(-4000, 10, 1100, 900);
    m_delegate->window()->close();
    EXPECT_TRUE(launch().window()->geometry().intersects(screen)) << "its screen is gone";
    EXPECT_EQ(m_delegate->window()->size(), QSize(1100, 900));
}

TEST_F(ApplicationDelegate, WaitsInvisiblyForTheWelcomeAndShowsItOnce)
{
    using End = OnboardingOverlayController::End;
    launch({}, scripted());
    EXPECT_TRUE(m_delegate->window()->isVisible());
    EXPECT_EQ(m_delegate->window()->windowOpacity(), 0.0);
    EXPECT_TRUE(m_delegate->model().isLoading()) << "the library loads meanwhile";
    EXPECT_THAT(m_journal, ElementsAre("welcome"));
    EXPECT_EQ(storedFlag(), std::nullopt);

    m_continue(End::continued);
    EXPECT_EQ(m_delegate->window()->windowOpacity(), 1.0);
    EXPECT_EQ(storedFlag(), true);
    EXPECT_TRUE(test::waitUntil([this] { return m_journal.size() == 3; }));
    EXPECT_THAT(m_journal, ElementsAre("welcome", "start", "welcome gone"));

    m_journal.clear();
    launch({}, scripted());
    EXPECT_EQ(m_delegate->window()->windowOpacity(), 1.0);
    EXPECT_THAT(m_journal, ElementsAre("start"));
}

TEST_F(ApplicationDelegate, GoesOnWithoutUpdatesAndSaysSoInTheSystemLog)
{
    messages().clear();
    const QtMessageHandler usual = qInstallMessageHandler(
        [](QtMsgType, const QMessageLogContext &, const QString &text) { messages() << text; });
    launch({}, scripted(failure(ErrorKind::ioFailure, QStringLiteral("no feed"))));
    m_continue(OnboardingOverlayController::End::absent);
    qInstallMessageHandler(usual);
    EXPECT_TRUE(messages().contains(QStringLiteral("Sparkle updater failed to start: no feed")))
        << messages().join(u'\n').toStdString();
    EXPECT_EQ(m_delegate->window()->windowOpacity(), 1.0);
    EXPECT_EQ(storedFlag(), std::nullopt);
    command("Menu.CheckForUpdates")->trigger();
    EXPECT_TRUE(hasAlertSheet(*m_delegate->window())) << "who asks is told";

    m_journal.clear();
    launch({}, scripted());
    EXPECT_FALSE(command("Menu.CheckForUpdates")->isEnabled()) << "not before the welcome";
    m_continue(OnboardingOverlayController::End::absent);
    EXPECT_TRUE(command("Menu.CheckForUpdates")->isEnabled());
    command("Menu.CheckForUpdates")->trigger();
    EXPECT_EQ(m_journal.back(), "check");
}

TEST_F(ApplicationDelegate, GoesWithoutTheWelcomeWhereItIsToldTo)
{
    LaunchOptions options;
    options.skipsWelcome = true;
    launch(options, scripted());
    EXPECT_THAT(m_journal, ElementsAre("start"));
    EXPECT_EQ(storedFlag(), std::nullopt) << "it comes at the next start";
    options = {};
    options.welcome = LaunchWelcome::card;
    SqlitePreferenceStore(xdgFolders().applicationSupport)
        .setBoolean(LorvaApplicationDelegate::onboardingFlag(), true);
    m_journal.clear();
    launch(options, scripted());
    EXPECT_THAT(m_journal, ElementsAre("welcome"));
}

TEST_F(ApplicationDelegate, RestsWhatTheQuizCovers)
{
    launch();
    ASSERT_TRUE(waitForLibrary());
    ASSERT_TRUE(test::waitUntil([this] { return m_delegate->window()->isActiveWindow(); }));
    const bool couldGrow = command("Menu.Larger")->isEnabled();
    press(Qt::Key_O, Qt::ControlModifier | Qt::ShiftModifier);
    LorvaRootSplitViewController &root = *m_delegate->rootController();
    ASSERT_TRUE(root.isQuizOpen());
    EXPECT_FALSE(root.browser().isVisible());
    EXPECT_THAT(root.selectedNames(), IsEmpty());
    for (const char *name : {"Menu.Find", "Menu.SelectAll", "Menu.Activate", "Menu.Grid",
                             "Menu.Larger", "Menu.OrganizeFonts", "Menu.Rescan"})
        EXPECT_FALSE(command(name)->isEnabled()) << name;
    for (const char *name : {"Menu.About", "Menu.Settings", "Menu.Close", "Menu.FullScreen"})
        EXPECT_TRUE(command(name)->isEnabled()) << name;

    root.closeQuiz();
    EXPECT_TRUE(root.browser().isVisible());
    for (const char *name : {"Menu.Find", "Menu.SelectAll", "Menu.Grid", "Menu.OrganizeFonts"})
        EXPECT_TRUE(command(name)->isEnabled()) << name;
    EXPECT_EQ(command("Menu.Larger")->isEnabled(), couldGrow);
    EXPECT_TRUE(root.browser().isAncestorOf(QApplication::focusWidget()))
        << "the keyboard is where it was";
}

/// Starts with files alone, and gives their window once it shows them.
FontFilesWindow *openedFiles(LorvaApplicationDelegate &delegate)
{
    EXPECT_TRUE(test::waitUntil([&] {
        return delegate.filesWindow() && delegate.filesWindow()->isVisible()
            && delegate.filesWindow()->isSettled();
    }));
    return delegate.filesWindow();
}

TEST_F(ApplicationDelegate, FilesComeWithoutTheLibraryWhichFollowsWhenItIsWanted)
{
    LaunchOptions options;
    options.places = {test::TestHome::instance().systemFonts().child("Two.ttf")};
    m_delegate = std::make_unique<LorvaApplicationDelegate>(options, nullptr, scripted());
    m_delegate->applicationDidFinishLaunching();
    FontFilesWindow *files = openedFiles(*m_delegate);
    EXPECT_EQ(files->windowTitle(), QStringLiteral("Two"));
    EXPECT_EQ(m_delegate->window(), nullptr);
    EXPECT_FALSE(m_delegate->model().isLoading()) << "nothing waits for a scan";
    EXPECT_THAT(m_journal, IsEmpty()) << "nobody is welcomed";

    SqlitePreferenceStore(xdgFolders().applicationSupport)
        .setBoolean(LorvaApplicationDelegate::onboardingFlag(), true);
    QTest::mouseClick(files->findChild<QAbstractButton *>(QStringLiteral("fontFilesLibrary")),
                      Qt::LeftButton);
    ASSERT_TRUE(m_delegate->window());
    ASSERT_TRUE(waitForLibrary());
    EXPECT_TRUE(test::waitUntil(
        [this] { return m_delegate->model().selectedFamilyName() == QStringLiteral("Two"); }));

    // Either window can be closed first.
    m_delegate->window()->close();
    EXPECT_TRUE(files->isVisible());
    m_delegate->takeOver({});
    EXPECT_TRUE(m_delegate->window()->isVisible());
    files->close();
    EXPECT_TRUE(files->state().isEmpty()) << "the fonts are let go";
    EXPECT_TRUE(m_delegate->window()->isVisible());
}

/// A family that is not active, in the library and in a window of its own, and a run of another
/// process that keeps everything from beginning.
class ApplicationDelegateRuns : public ApplicationDelegate
{
protected:
    ApplicationDelegateRuns()
    {
        const auto &home = test::TestHome::instance();
        QDir(home.userFonts().displayText()).remove(QStringLiteral("three.ttf"));
        const FilePath more = home.makeFolder("to-be-switched");
        m_file = test::writeFile(more, "three.ttf", test::FontBuilder("Three").build());
        m_held = RunLock::take(xdgFolders().activationLock(), std::chrono::seconds(10), {});
        LaunchOptions options;
        options.skipsWelcome = true;
        options.folders = {more};
        launch(options);
        m_delegate->model().installationService()->setDefaultMethod(InstallMethod::copy);
    }
    void switchInLibrary()
    {
        ASSERT_TRUE(test::waitUntil([this] {
            return !m_delegate->model().isLoading()
                && m_delegate->model().allFamilies()->size() == 3;
        }));
        m_delegate->rootController()->activation().activate({QStringLiteral("Three")});
        ASSERT_TRUE(isRunning(m_delegate->rootController()->activation()));
    }
    void openFiles()
    {
        m_delegate->takeOver({{m_file.bytes()}, FilePath("/"), {}});
        openedFiles(*m_delegate);
    }
    void switchInFiles()
    {
        QTest::mouseClick(m_delegate->filesWindow()->findChild<QAbstractButton *>(
                              QStringLiteral("fontFilesActivate")),
                          Qt::LeftButton);
        ASSERT_TRUE(isRunning(m_delegate->filesWindow()->activation()));
    }
    static bool isRunning(const ActivationCommands &commands)
    {
        return test::waitUntil([&] { return commands.isRunning(); });
    }
    bool closes(const QWidget *window)
    {
        return test::waitUntil([&] { return !window->isVisible(); });
    }
    bool isSwitching() const { return m_delegate->model().installationService()->hasRuns(); }

    FilePath m_file;
    std::optional<Result<RunLock>> m_held;
};

TEST_F(ApplicationDelegateRuns, TheLastWindowWaitsForTheRunOfTheOther)
{
    switchInLibrary();
    openFiles();
    FontFilesWindow *files = m_delegate->filesWindow();
    m_delegate->window()->close();
    EXPECT_FALSE(m_delegate->window()->isVisible()) << "the program goes on";
    files->close();
    EXPECT_TRUE(files->isVisible());
    m_held.reset();
    EXPECT_TRUE(closes(files));
    EXPECT_FALSE(isSwitching());
}

TEST_F(ApplicationDelegateRuns, QuittingWaitsForWhatTheFilesBegan)
{
    openFiles();
    switchInFiles();
    FontFilesWindow *files = m_delegate->filesWindow();
    QTest::keyClick(files, Qt::Key_Q, Qt::ControlModifier);
    EXPECT_TRUE(files->isVisible());
    EXPECT_TRUE(isSwitching());
    m_held.reset();
    EXPECT_TRUE(closes(files));
    EXPECT_FALSE(m_delegate->window()->isVisible());
    EXPECT_FALSE(isSwitching());
}

TEST_F(ApplicationDelegateRuns, TheLibraryComesBackAsItWas)
{
    switchInLibrary();
    QMainWindow *window = m_delegate->window();
    window->close();
    ASSERT_FALSE(window->isEnabled()) << "it waits";
    m_delegate->takeOver({});
    EXPECT_TRUE(window->isEnabled());
    ASSERT_TRUE(test::waitUntil([this] { return !isSwitching(); }));
    window->close();
    EXPECT_FALSE(window->isVisible());

    m_delegate->takeOver({});
    m_held.reset();
    switchInLibrary();
    EXPECT_TRUE(test::waitUntil([&] { return hasAlertSheet(*window); })) << "what came of it";
    EXPECT_TRUE(window->isVisible() && window->isEnabled());
}

TEST_F(ApplicationDelegate, HandedOverFilesAreShownAndFoldersAdded)
{
    const auto &home = test::TestHome::instance();
    const FilePath more = home.makeFolder("handed-over");
    test::writeFile(more, "three.ttf", test::FontBuilder("Three").build());
    launch();
    ASSERT_TRUE(waitForLibrary());
    m_delegate->takeOver({{more.bytes()}, FilePath("/"), {}});
    EXPECT_TRUE(test::waitUntil([this] { return m_delegate->model().allFamilies()->size() == 3; }));
    EXPECT_EQ(m_delegate->filesWindow(), nullptr);
    m_delegate->takeOver({{"three.ttf", "gone.ttf"}, more, {}});
    const FontFilesWindow *files = openedFiles(*m_delegate);
    EXPECT_EQ(files->state().faceCount(), 1);
    EXPECT_EQ(files->state().problems.size(), 1U);

    m_delegate->takeOver({{"--view", "list", "three.ttf"}, more, "permission"});
    EXPECT_TRUE(qEnvironmentVariableIsEmpty("XDG_ACTIVATION_TOKEN")) << "the files have the front";
    EXPECT_TRUE(test::waitUntil(
        [] { return qgetenv("XDG_ACTIVATION_TOKEN") == QByteArray("permission"); }));
    qunsetenv("XDG_ACTIVATION_TOKEN");
}

TEST_F(ApplicationDelegate, FontFilesThatAreDroppedOnTheWindowAreShownByThemselves)
{
    launch();
    ASSERT_TRUE(waitForLibrary());
    const auto drop = [this](const FilePath &file) {
        QMimeData data;
        data.setData(QStringLiteral("text/uri-list"), file.toUrl());
        QWidget *target = &m_delegate->rootController()->browser();
        QDragEnterEvent enter(QPoint(50, 50), Qt::CopyAction, &data, Qt::LeftButton, {});
        QApplication::sendEvent(target, &enter);
        if (!enter.isAccepted())
            return false;
        QDropEvent event(QPointF(50, 50), Qt::CopyAction, &data, Qt::LeftButton, {});
        QApplication::sendEvent(target, &event);
        return event.isAccepted();
    };
    EXPECT_FALSE(drop(FilePath("/a/photo.png")));
    EXPECT_TRUE(drop(test::TestHome::instance().systemFonts().child("One.ttf")));
    EXPECT_EQ(openedFiles(*m_delegate)->windowTitle(), QStringLiteral("One"));
    EXPECT_EQ(m_delegate->model().allFamilies()->size(), 2U) << "no folder is added";
}

TEST_F(ApplicationDelegate, ActsOnItsShortcuts)
{
    LorvaAppModel &model = launch().model();
    ASSERT_TRUE(waitForLibrary());
    ASSERT_TRUE(test::waitUntil([this] { return m_delegate->window()->isActiveWindow(); }));

    press(Qt::Key_2, Qt::ControlModifier);
    EXPECT_EQ(model.viewMode(), ViewMode::list);
    press(Qt::Key_1, Qt::ControlModifier);
    EXPECT_EQ(model.viewMode(), ViewMode::grid);
    const double size = model.browserPointSize();
    press(Qt::Key_Equal, Qt::ControlModifier);
    press(Qt::Key_Plus, Qt::ControlModifier);
    EXPECT_GT(model.browserPointSize(), size + 1);
    press(Qt::Key_Minus, Qt::ControlModifier);
    press(Qt::Key_0, Qt::ControlModifier);
    EXPECT_EQ(model.browserPointSize(), size);

    EXPECT_FALSE(command("Menu.Undo")->isEnabled());
    ASSERT_TRUE(model.createCollection(QStringLiteral("A & B")));
    EXPECT_TRUE(command("Menu.Undo")->isEnabled());
    EXPECT_TRUE(command("Menu.Undo")->text().startsWith(QStringLiteral("Undo ")));
    press(Qt::Key_Z, Qt::ControlModifier);
    EXPECT_THAT(model.collections(), IsEmpty());
    press(Qt::Key_Z, Qt::ControlModifier | Qt::ShiftModifier);
    EXPECT_EQ(model.collections().size(), 1U);

    press(Qt::Key_F11);
    EXPECT_TRUE(m_delegate->window()->isFullScreen());
    EXPECT_EQ(command("Menu.FullScreen")->text(), QStringLiteral("Exit Full Screen"));
    press(Qt::Key_F11);
    EXPECT_FALSE(m_delegate->window()->isFullScreen());

    command("Menu.About")->trigger();
    auto *sheet = m_delegate->window()->findChild<QWidget *>(QStringLiteral("AlertSheet"));
    ASSERT_TRUE(sheet);
    press(Qt::Key_2, Qt::ControlModifier);
    command("Menu.List")->trigger();
    EXPECT_EQ(model.viewMode(), ViewMode::grid) << "nothing acts while a sheet is there";
    press(Qt::Key_Escape);
    press(Qt::Key_Q, Qt::ControlModifier);
    EXPECT_FALSE(m_delegate->window()->isVisible());
}

TEST_F(ApplicationDelegate, LeavesTheTextKeysToATextThatIsEdited)
{
    LorvaAppModel &model = launch().model();
    ASSERT_TRUE(waitForLibrary());
    ASSERT_TRUE(test::waitUntil([this] { return m_delegate->window()->isActiveWindow(); }));
    ASSERT_TRUE(model.createCollection(QStringLiteral("Kept")));

    press(Qt::Key_F, Qt::ControlModifier);
    auto *field = qobject_cast<QLineEdit *>(QApplication::focusWidget());
    ASSERT_TRUE(field) << "Find goes to the search field";
    for (const Qt::Key key : {Qt::Key_O, Qt::Key_N})
        press(key);
    EXPECT_EQ(field->text().toLower(), QStringLiteral("on"));
    press(Qt::Key_A, Qt::ControlModifier);
    EXPECT_EQ(field->selectedText(), field->text());
    field->deselect();
    command("Menu.SelectAll")->trigger();
    EXPECT_EQ(field->selectedText(), field->text()) << "the menu's command does the same";
    press(Qt::Key_Z, Qt::ControlModifier);
    EXPECT_TRUE(field->text().isEmpty());
    EXPECT_EQ(model.collections().size(), 1U) << "the key undid the text alone";
    field->setText({});
    field->insert(QStringLiteral("x"));
    openMenuOf(command("Menu.Undo"));
    command("Menu.Undo")->trigger();
    EXPECT_TRUE(field->text().isEmpty());
    EXPECT_EQ(model.collections().size(), 1U);
}

/// Wherever the keyboard is, but in a text.
TEST_F(ApplicationDelegate, SelectsAndCopiesTheCards)
{
    launch();
    ASSERT_TRUE(waitForLibrary());
    ASSERT_TRUE(test::waitUntil([this] { return m_delegate->window()->isActiveWindow(); }));
    FontBrowserViewController &browser = m_delegate->rootController()->browser();
    BrowserCollectionView &cards = browser.collectionView();
    QWidget *const places[]{
        &cards, &m_delegate->rootController()->sidebar(),
        m_delegate->window()->findChild<QWidget *>(QStringLiteral("logoButton"))};
    for (QWidget *place : places) {
        BrowserSelection none = cards.selection();
        none.choose(-1);
        cards.setSelection(none);
        QGuiApplication::clipboard()->clear();
        place->setFocus(Qt::TabFocusReason);
        press(Qt::Key_A, Qt::ControlModifier);
        EXPECT_EQ(browser.selectedNames().size(), 2);
        press(Qt::Key_C, Qt::ControlModifier);
        EXPECT_EQ(QGuiApplication::clipboard()->text(), QStringLiteral("One\nTwo"));
    }
}

/// Nothing of the window is out of reach without a mouse, forwards or back.
TEST_F(ApplicationDelegate, TabGoesThroughTheWholeWindowAndBack)
{
    launch();
    ASSERT_TRUE(waitForLibrary());
    ASSERT_TRUE(test::waitUntil([this] { return m_delegate->window()->isActiveWindow(); }));
    m_delegate->window()->resize(1720, 920);
    m_delegate->rootController()->sidebar().setFocus();

    const auto placeOfFocus = [] {
        QWidget *widget = QApplication::focusWidget();
        QString name = widget->objectName();
        for (QWidget *outer = widget->parentWidget(); name.startsWith(u"qt_") || name.isEmpty();
             outer = outer->parentWidget())
            name = outer->objectName();
        return name.toStdString();
    };
    const auto round = [&](Qt::Key key, Qt::KeyboardModifiers modifiers) {
        std::vector<std::string> names;
        do {
            names.push_back(placeOfFocus());
            press(key, modifiers);
        } while (placeOfFocus() != names.front() && names.size() < 30);
        return names;
    };
    std::vector<std::string> places = round(Qt::Key_Tab, Qt::NoModifier);
    EXPECT_THAT(places,
                ElementsAre("SidebarOutlineView", "SidebarAddButton", "addFolderButton",
                            "mainMenuButton", "BrowserCollectionView", "pointSizeSlider",
                            "fontWeightSlider", "whiteChip", "logoButton", "sampleTextButton",
                            "viewModeControl", "searchField"));
    const std::vector<std::string> back = round(Qt::Key_Backtab, Qt::ShiftModifier);
    std::reverse(places.begin() + 1, places.end());
    EXPECT_EQ(back, places);
}

TEST_F(ApplicationDelegate, ShowsTheMenuBarOnlyWhileItIsUsed)
{
    launch();
    ASSERT_TRUE(waitForLibrary());
    ASSERT_TRUE(test::waitUntil([this] {
        return m_delegate->window()->isActiveWindow()
            && m_delegate->window()->findChild<QMenuBar *>(QStringLiteral("MenuBar"));
    }));
    auto *bar = m_delegate->window()->findChild<QMenuBar *>(QStringLiteral("MenuBar"));
    QWindow *window = m_delegate->window()->windowHandle();
    const auto closePopups = [] {
        while (QWidget *popup = QApplication::activePopupWidget())
            popup->close();
    };
    EXPECT_FALSE(bar->isVisible());

    QTest::keyPress(window, Qt::Key_Alt, Qt::AltModifier);
    QTest::keyClick(window, Qt::Key_X, Qt::AltModifier);
    QTest::keyRelease(window, Qt::Key_Alt);
    EXPECT_FALSE(bar->isVisible()) << "Alt was not alone";

    for (const Qt::Key key : {Qt::Key_Alt, Qt::Key_F10}) {
        press(key);
        EXPECT_TRUE(bar->isVisible());
        EXPECT_EQ(bar->actions().size(), 5);
        EXPECT_TRUE(QApplication::activePopupWidget());
        closePopups();
        m_delegate->rootController()->browser().setFocus();
        EXPECT_TRUE(test::waitUntil([&] { return !bar->isVisible(); }));
    }

    const QWidget *cards = QApplication::focusWidget();
    press(Qt::Key_F10);
    ASSERT_TRUE(QApplication::activePopupWidget());
    QTest::keyClick(QApplication::activePopupWidget(), Qt::Key_Escape);
    EXPECT_TRUE(bar->isVisible()) << "the arrow keys still choose a menu";
    press(Qt::Key_Escape);
    EXPECT_TRUE(test::waitUntil([&] { return !bar->isVisible(); }));
    EXPECT_EQ(QApplication::focusWidget(), cards);

    press(Qt::Key_F10);
    while (QWidget *popup = QApplication::activePopupWidget())
        QTest::keyClick(popup, Qt::Key_Return);
    EXPECT_TRUE(test::waitUntil([&] { return !bar->isVisible(); })) << "a command was given";
}

TEST_F(ApplicationDelegate, ShowsWhatItsStartAsksForOnceTheLibraryIsKnown)
{
    LaunchOptions options;
    options.selectedFamily = QStringLiteral("Two");
    options.searchText = QStringLiteral("tw");
    options.colorMode = ColorMode::image;
    options.logo = FilePath("/nowhere/logo.png");
    LorvaAppModel &model = launch(options).model();
    EXPECT_EQ(model.searchQuery(), QStringLiteral("tw"));
    EXPECT_TRUE(model.backgroundImageID().has_value());
    EXPECT_TRUE(test::waitUntil([&] { return model.selectedFamilyName() == u"Two"; }));
}

TEST_F(ApplicationDelegate, TakesTheStartOfAnotherProcessOver)
{
    LorvaAppModel &model = launch().model();
    ASSERT_TRUE(waitForLibrary());
    ASSERT_TRUE(model.createCollection(QStringLiteral("Mine")));
    const FilePath folder = test::TestHome::instance().makeFolder("more");
    test::writeFile(folder, "three.ttf", test::FontBuilder(QStringLiteral("Three")).build());
    m_delegate->window()->showMinimized();

    m_delegate->takeOver({{"--view", "list", "--folder", "more", "--source", "collection:Mine"},
                          test::TestHome::instance().root(),
                          {}});
    EXPECT_FALSE(m_delegate->window()->isMinimized());
    EXPECT_EQ(model.viewMode(), ViewMode::list);
    EXPECT_EQ(model.selectedSource().kind(), BrowserSource::Kind::collection);
    EXPECT_TRUE(test::waitUntil([&] { return model.allFamilies()->size() == 3; }));
    EXPECT_TRUE(test::waitUntil(
        [this] { return m_delegate->window()->windowTitle() == QStringLiteral("Mine"); }));

    m_delegate->takeOver({{"--frobnicate"}, FilePath("/"), {}});
    EXPECT_EQ(model.viewMode(), ViewMode::list) << "what is not understood changes nothing";
    int answered = 0;
    presentAlert(*m_delegate->window(),
                 {Alert::Style::informational, QStringLiteral("?"), {}, {{QStringLiteral("OK")}}},
                 [&](int) { ++answered; });
    const FilePath other = test::TestHome::instance().makeFolder("other");
    test::writeFile(other, "four.ttf", test::FontBuilder(QStringLiteral("Four")).build());
    m_delegate->takeOver({{"--view", "grid", "--folder", other.bytes()}, FilePath("/"), {}});
    EXPECT_EQ(model.viewMode(), ViewMode::list) << "a question is open";
    EXPECT_TRUE(test::waitUntil([&] { return model.allFamilies()->size() == 4; }));
    press(Qt::Key_Escape);
    EXPECT_EQ(answered, 1);
}

} // namespace
} // namespace lorva
