// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT

#include "SidebarFixture.h"
#include "ui/FontFamilyPasteboard.h"

#include <QAbstractButton>
#include <QAccessible>
#include <QHelpEvent>
#include <QMenu>
#include <QScrollBar>
#include <QToolTip>

#include <gmock/gmock.h>

namespace lorva {
namespace {

using test::text;
using test::waitUntil;
using Kind = SidebarItem::Kind;

class SidebarJourney : public test::SidebarFixture
{
protected:
    /// The texts of the row's context menu, "-" for a separator; the menu stays open.
    QString menuOf(const SidebarItem &item)
    {
        const QPoint place = centre(item);
        QContextMenuEvent event(QContextMenuEvent::Mouse, place,
                                outline().viewport()->mapToGlobal(place));
        QApplication::sendEvent(outline().viewport(), &event);
        QStringList texts;
        if (QMenu *menu = openMenu()) {
            for (const QAction *action : menu->actions())
                texts.append(action->isSeparator() ? text("-") : action->text());
        }
        return texts.join(u'|');
    }
    QMenu *openMenu() { return sidebar.findChild<QMenu *>(QStringLiteral("SidebarMenu")); }
    void closeMenu()
    {
        if (QMenu *menu = openMenu())
            menu->close();
        EXPECT_TRUE(waitUntil([this] { return !openMenu(); }));
    }
    template <class Event>
    bool drag(QEvent::Type, const QMimeData &data, const QPoint &place)
    {
        Event event(place, Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
        QApplication::sendEvent(outline().viewport(), &event);
        return event.isAccepted();
    }
    bool dragTo(const QMimeData &data, const QPoint &place)
    {
        return drag<QDragEnterEvent>(QEvent::DragEnter, data, place)
            && drag<QDragMoveEvent>(QEvent::DragMove, data, place);
    }
    bool drop(const QMimeData &data, const QPoint &place)
    {
        QDropEvent event(QPointF(place), Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
        QApplication::sendEvent(outline().viewport(), &event);
        return event.isAccepted();
    }
    void manyFoundries(int count)
    {
        state.content.foundryCollections.clear();
        for (int i = 0; i < count; ++i)
            state.content.foundryCollections.push_back(
                {QString::number(i), text("Foundry ") + QString::number(i), {}});
        sidebar.apply(state);
    }
};

TEST_F(SidebarJourney, ClicksAndKeysChooseSources)
{
    click(s("sans"));
    EXPECT_EQ(delegate.taken(), text("3:sans"));
    click(s("sans"));
    EXPECT_EQ(delegate.taken(), text("3:sans")) << "leads back from wherever else one has got to";
    click(c("c2"), Qt::RightButton);
    EXPECT_EQ(delegate.taken(), QString()) << "a menu is asked for without choosing the row";
    const struct
    {
        Qt::Key key;
        const char *told;
        const char *current;
    } rows[]{
        {Qt::Key_Down, "4:c1", "Annual report"},
        {Qt::Key_Down, "4:c2", "Wayfinding"},
        {Qt::Key_Delete, "delete c2", "Wayfinding"},
        {Qt::Key_Down, "5:f1", "Adobe"},
        {Qt::Key_Delete, "", "Adobe"},
        {Qt::Key_Up, "4:c2", "Wayfinding"},
        {Qt::Key_End, "5:f2", "SIL International"},
        {Qt::Key_Down, "", "SIL International"},
        {Qt::Key_Home, "0:", "All"},
        {Qt::Key_Up, "", "All"},
        {Qt::Key_PageDown, "5:f2", "SIL International"},
        {Qt::Key_PageUp, "0:", "All"},
        {Qt::Key_Return, "0:", "All"},
        {Qt::Key_Left, "", "Library"},
        {Qt::Key_Right, "", "All"},
    };
    for (const auto &row : rows) {
        press(row.key);
        EXPECT_EQ(delegate.taken(), text(row.told)) << int(row.key);
        EXPECT_EQ(current(), text(row.current)) << int(row.key);
    }
}

TEST_F(SidebarJourney, AStateIsMirroredInSilence)
{
    const struct
    {
        BrowserSource source;
        const char *selected;
    } rows[]{
        {BrowserSource::inactive(), "Inactive"},
        {BrowserSource::collection(text("c2")), "Wayfinding"},
        {BrowserSource::foundry(text("unknown")), ""},
        {BrowserSource::style(text("serif")), "Serif"},
        {BrowserSource::discover(), "Discover"},
        {BrowserSource::collection(text("c2")), "Wayfinding"},
    };
    for (const auto &row : rows) {
        state.selectedSource = row.source;
        sidebar.apply(state);
        EXPECT_EQ(selected(), text(row.selected));
    }
    state.content.collections.pop_back();
    state.selectedSource = BrowserSource::allFonts();
    sidebar.apply(state);
    EXPECT_EQ(selected(), text("All"));
    EXPECT_EQ(delegate.taken(), QString());
}

TEST_F(SidebarJourney, ThePromotionIsPassedByAndOpenedOnPurpose)
{
    state.content.unsortedFontCount = 12;
    sidebar.apply(state);
    click(fonts(Kind::discover));
    press(Qt::Key_Down);
    EXPECT_EQ(delegate.taken(), text("6:"));
    EXPECT_EQ(current(), text("Organize"));
    EXPECT_EQ(selected(), text("Discover"));
    press(Qt::Key_Return);
    EXPECT_EQ(delegate.taken(), text("organize"));
    press(Qt::Key_Down);
    EXPECT_EQ(delegate.taken(), text("3:serif"));
    click(fonts(Kind::organize));
    EXPECT_EQ(delegate.taken(), text("organize"));
    EXPECT_EQ(selected(), text("Serif"));
}

TEST_F(SidebarJourney, GroupsCloseByClickAndKeyAndKeepTheChoice)
{
    const QModelIndex styles = at(head(SidebarGroup::styles));
    click(s("serif"));
    delegate.taken();
    click(head(SidebarGroup::styles));
    EXPECT_EQ(delegate.taken(), text("toggled styles"));
    EXPECT_FALSE(outline().isExpanded(styles));
    EXPECT_EQ(selected(), text("Serif"));
    EXPECT_FALSE(outline().visualRect(at(s("serif"))).isValid());
    state.selectedSource = BrowserSource::style(text("serif"));
    state.collapsedGroups = {text("styles")};
    sidebar.apply(state);
    EXPECT_FALSE(outline().isExpanded(styles)) << "what is chosen never opens its group";

    EXPECT_EQ(current(), text("Styles"));
    press(Qt::Key_Right);
    press(Qt::Key_Left);
    press(Qt::Key_Space);
    press(Qt::Key_Return);
    EXPECT_EQ(delegate.taken(),
              text("toggled styles;toggled styles;toggled styles;toggled styles"));
    press(Qt::Key_Up);
    press(Qt::Key_Down);
    EXPECT_EQ(current(), text("Styles")) << "a closed group is a stop";
    EXPECT_EQ(delegate.taken(), text("6:"));

    state.collapsedGroups.clear();
    sidebar.apply(state);
    EXPECT_TRUE(outline().isExpanded(styles));
    EXPECT_EQ(delegate.taken(), QString());
}

TEST_F(SidebarJourney, AnEmptyGroupKeepsItsHeaderAndOpensWhenItFills)
{
    const auto collections = std::exchange(state.content.collections, {});
    sidebar.apply(state);
    EXPECT_TRUE(outline().visualRect(at(head(SidebarGroup::collections))).isValid());
    EXPECT_TRUE(sidebar.findChild<QAbstractButton *>(text("SidebarAddButton"))->isVisible());
    state.content.collections = collections;
    sidebar.apply(state);
    EXPECT_TRUE(outline().visualRect(at(c("c1"))).isValid());
    EXPECT_EQ(delegate.taken(), QString());
}

TEST_F(SidebarJourney, EachRowOffersItsCommands)
{
    state.content.unsortedFontCount = 1;
    state.dismissedFoundries = {{text("h"), text("Hoefler & Co"), {}}};
    // Of the style there is nothing on this computer.
    state.content.counts = {};
    state.content.counts.collections = {{text("c1"), 3}};
    state.content.counts.foundries = {{text("f2"), 1}};
    sidebar.apply(state);
    const struct
    {
        SidebarItem item;
        const char *texts;
        int triggered;
        const char *told;
    } rows[]{
        {c("c1"), "Activate Fonts…|De-activate Fonts|-|Rename Collection…|Delete Collection", 4,
         "delete c1"},
        {c("c1"), "Activate Fonts…|De-activate Fonts|-|Rename Collection…|Delete Collection", 0,
         "activate c1"},
        {f("f2"),
         "Activate Fonts…|De-activate Fonts|-|Rename Foundry…|Hide Foundry|-|Hidden Foundries", 4,
         "hide f2"},
        {f("f2"),
         "Activate Fonts…|De-activate Fonts|-|Rename Foundry…|Hide Foundry|-|Hidden Foundries", 1,
         "deactivate f2"},
        {fonts(Kind::organize), "Hide from Sidebar", 0, "promo hidden"},
        {head(SidebarGroup::collections), "New Collection", 0, "wanted"},
        {head(SidebarGroup::foundries), "Hidden Foundries", -1, "back h"},
        {s("serif"), "Activate Fonts…|De-activate Fonts", 0, ""},
        {fonts(Kind::allFonts), "", -2, ""},
        {head(SidebarGroup::library), "", -2, ""},
    };
    for (const auto &row : rows) {
        EXPECT_EQ(menuOf(row.item), text(row.texts));
        if (row.triggered == -1) {
            const QAction *hidden = openMenu()->actions().constFirst();
            ASSERT_EQ(hidden->menu()->actions().size(), 1);
            EXPECT_EQ(hidden->menu()->actions().constFirst()->text(), text("Hoefler && Co"));
            hidden->menu()->actions().constFirst()->trigger();
        } else if (row.triggered >= 0) {
            openMenu()->actions().at(row.triggered)->trigger();
        }
        closeMenu();
        EXPECT_EQ(delegate.taken(), text(row.told));
    }
    state.dismissedFoundries.clear();
    sidebar.apply(state);
    EXPECT_EQ(menuOf(f("f1")),
              text("Activate Fonts…|De-activate Fonts|-|Rename Foundry…|Hide Foundry"));
    EXPECT_EQ(openMenu()->actions().at(4)->toolTip(),
              text("This hides the foundry from the sidebar."));
    openMenu()->actions().at(3)->trigger();
    EXPECT_NE(editor(), nullptr);
    closeMenu();
    EXPECT_EQ(menuOf(head(SidebarGroup::foundries)), QString());
}

TEST_F(SidebarJourney, FamiliesFallOnRowsThatTakeThem)
{
    const auto families = makeFontFamilyMimeData({text("Inter"), text("Amiri")}, {});
    QMimeData words;
    words.setText(text("Inter"));
    const struct
    {
        SidebarItem item;
        const char *told;
    } rows[]{
        {c("c2"), "dropped on c2: Inter,Amiri"},
        {s("serif"), "dropped on serif: Inter,Amiri"},
        {f("f1"), "dropped on f1: Inter,Amiri"},
        {fonts(Kind::allFonts), ""},
        {fonts(Kind::discover), ""},
        {head(SidebarGroup::collections), ""},
    };
    for (const auto &row : rows) {
        const bool isTaken = *row.told != 0;
        EXPECT_EQ(dragTo(*families, centre(row.item)), isTaken);
        EXPECT_EQ(outline().marksOf(at(row.item)).isDropTarget, isTaken);
        EXPECT_EQ(drop(*families, centre(row.item)), isTaken);
        EXPECT_FALSE(outline().marksOf(at(row.item)).isDropTarget);
        EXPECT_EQ(delegate.taken(), text(row.told));
        EXPECT_FALSE(dragTo(words, centre(row.item)));
        EXPECT_FALSE(drop(words, centre(row.item)));
        EXPECT_EQ(delegate.taken(), QString());
    }
    QMimeData flood;
    flood.setData(QLatin1String(kFontFamilyNamesMimeType), QByteArray("ab\n").repeated(6'000'000));
    EXPECT_FALSE(drop(flood, centre(c("c1"))));
    EXPECT_EQ(delegate.taken(), QString());
    EXPECT_TRUE(dragTo(*families, centre(c("c1"))));
    QDragLeaveEvent leave;
    QApplication::sendEvent(outline().viewport(), &leave);
    EXPECT_FALSE(outline().marksOf(at(c("c1"))).isDropTarget);
}

TEST_F(SidebarJourney, ADragOpensAClosedGroupAndScrollsAtTheEdges)
{
    const auto families = makeFontFamilyMimeData({text("Inter")}, {});
    state.collapsedGroups = {text("collections")};
    sidebar.apply(state);
    EXPECT_FALSE(dragTo(*families, centre(head(SidebarGroup::collections))));
    EXPECT_TRUE(
        waitUntil([&] { return outline().isExpanded(at(head(SidebarGroup::collections))); }));
    EXPECT_EQ(delegate.taken(), text("toggled collections"));

    manyFoundries(20);
    QScrollBar *bar = outline().verticalScrollBar();
    ASSERT_EQ(bar->value(), 0);
    EXPECT_TRUE(dragTo(*families, QPoint(100, outline().viewport()->height() - 4)));
    EXPECT_TRUE(waitUntil([&] { return bar->value() == bar->maximum(); }));
    drag<QDragMoveEvent>(QEvent::DragMove, *families, QPoint(100, 4));
    EXPECT_TRUE(waitUntil([&] { return bar->value() == 0; }));
}

TEST_F(SidebarJourney, TypingGoesToTheLabelThatBeginsLikeIt)
{
    const struct
    {
        const char *typed;
        const char *selected;
        bool startsAnew;
    } rows[]{
        {"a", "Active", true},
        {"a", "Annual report", false},
        {"A", "Adobe", false},
        {"s", "SIL International", true},
        {"S", "Serif", false},
        {"s", "Sans-Serif", false},
        {"sil i", "SIL International", true},
        {"wAY", "Wayfinding", true},
        {"q", "Wayfinding", true},
    };
    for (const auto &row : rows) {
        // No letter follows another within no time: the next one begins a search.
        QApplication::setKeyboardInputInterval(row.startsAnew ? 0 : 60'000);
        if (*row.typed)
            QTest::keyClick(&outline(), row.typed[0]);
        QApplication::setKeyboardInputInterval(60'000);
        QTest::keyClicks(&outline(), text(row.typed + 1));
        EXPECT_EQ(selected(), text(row.selected)) << row.typed;
    }
    QApplication::setKeyboardInputInterval(0);
    QKeyEvent accent(QEvent::KeyPress, Qt::Key_unknown, Qt::NoModifier, QChar(0x301));
    QApplication::sendEvent(&outline(), &accent);
    EXPECT_EQ(selected(), text("Wayfinding")) << "no letter yet";
    QApplication::setKeyboardInputInterval(400);
}

TEST_F(SidebarJourney, NewCountsAndRowsKeepThePlaceInALongList)
{
    manyFoundries(2000);
    press(Qt::Key_End);
    QScrollBar *bar = outline().verticalScrollBar();
    EXPECT_EQ(bar->value(), bar->maximum());
    EXPECT_EQ(outline().viewport()->height()
                  - outline().visualRect(outline().currentIndex()).bottom(),
              11);
    const int before = bar->value();
    state.selectedSource = BrowserSource::foundry(text("1999"));
    state.content.counts.all = 10'000;
    state.content.counts.foundries = {{text("7"), 3}};
    sidebar.apply(state);
    QCoreApplication::processEvents();
    EXPECT_EQ(bar->value(), before);
    EXPECT_EQ(selected(), text("Foundry 1999"));
}

TEST_F(SidebarJourney, RightToLeftMirrorsRowsKeysAndTheAddButton)
{
    sidebar.setLayoutDirection(Qt::RightToLeft);
    const QRect row = outline().visualRect(at(s("serif")));
    const auto places = SidebarRowPlaces::of(row, text("121"), Qt::RightToLeft);
    const auto plain = SidebarRowPlaces::of(row, text("121"), Qt::LeftToRight);
    EXPECT_EQ(row.width() - 1 - places.symbol.right(), plain.symbol.left());
    EXPECT_LT(places.count.right(), places.label.left());
    const auto *add = sidebar.findChild<QAbstractButton *>(text("SidebarAddButton"));
    EXPECT_LT(add->geometry().center().x(), sidebar.width() / 2);
    click(s("serif"));
    press(Qt::Key_Right);
    EXPECT_EQ(current(), text("Styles"));
    press(Qt::Key_Right);
    EXPECT_EQ(delegate.taken(), text("3:serif;toggled styles"));
}

TEST_F(SidebarJourney, AssistiveTechnologyHearsRolesNamesAndStates)
{
    state.collapsedGroups = {text("foundries")};
    state.selectedSource = BrowserSource::style(text("serif"));
    sidebar.apply(state);
    QAccessibleInterface *tree = QAccessible::queryAccessibleInterface(&outline());
    ASSERT_NE(tree, nullptr);
    EXPECT_EQ(tree->role(), QAccessible::Tree);
    EXPECT_EQ(tree->text(QAccessible::Name), text("Sidebar"));
    std::map<QString, QAccessible::State> heard;
    for (int i = 0; i < tree->childCount(); ++i) {
        if (tree->child(i)->role() == QAccessible::TreeItem)
            heard[tree->child(i)->text(QAccessible::Name)] = tree->child(i)->state();
    }
    ASSERT_TRUE(heard.contains(text("Serif, 121 fonts")));
    EXPECT_TRUE(heard[text("Serif, 121 fonts")].selected);
    ASSERT_TRUE(heard.contains(text("Sans-Serif, 1 font")));
    EXPECT_FALSE(heard[text("Sans-Serif, 1 font")].selected);
    EXPECT_TRUE(heard[text("Styles")].expanded);
    EXPECT_TRUE(heard[text("Foundries")].expandable);
    EXPECT_FALSE(heard[text("Foundries")].expanded);
    EXPECT_FALSE(heard.contains(text("Adobe")));
    const QAccessibleInterface *add = QAccessible::queryAccessibleInterface(
        sidebar.findChild<QAbstractButton *>(text("SidebarAddButton")));
    EXPECT_EQ(add->role(), QAccessible::Button);
    EXPECT_EQ(add->text(QAccessible::Name), text("Create an empty collection."));
}

TEST_F(SidebarJourney, NamesThatMeanHarmAreOnlyShown)
{
    state.content.foundryCollections = {
        {text("f1"), QString(100'000, u'W'), {}},
        {text("f2"), text("<b>bold</b> <img src=\"file:///etc/hostname\"/> and a long tail"), {}},
        {text("f3"), text("two\nlines\t") + QChar(0x202E) + text("turned"), {}},
        {text("f4"), QString(), {}}};
    sidebar.apply(state);
    EXPECT_FALSE(sidebar.grab().isNull());
    for (const char *id : {"f1", "f2"}) {
        const QPoint place = centre(f(id));
        QHelpEvent event(QEvent::ToolTip, place, outline().viewport()->mapToGlobal(place));
        QApplication::sendEvent(outline().viewport(), &event);
        EXPECT_TRUE(QToolTip::text().startsWith(text("<span>"))) << id;
        EXPECT_FALSE(QToolTip::text().contains(text("<img"))) << id;
        EXPECT_LT(QToolTip::text().size(), 1000) << id;
    }
    QToolTip::hideText();
}

} // namespace
} // namespace lorva
