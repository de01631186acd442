// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT

#include "app/LorvaApplicationDelegate.h"
#include "catalog/CatalogCache.h"
#include "platform/linux/DBusSingleInstance.h"
#include "platform/linux/XdgFolders.h"
#include "platform/SqlitePreferenceStore.h"
#include "support/FontBuilder.h"
#include "support/TestHome.h"
#include "support/Waiting.h"
#include "ui/browser/BrowserCollectionView.h"
#include "ui/browser/FontBrowserViewController.h"
#include "ui/files/FontFilesPage.h"
#include "ui/LorvaRootSplitViewController.h"
#include "ui/sidebar/ProjectSidebarViewController.h"
#include "ui/sidebar/SidebarOutlineView.h"
#include "ui/style/ReducedMotion.h"

#include <QApplication>
#include <QModelIndex>
#include <QProcess>

#include <gmock/gmock.h>

// In a real desktop session, with a window manager between the program and the display: what no
// offscreen window shows. The pointer and the keys are those of the display.

namespace lorva {
namespace {

/// A window of some other program, which has the focus.
class OtherWindow
{
public:
    OtherWindow()
    {
        m_widget.setWindowTitle(QStringLiteral("Other"));
        m_widget.resize(300, 200);
        m_widget.show();
        m_widget.activateWindow();
        EXPECT_TRUE(test::waitUntil([this] { return m_widget.isActiveWindow(); }));
    }

private:
    QWidget m_widget;
};

/// Runs to its end while this program's events are handled.
bool run(const QString &program, const QStringList &arguments)
{
    QProcess process;
    process.start(program, arguments);
    return test::waitUntil([&] { return process.state() == QProcess::NotRunning; })
        && process.exitStatus() == QProcess::NormalExit && process.exitCode() == 0;
}

class DesktopSession : public testing::Test
{
protected:
    DesktopSession()
    {
        setReducedMotionOverride(true);
        for (const char *name : {"One", "Two"})
            test::writeFile(
                test::TestHome::instance().systemFonts(), QByteArray(name) + ".ttf",
                test::FontBuilder(QString::fromLatin1(name)).codePoints(U"Aa 123").build());
        m_instance.onStart = [this](const ProgramStart &start) { m_delegate.takeOver(start); };
        m_instance.beginClaim({});
        EXPECT_EQ(m_instance.claim(), SingleInstance::Claim::first);
        m_delegate.applicationDidFinishLaunching();
        EXPECT_TRUE(test::waitUntil([this] {
            return window().isActiveWindow() && !model().isLoading()
                && model().allFamilies()->size() == 2 && m_delegate.rootController()->isSettled();
        }));
    }

    LorvaAppModel &model() { return m_delegate.model(); }
    QMainWindow &window() { return *m_delegate.window(); }
    static QStringList moveTo(const QPoint &point)
    {
        return {QStringLiteral("mousemove"), QString::number(point.x()),
                QString::number(point.y())};
    }

