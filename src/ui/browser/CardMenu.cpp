// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT

#include "ui/browser/CardMenu.h"

#include "ui/style/MenuLook.h"

#include <QCoreApplication>
#include <QMenu>

#include <memory>

namespace lorva {

namespace {

/// What the items of one menu need.
struct Subject
{
    FontBrowserState state;
    QStringList familyNames;
    FontBrowserDelegate *delegate = nullptr;
};
using SharedSubject = std::shared_ptr<const Subject>;

QString text(const char *source)
{
    return QCoreApplication::translate("CardMenu", source);
}

template <class Option>
QAction *addOption(QMenu &menu, const Option &option)
{
    QAction *action = menu.addAction(menuEntryText(option.name));
    action->setCheckable(true);
    action->setChecked(option.isMember);
    return action;
}

/// `fill` runs once, when the submenu first opens.
void addSubmenu(QMenu &menu, const char *name, const QString &title,
                std::function<void(QMenu &)> fill)
{
    QMenu *submenu = makeMenu(&menu);
    submenu->setObjectName(QString::fromLatin1(name));
    submenu->setTitle(title);
    menu.addMenu(submenu);
    QObject::connect(submenu, &QMenu::aboutToShow, submenu, [submenu, fill = std::move(fill)] {
        if (submenu->isEmpty())
            fill(*submenu);
    });
}

void fillStyles(QMenu &menu, const SharedSubject &subject)
{
    const auto choose = [subject](const std::optional<QString> &id) {
        if (subject->delegate)
            subject->delegate->browserStyleChosen(subject->familyNames, id);
    };
    QObject::connect(menu.addAction(text("None")), &QAction::triggered, &menu,
                     [choose] { choose(std::nullopt); });
    menu.addSeparator();
    for (const auto &option : styleOptions(subject->state, subject->familyNames)) {
        QObject::connect(addOption(menu, option), &QAction::triggered, &menu,
                         [choose, id = option.id] { choose(id); });
    }
}

void fillCollections(QMenu &menu, const SharedSubject &subject)
{
    for (const auto &option : collectionOptions(subject->state, subject->familyNames)) {
        auto *action = new CollectionMenuAction(option, &menu);
        menu.addAction(action);
        QObject::connect(action, &QAction::triggered, &menu, [subject, action] {
            if (subject->delegate)
                subject->delegate->browserCollectionToggled(subject->familyNames,
                                                            action->collectionID);
        });
    }
}

void fillFoundries(QMenu &menu, const SharedSubject &subject)
{
    const auto choose = [subject](const QString &id) {
        if (subject->delegate)
            subject->delegate->browserFoundryChosen(subject->familyNames, id);
    };
    QObject::connect(menu.addAction(text("None")), &QAction::triggered, &menu,
                     [choose] { choose({}); });
    menu.addSeparator();
    for (const auto &option : foundryOptions(subject->state, subject->familyNames)) {
        QObject::connect(addOption(menu, option), &QAction::triggered, &menu,
                         [choose, id = option.id] { choose(id); });
    }
}

/// "Activate…", or "Activate 3 Fonts…".
QString switchingText(const char *forOne, const char *forSeveral, qsizetype count)
{
    if (count < 2)
        return text(forOne);
    return QCoreApplication::translate("CardMenu", forSeveral, nullptr, int(count))
        .arg(QString::number(count));
}

using Wish = void (FontBrowserDelegate::*)(const QStringList &);

void addSwitching(QMenu &menu, const char *name, const QString &title, const SharedSubject &subject,
                  Wish wish)
{
    QAction *action = menu.addAction(title);
    action->setObjectName(QString::fromLatin1(name));
    QObject::connect(action, &QAction::triggered, &menu, [subject, wish] {
        if (subject->delegate)
            (subject->delegate->*wish)(subject->familyNames);
    });
}

/// What makes sense for any of the families; those for which it does not are left out when it is
/// chosen.
void addActivation(QMenu &menu, const SharedSubject &subject)
{
    const ActivationOffer offer = activationOffer(subject->state, subject->familyNames);
    const qsizetype count = subject->familyNames.size();
    if (offer != ActivationOffer())
        menu.addSeparator();
    if (offer.activates)
        addSwitching(menu, "activateItem", switchingText("Activate…", "Activate %1 Fonts…", count),
                     subject, &FontBrowserDelegate::browserActivationWanted);
    else if (offer.activatesRemaining)
        addSwitching(menu, "activateRemainingItem",
                     switchingText("Activate Remaining Styles…", "Activate %1 Fonts…", count),
                     subject, &FontBrowserDelegate::browserRemainingActivationWanted);
    if (offer.deactivates)
        addSwitching(menu, "deactivateItem",
                     switchingText("De-activate", "De-activate %1 Fonts", count), subject,
                     &FontBrowserDelegate::browserDeactivationWanted);
}

} // namespace

CollectionMenuAction::CollectionMenuAction(const CollectionMembershipOption &option,
                                           QObject *parent)
    : QAction(menuEntryText(option.name), parent)
    , collectionID(option.id)
{
    setCheckable(true);
    setChecked(option.isMember);
}

QMenu *makeCardMenu(const FontBrowserState &state, const QStringList &familyNames,
                    FontBrowserDelegate *delegate, QWidget *parent)
{
    const auto subject = std::make_shared<const Subject>(Subject{state, familyNames, delegate});
    QMenu *menu = makeMenu(parent);
    menu->setObjectName(QStringLiteral("cardMenu"));
    addSubmenu(*menu, "styleMenu", text("Style"),
               [subject](QMenu &submenu) { fillStyles(submenu, subject); });
    addSubmenu(*menu, "collectionsMenu", text("Collections"),
               [subject](QMenu &submenu) { fillCollections(submenu, subject); });
    menu->actions().back()->setEnabled(!state.collections.empty());
    addSubmenu(*menu, "foundryMenu", text("Foundry"),
               [subject](QMenu &submenu) { fillFoundries(submenu, subject); });
    addActivation(*menu, subject);
    return menu;
}

} // namespace lorva
