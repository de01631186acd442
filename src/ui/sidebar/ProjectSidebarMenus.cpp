// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT

// The context menus of the sidebar's rows.

#include "ui/sidebar/ProjectSidebarViewController.h"
#include "ui/sidebar/SidebarModel.h"
#include "ui/sidebar/SidebarOutlineView.h"
#include "ui/style/MenuLook.h"

#include <QMenu>

namespace lorva {

void ProjectSidebarViewController::showMenu(const QModelIndex &index, const QPoint &globalPosition)
{
    const std::optional<SidebarItem> item = m_model->itemAt(index);
    if (!item || !m_delegate)
        return;
    QMenu *menu = makeMenu(this);
    menu->setObjectName(QStringLiteral("SidebarMenu"));
    menu->setToolTipsVisible(true);
    fillMenu(*menu, *item);
    if (menu->isEmpty()) {
        delete menu;
        return;
    }
    m_contextualMenu = menu;
    m_outlineView->setMenuTarget(index);
    connect(menu, &QMenu::aboutToHide, this, [this, menu] {
        m_outlineView->setMenuTarget({});
        menu->deleteLater();
    });
    menu->popup(globalPosition);
}

void ProjectSidebarViewController::fillMenu(QMenu &menu, const SidebarItem &item)
{
    const QString &id = item.id();
    switch (item.kind()) {
    case SidebarItem::Kind::style:
        addActivation(menu, item);
        break;
    case SidebarItem::Kind::collection:
        addActivation(menu, item);
        menu.addSeparator();
        menu.addAction(tr("Rename Collection…"), this, [this, item] { beginRenaming(item); });
        menu.addAction(tr("Delete Collection"), this,
                       [this, id] { m_delegate->sidebarCollectionDeletionWanted(id); });
        break;
    case SidebarItem::Kind::foundry:
        addActivation(menu, item);
        menu.addSeparator();
        fillFoundryMenu(menu, item);
        break;
    case SidebarItem::Kind::organize:
        menu.addAction(tr("Hide from Sidebar"), this, [this] { m_delegate->sidebarPromoHidden(); });
        break;
    case SidebarItem::Kind::group:
        if (item.group() == SidebarGroup::collections)
            menu.addAction(tr("New Collection"), this, [this] { beginCreatingCollection(); });
        else if (item.group() == SidebarGroup::foundries)
            addHiddenFoundries(menu);
        break;
    default:
        break;
    }
}

/// How many families of this computer the row stands for.
int ProjectSidebarViewController::familyCount(const SidebarItem &item) const
{
    const SidebarCounts &counts = m_state.content.counts;
    switch (item.kind()) {
    case SidebarItem::Kind::style:
        return counts.styles.value(item.id());
    case SidebarItem::Kind::collection:
        return counts.collections.value(item.id());
    case SidebarItem::Kind::foundry:
        return counts.foundries.value(item.id());
    default:
        return 0;
    }
}

void ProjectSidebarViewController::addActivation(QMenu &menu, const SidebarItem &item)
{
    QAction *activate = menu.addAction(tr("Activate Fonts…"), this,
                                       [this, item] { m_delegate->sidebarActivationWanted(item); });
    activate->setObjectName(QStringLiteral("SidebarActivate"));
    QAction *deactivate = menu.addAction(tr("De-activate Fonts"), this, [this, item] {
        m_delegate->sidebarDeactivationWanted(item);
    });
    deactivate->setObjectName(QStringLiteral("SidebarDeactivate"));
    for (QAction *action : {activate, deactivate})
        action->setEnabled(familyCount(item) > 0);
}

void ProjectSidebarViewController::fillFoundryMenu(QMenu &menu, const SidebarItem &item)
{
    menu.addAction(tr("Rename Foundry…"), this, [this, item] { beginRenaming(item); });
    QAction *hide = menu.addAction(tr("Hide Foundry"), this, [this, id = item.id()] {
        m_delegate->sidebarFoundryHidingWanted(id);
    });
    hide->setToolTip(tr("This hides the foundry from the sidebar."));
    hide->setStatusTip(hide->toolTip());
    if (!m_state.dismissedFoundries.empty())
        menu.addSeparator();
    addHiddenFoundries(menu);
}

void ProjectSidebarViewController::addHiddenFoundries(QMenu &menu)
{
    if (m_state.dismissedFoundries.empty())
        return;
    auto *hidden = new QMenu(tr("Hidden Foundries"), &menu);
    hidden->setObjectName(QStringLiteral("SidebarHiddenFoundries"));
    for (const FoundryCollectionRecord &foundry : m_state.dismissedFoundries)
        hidden->addAction(menuEntryText(foundry.name), this,
                          [this, id = foundry.id] { m_delegate->sidebarFoundryBroughtBack(id); });
    applyMenuLook(*hidden);
    menu.addMenu(hidden);
}

} // namespace lorva