    DBusSingleInstance m_instance;
    LorvaApplicationDelegate m_delegate{LaunchOptions()};
};

TEST_F(DesktopSession, ASecondStartBringsTheWindowForward)
{
    const OtherWindow other;
    ASSERT_FALSE(window().isActiveWindow());
    EXPECT_TRUE(run(QStringLiteral(LORVA_PROGRAM), {QStringLiteral("--view=list")}));
    EXPECT_TRUE(test::waitUntil([this] { return window().isActiveWindow(); }));
    EXPECT_EQ(model().viewMode(), ViewMode::list);

    window().showMinimized();
    ASSERT_TRUE(test::waitUntil([this] { return !window().isActiveWindow(); }));
    EXPECT_TRUE(run(QStringLiteral(LORVA_PROGRAM), {}));
    EXPECT_TRUE(test::waitUntil([this] { return window().isActiveWindow(); }));
    EXPECT_FALSE(window().isMinimized());
}

TEST_F(DesktopSession, FilesOfASecondStartComeForwardAndCanBeSteppedThrough)
{
    const FilePath folder = test::TestHome::instance().systemFonts();
    const OtherWindow other;
    const auto open = [&](const QStringList &names) {
        QStringList files;
        for (const QString &name : names)
            files << folder.child(name.toUtf8()).displayText();
        return run(QStringLiteral(LORVA_PROGRAM), files);
    };
    EXPECT_TRUE(open({QStringLiteral("One.ttf"), QStringLiteral("Two.ttf")}));
    ASSERT_TRUE(test::waitUntil([this] {
        const FontFilesWindow *files = m_delegate.filesWindow();
        return files && files->isActiveWindow() && files->isSettled();
    }));
    FontFilesWindow &files = *m_delegate.filesWindow();
    const auto *page = files.findChild<FontFilesPage *>();
    EXPECT_EQ(page->face().familyName, QStringLiteral("One"));
    EXPECT_TRUE(run(QStringLiteral("xdotool"), {QStringLiteral("key"), QStringLiteral("Down")}));
    EXPECT_TRUE(test::waitUntil([&] { return page->face().familyName == QStringLiteral("Two"); }));
    EXPECT_FALSE(window().isActiveWindow());

    EXPECT_TRUE(run(QStringLiteral("xdotool"), {QStringLiteral("key"), QStringLiteral("ctrl+w")}));
    EXPECT_TRUE(test::waitUntil([&] { return !files.isVisible(); }));
    EXPECT_TRUE(open({QStringLiteral("Two.ttf")}));
    EXPECT_TRUE(test::waitUntil([&] { return files.isActiveWindow(); }));
}

TEST_F(DesktopSession, AFamilyIsDraggedIntoACollection)
{
    ASSERT_TRUE(model().createCollection(QStringLiteral("Mine")));
    const QString id = model().collections().front().id;
    SidebarOutlineView &outline = m_delegate.rootController()->sidebar().outlineView();
    QModelIndex row;
    ASSERT_TRUE(test::waitUntil([&] {
        const auto found = outline.model()->match(outline.model()->index(0, 0), Qt::DisplayRole,
                                                  QStringLiteral("Mine"), 1,
                                                  Qt::MatchExactly | Qt::MatchRecursive);
        row = found.value(0);
        return row.isValid() && m_delegate.rootController()->isSettled();
    }));
    const QPoint target = outline.viewport()->mapToGlobal(outline.visualRect(row).center());
    auto &cards = m_delegate.rootController()->browser().collectionView();
    const QPoint card = cards.mapToGlobal(QPoint(150, 120));

    // One script, because the drag has a loop of its own; the display keeps the order.
    QStringList script =
        moveTo(card) + QStringList{QStringLiteral("mousedown"), QStringLiteral("1")};
    for (const double share : {0.1, 0.3, 0.5, 0.7, 0.9, 1.0})
        script += moveTo((QPointF(card) * (1 - share) + QPointF(target) * share).toPoint());
    script += moveTo(target + QPoint(1, 1));
    script += {QStringLiteral("mouseup"), QStringLiteral("1")};
    EXPECT_TRUE(run(QStringLiteral("xdotool"), script));
    EXPECT_TRUE(test::waitUntil([&] { return model().isMember(QStringLiteral("One"), id); }));
    EXPECT_FALSE(model().isMember(QStringLiteral("Two"), id));
}

QByteArray nameOfActiveWindow()
{
    QProcess xdotool;
    xdotool.start(QStringLiteral("xdotool"),
                  {QStringLiteral("getactivewindow"), QStringLiteral("getwindowname")});
    xdotool.waitForFinished();
    return xdotool.readAllStandardOutput().trimmed();
}

TEST(DesktopProgram, EndsWhenTheWindowManagerClosesItsWindow)
{
    QProcess program;
    program.start(QStringLiteral(LORVA_PROGRAM), {QStringLiteral("--no-welcome")});
    ASSERT_TRUE(test::waitUntil([] { return nameOfActiveWindow() == "All Fonts"; }));
    EXPECT_TRUE(run(QStringLiteral("xdotool"), {QStringLiteral("key"), QStringLiteral("alt+F4")}));
    EXPECT_TRUE(test::waitUntil([&] { return program.state() == QProcess::NotRunning; }));
    EXPECT_EQ(program.exitStatus(), QProcess::NormalExit);
    EXPECT_EQ(program.exitCode(), 0);
    SqlitePreferenceStore preferences(xdgFolders().applicationSupport);
    EXPECT_TRUE(WindowFrameStore(preferences).load().has_value());
}

/// The last step of the welcome, and the first of the window that it gives way to.
TEST(DesktopProgram, WelcomesOnceAndGivesTheKeyboardToItsWindow)
{
    const auto type = [](const char *key) {
        return run(QStringLiteral("xdotool"), {QStringLiteral("key"), QString::fromLatin1(key)});
    };
    QProcess program;
    program.start(QStringLiteral(LORVA_PROGRAM), QStringList());
    ASSERT_TRUE(test::waitUntil([] { return nameOfActiveWindow() == "Welcome to Lorva"; }));
    SqlitePreferenceStore preferences(xdgFolders().applicationSupport);
    const QString flag = LorvaApplicationDelegate::onboardingFlag();
    EXPECT_FALSE(preferences.boolean(flag));
    // The first skips the scene, the second presses the button.
    EXPECT_TRUE(type("x") && type("Return"));
    EXPECT_TRUE(test::waitUntil([] { return nameOfActiveWindow() == "All Fonts"; }));
    EXPECT_TRUE(test::waitUntil([&] { return preferences.boolean(flag) == true; }));
    EXPECT_TRUE(type("ctrl+q"));
    EXPECT_TRUE(test::waitUntil([&] { return program.state() == QProcess::NotRunning; }));
    program.start(QStringLiteral(LORVA_PROGRAM), QStringList());
    EXPECT_TRUE(test::waitUntil([] { return nameOfActiveWindow() == "All Fonts"; }));
    program.terminate();
    program.waitForFinished();
}

} // namespace
} // namespace lorva

int main(int argc, char **argv)
{
    ::testing::InitGoogleMock(&argc, argv);
    lorva::test::TestHome::instance().setUp();
    qputenv("QT_QPA_PLATFORM", "xcb");
    QApplication application(argc, argv);
    QApplication::setApplicationName(QStringLiteral("Lorva"));
    return RUN_ALL_TESTS();
}
