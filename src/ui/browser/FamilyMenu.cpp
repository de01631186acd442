// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT

#include "ui/browser/FamilyMenu.h"

#include "ui/style/MenuLook.h"

#include <QCoreApplication>
#include <QMenu>

#include <memory>

namespace lorva {

namespace {

using SharedSubject = std::shared_ptr<const FamilyMenuSubject>;

struct Texts
{
    Q_DECLARE_TR_FUNCTIONS(CardMenu)
};

template <class Option>
QAction *addOption(QMenu &menu, const Option &option)
{
    QAction *action = menu.addAction(menuEntryText(option.name));
    action->setCheckable(true);
    action->setChecked(option.isMember);
    return action;
}

/// `fill` runs once, when the submenu first opens.
QMenu *addSubmenu(QMenu &menu, const char *name, const QString &title,
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
    return submenu;
}

/// `none`, which chooses nothing, and the options; `choose` gets the id of one of them.
template <class Options, class Choose, class ChooseNone>
void fillChoice(QMenu &menu, const Options &options, const Choose &choose, const QString &none,
                const ChooseNone &chooseNone)
{
    QObject::connect(menu.addAction(none), &QAction::triggered, &menu, chooseNone);
    menu.addSeparator();
    for (const auto &option : options)
        QObject::connect(addOption(menu, option), &QAction::triggered, &menu,
                         [choose, id = option.id] { choose(id); });
}

void fillStyles(QMenu &menu, const SharedSubject &subject)
{
    fillChoice(menu, subject->styles(), subject->chooseStyle,
               //: The family has no style category.
               Texts::tr("None", "style"), [subject] { subject->chooseStyle(std::nullopt); });
}

void fillFoundries(QMenu &menu, const SharedSubject &subject)
{
    fillChoice(menu, subject->foundries(), subject->chooseFoundry,
               //: The family has no foundry.
               Texts::tr("None", "foundry"), [subject] { subject->chooseFoundry({}); });
}

void fillCollections(QMenu &menu, const SharedSubject &subject)
{
    for (const auto &option : subject->collections()) {
        auto *action = new CollectionMenuAction(option, &menu);
        menu.addAction(action);
        QObject::connect(action, &QAction::triggered, &menu,
                         [subject, action] { subject->toggleCollection(action->collectionID); });
    }
}

QString activationText(const QString &forOne, qsizetype count)
{
    return count < 2 ? forOne : Texts::tr("Activate %n Fonts…", nullptr, int(count));
}

QString deactivationText(qsizetype count)
{
    return count < 2 ? Texts::tr("De-activate")
                     : Texts::tr("De-activate %n Fonts", nullptr, int(count));
}

void addSwitching(QMenu &menu, const char *name, const QString &title,
                  const std::function<void()> &act)
{
    QAction *action = menu.addAction(title);
    action->setObjectName(QString::fromLatin1(name));
    QObject::connect(action, &QAction::triggered, &menu, act);
}

/// What makes sense for any of the families; those for which it does not are left out when it is
/// chosen.
void addActivation(QMenu &menu, const FamilyMenuSubject &subject)
{
    const qsizetype count = subject.familyCount;
    if (subject.offer != ActivationOffer())
        menu.addSeparator();
    if (subject.offer.activates)
        addSwitching(menu, "activateItem", activationText(Texts::tr("Activate…"), count),
                     subject.activate);
    else if (subject.offer.activatesRemaining)
        addSwitching(menu, "activateRemainingItem",
                     activationText(Texts::tr("Activate Remaining Styles…"), count),
                     subject.activateRemaining);
    if (subject.offer.deactivates)
        addSwitching(menu, "deactivateItem", deactivationText(count), subject.deactivate);
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

void fillFamilyMenu(QMenu &menu, const FamilyMenuSubject &subject)
{
    const auto shared = std::make_shared<const FamilyMenuSubject>(subject);
    //: The style category of a family: Serif, Script and so on.
    addSubmenu(menu, "styleMenu", Texts::tr("Style"),
               [shared](QMenu &submenu) { fillStyles(submenu, shared); });
    addSubmenu(menu, "collectionsMenu", Texts::tr("Collections"), [shared](QMenu &submenu) {
        fillCollections(submenu, shared);
    })->setEnabled(subject.hasCollections);
    addSubmenu(menu, "foundryMenu", Texts::tr("Foundry"),
               [shared](QMenu &submenu) { fillFoundries(submenu, shared); });
    addActivation(menu, subject);
}

} // namespace lorva
