// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT

// Every surface of the program in every language, and in one that is longer than any and like none:
// what is left of English there went past the translation.

#include "LanguagesFixture.h"

#include "app/LaunchHelp.h"
#include "base/TextColumns.h"
#include "ui/browser/FontBrowserViewController.h"
#include "ui/detail/CharacterGridView.h"
#include "ui/detail/FontDetailViewController.h"
#include "ui/inspector/FeatureTip.h"
#include "ui/quiz/FontQuizViewController.h"
#include "ui/sidebar/ProjectSidebarViewController.h"
#include "ui/sidebar/SidebarOutlineView.h"

#include <QAbstractButton>
#include <QContextMenuEvent>
#include <QHelpEvent>
#include <QLineEdit>

namespace lorva {
namespace {

using test::kSerif;

class Languages : public test::Languages
{
protected:
    SidebarOutlineView &outline() { return m_delegate->rootController()->sidebar().outlineView(); }
    /// Those of the sidebar that are in sight.
    QModelIndexList rows()
    {
        QModelIndexList found;
        for (QModelIndex row = outline().model()->index(0, 0); row.isValid();
             row = outline().indexBelow(row))
            found << row;
        return found;
    }
    void openMenu(QWidget &widget, const QPoint &place)
    {
        QContextMenuEvent event(QContextMenuEvent::Mouse, place, widget.mapToGlobal(place));
        QApplication::sendEvent(&widget, &event);
    }
};

TEST_P(Languages, CoversTheBrowser)
{
    launch();
    check("cards");
    m_delegate->model().setViewMode(ViewMode::list);
    settle();
    check("list");
    m_delegate->rootController()->browserActions().browserSearchTextChanged(QStringLiteral("?"));
    settle();
    check("nothing found");
}

TEST_P(Languages, CoversEveryKindOfSource)
{
    launch();
    for (const BrowserSource &source :
         {BrowserSource::active(), BrowserSource::inactive(),
          BrowserSource::style(m_delegate->model().styleCategories().front().id)}) {
        m_delegate->model().select(source);
        settle();
        check("a source");
    }
}

TEST_P(Languages, CoversTheDisplayControls)
{
    launch();
    for (const char *button : {"sampleTextButton", "customChip", "imageChip", "logoButton"})
        checkPopup(button);
}

TEST_P(Languages, CoversTheMenus)
{
    launch();
    ASSERT_TRUE(m_delegate->model().createCollection(QStringLiteral("Συλλογή")));
    settle();
    for (QMenu *menu : m_delegate->window()->findChildren<QMenu *>())
        checkMenu(*menu, menu->title());
    QWidget *cards = part("BrowserCollectionView");
    QTest::mouseClick(m_delegate->rootController()->browser().findChild<QWidget *>(
                          QStringLiteral("FontCollectionItem")),
                      Qt::LeftButton);
    QTest::keyClick(cards, Qt::Key_Menu);
    checkOpenMenu("a card's menu");
}

TEST_P(Languages, CoversTheSidebar)
{
    LorvaRootSplitViewController &root = launch();
    for (const char *name : {"Συλλογή", "Άλλη"})
        ASSERT_TRUE(m_delegate->model().createCollection(QString::fromUtf8(name)));
    settle();
    check("with collections");
    int menus = 0;
    int editors = 0;
    for (const QModelIndex &row : rows()) {
        const QString name = row.data().toString();
        openMenu(*outline().viewport(), outline().visualRect(row).center());
        if (auto *menu = root.sidebar().findChild<QMenu *>(QStringLiteral("SidebarMenu"))) {
            ++menus;
            checkMenu(*menu, name);
            EXPECT_TRUE(test::waitUntil(
                [&] { return !root.sidebar().findChild<QMenu *>(QStringLiteral("SidebarMenu")); }));
        }
        outline().setCurrentOnly(row);
        QTest::keyClick(&outline(), Qt::Key_F2);
        if (outline().isEditing()) {
            ++editors;
            check("a name that is edited");
            QTest::keyClick(outline().findChild<QLineEdit *>(), Qt::Key_Escape);
        }
    }
    EXPECT_GE(menus, 3);
    EXPECT_EQ(editors, 3) << "two collections and a foundry";
}

TEST_P(Languages, CoversOneFamilyInDepth)
{
    LorvaRootSplitViewController &root = launch();
    m_delegate->model().openDetail(kSerif);
    settle();
    check("the family");
    root.detailActions().detailStageChanged(DetailStage::waterfall);
    settle();
    check("waterfall");
    root.detailActions().detailStageChanged(DetailStage::comparison);
    settle();
    check("comparison");
    using Tab = FontInspectorViewController::Tab;
    for (const Tab tab : {Tab::features, Tab::info}) {
        root.showInspectorTab(tab);
        settle();
        check("inspector");
    }
    click("detailMenuButton");
    checkOpenMenu("the family's menu");
}

TEST_P(Languages, CoversCharacters)
{
    for (const char *name : {"LATIN CAPITAL LETTER A", "LATIN SMALL LETTER A", "DIGIT ONE", "gid"})
        m_audit.data << QString::fromLatin1(name);
    LorvaRootSplitViewController &root = launch();
    m_delegate->model().openDetail(kSerif);
    settle();
    auto *grid = root.detail()->findChild<CharacterGridView *>();
    ASSERT_TRUE(grid);
    grid->focusCells();
    QWidget *cells = QApplication::focusWidget();
    QTest::keyClick(cells, Qt::Key_Home, Qt::ControlModifier);
    QTest::keyClick(cells, Qt::Key_Return);
    ASSERT_TRUE(part("CharacterPopover"));
    check("a character");
    click("PopoverAddToTray");
    ASSERT_TRUE(part("CharacterTray"));
    closePopups();
    check("the tray");
    QContextMenuEvent event(QContextMenuEvent::Keyboard, QPoint(), QPoint());
    QApplication::sendEvent(cells, &event);
    checkOpenMenu("a character's menu");
}

TEST_P(Languages, CoversFeatures)
{
    m_audit.data << QStringLiteral("smcp");
    LorvaRootSplitViewController &root = launch();
    m_delegate->model().openDetail(kSerif);
    root.showInspectorTab(FontInspectorViewController::Tab::features);
    settle();
    check("features");
    QWidget *row = nullptr;
    for (QWidget *each : root.inspector()->findChildren<QWidget *>())
        if (each->objectName().startsWith(QLatin1String("Feature."))
            && !each->objectName().endsWith(QLatin1String(".switch")))
            row = each;
    ASSERT_TRUE(row);
    QHelpEvent rest(QEvent::ToolTip, QPoint(5, 5), row->mapToGlobal(QPoint(5, 5)));
    QApplication::sendEvent(row, &rest);
    const auto *tip = root.inspector()->window()->findChild<FeatureTip *>();
    ASSERT_TRUE(tip);
    ASSERT_TRUE(test::waitUntil([&] { return tip->isSettled(); }));
    check("what a feature does");
}

TEST_P(Languages, CoversInstances)
{
    const FilePath folder = test::TestHome::instance().home().child("Μεταβλητά");
    test::FontBuilder builder(QStringLiteral("Βάρος"));
    builder.codePoints(U"Aa 123").axis("wght", 100, 400, 900).axis("wdth", 75, 100, 125);
    builder.instance(QStringLiteral("Μαύρο"), {900, 125})
        .instance(QStringLiteral("Ήπιο"), {400, 100});
    test::writeFile(folder, "a.ttf", builder.build());
    m_audit.data << QStringLiteral("wght") << QStringLiteral("wdth");
    LaunchOptions options;
    options.folders = {folder};
    LorvaRootSplitViewController &root = launch(options, 3);
    m_delegate->model().openDetail(QStringLiteral("Βάρος"));
    root.showInspectorTab(FontInspectorViewController::Tab::features);
    settle();
    check("axes");
    click("InstanceButton");
    checkOpenMenu("instances");
    QDir(folder.displayText()).removeRecursively();
}

TEST_P(Languages, CoversSettings)
{
    launch();
    const QList<QAction *> actions = m_delegate->window()->actions();
    const auto settings =
        std::ranges::find(actions, QStringLiteral("Menu.Settings"), &QAction::objectName);
    ASSERT_NE(settings, actions.end());
    (*settings)->trigger();
    settle();
    check("settings");
}

TEST_P(Languages, CoversTheWelcome)
{
    LaunchOptions options;
    options.welcome = LaunchWelcome::card;
    launch(options);
    ASSERT_TRUE(part("WelcomeCard"));
    check("welcome");
}

TEST_P(Languages, CoversTheSmallestWindow)
{
    LorvaRootSplitViewController &root = launch();
    m_delegate->window()->resize(LorvaApplicationDelegate::kMinimumContentSize);
    settle();
    m_audit.mayShorten = {QStringLiteral("BrowserTopBar")};
    check("cards");
    m_delegate->model().openDetail(kSerif);
    settle();
    check("the family");
    root.openQuiz();
    settle();
    check("the quiz");
}

TEST_P(Languages, CoversTheQuiz)
{
    LorvaRootSplitViewController &root = launch();
    root.openQuiz();
    ASSERT_TRUE(root.isQuizOpen());
    settle();
    check("introduction");
    QTest::keyClick(m_delegate->window()->windowHandle(), Qt::Key_Return);
    settle();
    check("a card");
    root.quiz()->choose(1);
    settle();
    root.quiz()->choose(2);
    settle();
    check("the poster");
}

TEST_P(Languages, LeavesHelpWithinATerminal)
{
    const QString help = launchHelp();
    EXPECT_TRUE(help.contains(QLatin1String("\n  --help ")));
    for (const QString &line : help.split(u'\n'))
        EXPECT_LE(displayWidth(line), 80) << line.toStdString();
}

TEST_P(Languages, CoversDiscover)
{
    launch();
    m_delegate->model().select(BrowserSource::discover());
    settle();
    check("discover");
}

INSTANTIATE_TEST_SUITE_P(All, Languages, testing::ValuesIn(test::languages()),
                         [](const auto &row) { return row.param; });

} // namespace
} // namespace lorva
