// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#include "ui/style/AccessibleList.h"

#include <utility>

namespace lorva {

AccessibleListItem::AccessibleListItem(QWidget *list, int index)
    : m_list(list)
    , m_index(index)
{
}

QAccessibleInterface *AccessibleListItem::parent() const
{
    return QAccessible::queryAccessibleInterface(m_list);
}

void *AccessibleListItem::interface_cast(QAccessible::InterfaceType type)
{
    const bool isAction = type == QAccessible::ActionInterface;
    return isAction ? static_cast<QAccessibleActionInterface *>(this) : nullptr;
}

void AccessibleListItem::doAction(const QString &name)
{
    if (isValid())
        act(name == pressAction() ? Action::press : Action::focus);
}

AccessibleList::AccessibleList(QWidget *list)
    : QAccessibleWidget(list, QAccessible::List)
{
}

AccessibleList::~AccessibleList()
{
    forgetItems();
}

QAccessibleInterface *AccessibleList::child(int index) const
{
    if (index < 0 || index >= childCount())
        return nullptr;
    const auto [known, isNew] = m_items.try_emplace(index);
    if (isNew)
        known->second = QAccessible::registerAccessibleInterface(makeItem(index));
    return QAccessible::accessibleInterface(known->second);
}

int AccessibleList::indexOfChild(const QAccessibleInterface *child) const
{
    const auto *item = dynamic_cast<const AccessibleListItem *>(child);
    return item ? item->index() : -1;
}

void AccessibleList::announceOtherItems(QWidget &list)
{
    // Also while nobody listens: who asked earlier may still hold one of them.
    if (auto *made = dynamic_cast<AccessibleList *>(QAccessible::queryAccessibleInterface(&list)))
        made->forgetItems();
    QAccessibleEvent event(&list, QAccessible::ObjectReorder);
    QAccessible::updateAccessibility(&event);
}

void AccessibleList::forgetItems()
{
    for (const auto &[index, id] : std::exchange(m_items, {}))
        QAccessible::deleteAccessibleInterface(id);
}

} // namespace lorva
