// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#include "ui/detail/DetailMenu.h"

#include "ui/browser/FamilyMenu.h"
#include "ui/style/MenuLook.h"

#include <QCoreApplication>
#include <QMenu>

namespace lorva {

namespace {

struct Texts
{
    Q_DECLARE_TR_FUNCTIONS(DetailMenu)
};

void addItem(QMenu &menu, const char *name, const QString &text, const std::function<void()> &act)
{
    QAction *action = menu.addAction(text);
    action->setObjectName(QString::fromLatin1(name));
    QObject::connect(action, &QAction::triggered, &menu, act);
}

} // namespace

QMenu *makeDetailMenuFor(const DetailMenuSubject &subject, QWidget *parent)
{
    QMenu *menu = makeMenu(parent);
    menu->setObjectName(QStringLiteral("detailMenu"));
    FontDetailDelegate *delegate = &subject.delegate;
    const FontDetailState &state = subject.state;
    FamilyMenuSubject family;
    family.styles = [options = state.styleOptions] { return options; };
    family.collections = [options = state.collectionOptions] { return options; };
    family.foundries = [options = state.foundryOptions] { return options; };
    family.hasCollections = !state.collectionOptions.empty();
    family.offer.add(state.familyActivation);
    family.chooseStyle = [delegate](const std::optional<QString> &id) {
        delegate->detailCategoryChosen(id);
    };
    family.toggleCollection = [delegate](const QString &id) {
        delegate->detailCollectionToggled(id);
    };
    family.chooseFoundry = [delegate](const QString &id) { delegate->detailFoundryChosen(id); };
    family.activate = [delegate] { delegate->detailActivationWanted(); };
    family.activateRemaining = [delegate] { delegate->detailRemainingActivationWanted(); };
    family.deactivate = [delegate] { delegate->detailDeactivationWanted(); };
    fillFamilyMenu(*menu, family);
    menu->addSeparator();
    addItem(*menu, "exportItem", Texts::tr("Export…"), subject.exportPage);
    addItem(*menu, "copyCssItem", Texts::tr("Copy as CSS"), subject.copyCss);
    return menu;
}

} // namespace lorva
