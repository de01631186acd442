// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QAccessibleWidget>
#include <QPointer>
#include <QWidget>

#include <map>

namespace lorva {

/// One item of a list that draws its items itself, on screen or not. Lives until the list shows
/// other items.
class AccessibleListItem : public QAccessibleInterface, public QAccessibleActionInterface
{
public:
    AccessibleListItem(QWidget *list, int index);

    int index() const { return m_index; }
    QObject *object() const override { return nullptr; }
    QAccessibleInterface *parent() const override;
    QAccessibleInterface *child(int) const override { return nullptr; }
    QAccessibleInterface *childAt(int, int) const override { return nullptr; }
    int childCount() const override { return 0; }
    int indexOfChild(const QAccessibleInterface *) const override { return -1; }
    QAccessible::Role role() const override { return QAccessible::ListItem; }
    void setText(QAccessible::Text, const QString &) override { }
    void *interface_cast(QAccessible::InterfaceType type) override;
    QStringList actionNames() const override { return {pressAction(), setFocusAction()}; }
    QStringList keyBindingsForAction(const QString &) const override { return {}; }
    void doAction(const QString &name) override;

protected:
    enum class Action { focus, press };
    /// The item is valid.
    virtual void act(Action action) = 0;
    /// Null once the list is gone.
    QWidget *list() const { return m_list; }

private:
    const QPointer<QWidget> m_list;
    const int m_index;
};

/// Such a list. Makes the interfaces of its items when they are asked for: there may be thousands.
class AccessibleList : public QAccessibleWidget
{
public:
    explicit AccessibleList(QWidget *list);
    ~AccessibleList() override;

    QAccessibleInterface *child(int index) const override;
    int indexOfChild(const QAccessibleInterface *child) const override;

    /// The widget shows other items now: those that were handed out end, and whoever listens hears
    /// of it.
    static void announceOtherItems(QWidget &list);

protected:
    virtual AccessibleListItem *makeItem(int index) const = 0;

private:
    void forgetItems();

    mutable std::map<int, QAccessible::Id> m_items;
};

} // namespace lorva
