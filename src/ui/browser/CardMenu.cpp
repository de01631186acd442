// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT

#include "ui/browser/CardMenu.h"

#include "ui/style/MenuLook.h"

#include <QMenu>

#include <memory>

namespace lorva {

QMenu *makeCardMenu(const FontBrowserState &state, const QStringList &familyNames,
                    FontBrowserDelegate &browser, QWidget *parent)
{
    QMenu *menu = makeMenu(parent);
    menu->setObjectName(QStringLiteral("cardMenu"));
    const auto shown = std::make_shared<const FontBrowserState>(state);
    const QStringList &names = familyNames;
    FamilyMenuSubject subject;
    subject.styles = [shown, names] { return styleOptions(*shown, names); };
    subject.collections = [shown, names] { return collectionOptions(*shown, names); };
    subject.foundries = [shown, names] { return foundryOptions(*shown, names); };
    subject.hasCollections = !state.collections.empty();
    subject.offer = activationOffer(state, names);
    subject.familyCount = names.size();
    FontBrowserDelegate *delegate = &browser;
    subject.chooseStyle = [delegate, names](const std::optional<QString> &id) {
        delegate->browserStyleChosen(names, id);
    };
    subject.toggleCollection = [delegate, names](const QString &id) {
        delegate->browserCollectionToggled(names, id);
    };
    subject.chooseFoundry = [delegate, names](const QString &id) {
        delegate->browserFoundryChosen(names, id);
    };
    subject.activate = [delegate, names] { delegate->browserActivationWanted(names); };
    subject.activateRemaining = [delegate, names] {
        delegate->browserRemainingActivationWanted(names);
    };
    subject.deactivate = [delegate, names] { delegate->browserDeactivationWanted(names); };
    fillFamilyMenu(*menu, subject);
    return menu;
}

} // namespace lorva
