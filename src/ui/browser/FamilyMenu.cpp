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

/// "None", and the options; `choose` gets the id of one of them.
template <class Options, class Choose, class None>
void fillChoice(QMenu &menu, const Options &options, const Choose &choose, const None &none)
{
    QObject::connect(menu.addAction(text("None")), &QAction::triggered, &menu, none);
    menu.addSeparator();
    for (const auto &option : options)
        QObject::connect(addOption(menu, option), &QAction::triggered, &menu,
                         [choose, id = option.id] { choose(id); });
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

/// "Activate…", or "Activate 3 Fonts…".
QString switchingText(const char *forOne, const char *forSeveral, qsizetype count)
{
    if (count < 2)
        return text(forOne);
    return QCoreApplication::translate("CardMenu", forSeveral, nullptr, int(count))
        .arg(QString::number(count));
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
        addSwitching(menu, "activateItem", switchingText("Activate…", "Activate %1 Fonts…", count),
                     subject.activate);
    else if (subject.offer.activatesRemaining)
        addSwitching(menu, "activateRemainingItem",
                     switchingText("Activate Remaining Styles…", "Activate %1 Fonts…", count),
                     subject.activateRemaining);
    if (subject.offer.deactivates)
        addSwitching(menu, "deactivateItem",
                     switchingText("De-activate", "De-activate %1 Fonts", count),
                     subject.deactivate);
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
    addSubmenu(menu, "styleMenu", text("Style"), [shared](QMenu &submenu) {
        fillChoice(submenu, shared->styles(), shared->chooseStyle,
                   [shared] { shared->chooseStyle(std::nullopt); });
    });
    addSubmenu(menu, "collectionsMenu", text("Collections"), [shared](QMenu &submenu) {
        fillCollections(submenu, shared);
    })->setEnabled(subject.hasCollections);
    addSubmenu(menu, "foundryMenu", text("Foundry"), [shared](QMenu &submenu) {
        fillChoice(submenu, shared->foundries(), shared->chooseFoundry,
                   [shared] { shared->chooseFoundry({}); });
    });
    addActivation(menu, subject);
}

} // namespace lorva
