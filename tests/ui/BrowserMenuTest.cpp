// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT

#include "BrowserHarness.h"
#include "ui/browser/CardMenu.h"

#include <QAccessible>
#include <QContextMenuEvent>
#include <QHelpEvent>
#include <QMenu>
#include <QToolTip>

namespace lorva {
namespace {

class BrowserMenu : public test::BrowserHarness
{
protected:
    BrowserMenu()
    {
        state.styleCategories = {{"serif", "Serif", {}}, {"sans", "Sans-Serif", {}}};
        state.collections = {{"c1", "Logos", {}}, {"c2", "R&D", {}}};
        state.foundryCollections = {{"f1", "Adobe", {}}, {"f2", "Google", {}}};
        state.collectionMembersByID = {{"c1", {"A", "B"}}, {"c2", {"A"}}};
        state.styleIDByFamily = {{"A", "sans"}, {"B", "sans"}, {"C", "serif"}};
        state.foundryIDByFamily = {{"A", "f1"}, {"B", "f2"}};
        apply();
    }
    QMenu *menu() { return browser.findChild<QMenu *>(QStringLiteral("cardMenu")); }
    void rightClick(int index)
    {
        QContextMenuEvent event(QContextMenuEvent::Mouse, at(index),
                                view().viewport()->mapToGlobal(at(index)));
        QCoreApplication::sendEvent(view().viewport(), &event);
    }
    void close()
    {
        menu()->close();
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        ASSERT_EQ(menu(), nullptr);
    }
    /// Opens the submenu and tells its items, the checked ones with a star.
    QStringList open(const char *submenu)
    {
        auto *found = menu()->findChild<QMenu *>(QString::fromLatin1(submenu));
        found->popup({});
        QStringList texts;
        for (const QAction *action : found->actions())
            texts.append(action->isSeparator()     ? QStringLiteral("-")
                             : action->isChecked() ? QString(u'*' + action->text())
                                                   : action->text());
        found->close();
        return texts;
    }
    void choose(const char *submenu, const QString &text)
    {
        for (QAction *action :
             menu()->findChild<QMenu *>(QString::fromLatin1(submenu))->actions()) {
            if (action->text() == text)
                action->trigger();
        }
    }
};

TEST_F(BrowserMenu, ChecksWhatAllSelectedAreMembersOf)
{
    const struct
    {
        QList<int> selected;
        QStringList styles;
        QStringList collections;
        QStringList foundries;
    } rows[]{
        {{0},
         {"None", "-", "Serif", "*Sans-Serif"},
         {"*Logos", "*R&&D"},
         {"None", "-", "*Adobe", "Google"}},
        {{0, 1},
         {"None", "-", "Serif", "*Sans-Serif"},
         {"*Logos", "R&&D"},
         {"None", "-", "Adobe", "Google"}},
        {{0, 1, 2},
         {"None", "-", "Serif", "Sans-Serif"},
         {"Logos", "R&&D"},
         {"None", "-", "Adobe", "Google"}},
        {{5},
         {"None", "-", "Serif", "Sans-Serif"},
         {"Logos", "R&&D"},
         {"None", "-", "Adobe", "Google"}},
    };
    for (const auto &row : rows) {
        click(row.selected.front());
        for (const int index : row.selected.mid(1))
            click(index, Qt::ControlModifier);
        rightClick(row.selected.front());
        QStringList titles;
        for (const QAction *action : menu()->actions())
            titles.append(action->text());
        EXPECT_EQ(titles, QStringList({"Style", "Collections", "Foundry"}));
        EXPECT_EQ(open("styleMenu"), row.styles);
        EXPECT_EQ(open("collectionsMenu"), row.collections);
        EXPECT_EQ(open("foundryMenu"), row.foundries);
        close();
    }
}

TEST_F(BrowserMenu, ActsOnAllSelectedFamilies)
{
    click(0);
    click(2, Qt::ControlModifier);
    rightClick(2);
    for (const char *submenu : {"styleMenu", "collectionsMenu", "foundryMenu"})
        open(submenu);
    delegate.log.clear();
    choose("styleMenu", QStringLiteral("None"));
    choose("styleMenu", QStringLiteral("Serif"));
    choose("collectionsMenu", QStringLiteral("R&&D"));
    choose("foundryMenu", QStringLiteral("None"));
    choose("foundryMenu", QStringLiteral("Google"));
    EXPECT_EQ(delegate.log,
              QStringList({"style - of A+C", "style serif of A+C", "collection c2 of A+C",
                           "foundry  of A+C", "foundry f2 of A+C"}));
    close();
    rightClick(4);
    EXPECT_EQ(selected(), QStringLiteral("E")) << "another card is taken alone";
    close();
}

TEST_F(BrowserMenu, OffersWhatFamiliesCanBeSwitchedTo)
{
    using Activation = FontFamilyActivation;
    // A inactive, B copied, C copied in part, D the system's, E without files.
    const QHash<QString, std::optional<Activation>> states{
        {"A", Activation::inactive()},
        {"B", Activation::active(InstallMethod::copy, false)},
        {"C", Activation::active(InstallMethod::registerInPlace, true)},
        {"D", Activation::active({}, false)}};
    state.activationProvider = [states](const FontFamilyRecord &family) {
        return states.value(family.familyName, std::nullopt);
    };
    ++state.activationGeneration;
    apply();
    const struct
    {
        QList<int> selected;
        QStringList items;
        QStringList log;
    } rows[]{
        {{0}, {"-", "Activate…"}, {"activate  of A"}},
        {{1}, {"-", "De-activate"}, {"deactivate  of B"}},
        {{2},
         {"-", "Activate Remaining Styles…", "De-activate"},
         {"complete  of C", "deactivate  of C"}},
        {{3}, {}, {}},
        {{4}, {}, {}},
        {{3, 4}, {}, {}},
        {{0, 3}, {"-", "Activate 2 Fonts…"}, {"activate  of A+D"}},
        {{1, 2},
         {"-", "Activate 2 Fonts…", "De-activate 2 Fonts"},
         {"complete  of B+C", "deactivate  of B+C"}},
        {{0, 1, 2},
         {"-", "Activate 3 Fonts…", "De-activate 3 Fonts"},
         {"activate  of A+B+C", "deactivate  of A+B+C"}},
    };
    for (const auto &row : rows) {
        click(row.selected.front());
        for (const int index : row.selected.mid(1))
            click(index, Qt::ControlModifier);
        rightClick(row.selected.front());
        delegate.log.clear();
        QStringList items;
        for (QAction *action : menu()->actions().mid(3)) {
            items.append(action->isSeparator() ? QStringLiteral("-") : action->text());
            action->trigger();
        }
        EXPECT_EQ(items, row.items);
        EXPECT_EQ(delegate.log, row.log);
        close();
    }
}

TEST_F(BrowserMenu, OpensByKeyAtTheCurrentCardAndNotOnTheGround)
{
    key(Qt::Key_Menu);
    EXPECT_EQ(menu(), nullptr) << "nothing is selected";
    setFamilies(letters(3));
    state.collections.clear();
    apply();
    QContextMenuEvent ground(QContextMenuEvent::Mouse, at(2) + QPoint(400, 0), {});
    QCoreApplication::sendEvent(view().viewport(), &ground);
    EXPECT_EQ(menu(), nullptr);
    click(1);
    const std::function<void()> ways[]{
        [this] { key(Qt::Key_Menu); },
        [this] { key(Qt::Key_F10, Qt::ShiftModifier); },
        [this] {
            QContextMenuEvent event(QContextMenuEvent::Keyboard, {}, {});
            QCoreApplication::sendEvent(&view(), &event);
        },
    };
    for (const auto &way : ways) {
        way();
        ASSERT_NE(menu(), nullptr);
        EXPECT_TRUE(menu()->isVisible());
        EXPECT_FALSE(menu()->actions().at(1)->isEnabled()) << "there are no collections";
        close();
    }
}

TEST_F(BrowserMenu, ThousandsOfFoundriesStayOnTheScreen)
{
    state.foundryCollections.clear();
    for (int i = 0; i < 2000; ++i)
        state.foundryCollections.push_back(
            {QString::number(i), QStringLiteral("Foundry %1").arg(i), {}});
    apply();
    click(0);
    rightClick(0);
    auto *foundries = menu()->findChild<QMenu *>(QStringLiteral("foundryMenu"));
    EXPECT_TRUE(foundries->isEmpty()) << "filled when it opens";
    foundries->popup({});
    EXPECT_EQ(foundries->actions().size(), 2002);
    EXPECT_LE(foundries->height(), foundries->screen()->geometry().height());
    EXPECT_LE(foundries->width(), 400) << "one column that scrolls";
    close();

    state.foundryCollections = {{"f1", QString(60'000, u'W') + u'&', {}}};
    apply();
    rightClick(0);
    foundries = menu()->findChild<QMenu *>(QStringLiteral("foundryMenu"));
    foundries->popup({});
    EXPECT_LE(foundries->width(), 400) << "whatever a font calls its maker";
    close();
}

TEST_F(BrowserMenu, ToolTipsGiveTheWholeNameWhereItIsCut)
{
    const QString longName = QString(40, u'W') + u' ' + QString(60, u'M');
    const QString markup = QString("<img src='file:///etc/hostname'>" + QString(70'000, u'x'));
    setFamilies({"Short", "Two words that fit", longName, markup});
    apply();
    const auto tipAt = [this](int index) {
        QHelpEvent event(QEvent::ToolTip, at(index), view().viewport()->mapToGlobal(at(index)));
        QCoreApplication::sendEvent(view().viewport(), &event);
        return view().visibleItem(index)->toolTip();
    };
    EXPECT_EQ(tipAt(0), QString());
    EXPECT_EQ(tipAt(1), QString());
    EXPECT_EQ(tipAt(2), longName);
    EXPECT_EQ(QToolTip::text(), longName);
    tipAt(3);
    EXPECT_FALSE(QToolTip::text().contains(QStringLiteral("<img"))) << "shown, not obeyed";
    EXPECT_TRUE(QToolTip::text().contains(QStringLiteral("&lt;img")));
    EXPECT_LT(QToolTip::text().size(), 2000);
}

class BrowserAccessible : public BrowserMenu
{
protected:
    QAccessibleInterface *list() { return QAccessible::queryAccessibleInterface(&view()); }
};

TEST_F(BrowserAccessible, TheListCountsAllCardsAndTellsAboutEach)
{
    state.activationProvider = [](const FontFamilyRecord &family) {
        return family.familyName == QLatin1String("B")
            ? std::optional(FontFamilyActivation::active(std::nullopt, false))
            : std::nullopt;
    };
    apply();
    EXPECT_EQ(list()->role(), QAccessible::List);
    EXPECT_EQ(list()->text(QAccessible::Name), QStringLiteral("Fonts"));
    ASSERT_EQ(list()->childCount(), 20);
    EXPECT_EQ(list()->child(20), nullptr);
    EXPECT_EQ(list()->child(-1), nullptr);

    click(1);
    QAccessibleInterface *chosen = list()->child(1);
    EXPECT_EQ(chosen, list()->child(1));
    EXPECT_EQ(list()->indexOfChild(chosen), 1);
    EXPECT_EQ(chosen->role(), QAccessible::ListItem);
    EXPECT_EQ(chosen->parent(), list());
    EXPECT_EQ(chosen->text(QAccessible::Name), QStringLiteral("B"));
    EXPECT_EQ(chosen->text(QAccessible::Description), QStringLiteral("1 styles, System"));
    EXPECT_TRUE(chosen->state().selectable && chosen->state().selected);
    EXPECT_TRUE(chosen->state().focusable && chosen->state().focused);
    EXPECT_EQ(list()->focusChild(), chosen);
    EXPECT_EQ(chosen->rect().center(), view().viewport()->mapToGlobal(at(1)));
    EXPECT_EQ(list()->childAt(chosen->rect().center().x(), chosen->rect().center().y()), chosen);

    const QAccessibleInterface *away = list()->child(19);
    EXPECT_EQ(away->text(QAccessible::Name), QStringLiteral("T"));
    EXPECT_TRUE(away->state().offscreen);
    EXPECT_FALSE(away->state().selected || away->state().focused);
}

TEST_F(BrowserAccessible, CardsCanBePressedAndEndWithTheirList)
{
    auto *last = list()->child(19);
    last->actionInterface()->doAction(QAccessibleActionInterface::setFocusAction());
    EXPECT_EQ(selected(), QStringLiteral("T"));
    EXPECT_FALSE(last->state().offscreen);
    last->actionInterface()->doAction(QAccessibleActionInterface::pressAction());
    EXPECT_EQ(delegate.log, QStringList({"selected T", "open T"}));

    const QAccessible::Id id = QAccessible::uniqueId(last);
    setFamilies(letters(4));
    apply();
    EXPECT_EQ(list()->childCount(), 4);
    EXPECT_EQ(QAccessible::accessibleInterface(id), nullptr) << "other cards, other interfaces";
}

} // namespace
} // namespace lorva
