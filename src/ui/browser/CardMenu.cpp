// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT

#include "ui/browser/CardMenu.h"

#include "ui/style/MenuLook.h"

#include <QMenu>

#include <memory>

namespace lorva {

QMenu *makeCardMenu(const FontBrowserState &state, const QStringList &familyNames,
                    FontBrowserDelegate &delegate, QWidget *parent)
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
    FontBrowserDelegate *browser = &delegate;
    subject.chooseStyle = [browser, names](const std::optional<QString> &id) {
        browser->browserStyleChosen(names, id);
    };
    subject.toggleCollection = [browser, names](const QString &id) {
        browser->browserCollectionToggled(names, id);
    };
    subject.chooseFoundry = [browser, names](const QString &id) {
        browser->browserFoundryChosen(names, id);
    };
    subject.activate = [browser, names] { browser->browserActivationWanted(names); };
    subject.activateRemaining = [browser, names] {
        browser->browserRemainingActivationWanted(names);
    };
    subject.deactivate = [browser, names] { browser->browserDeactivationWanted(names); };
    fillFamilyMenu(*menu, subject);
    return menu;
}

} // namespace lorva
