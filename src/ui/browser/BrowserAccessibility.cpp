// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT

#include "ui/browser/BrowserAccessibility.h"

#include "ui/browser/BrowserCollectionView.h"

#include <QAccessibleWidget>
#include <QPointer>

#include <map>

namespace lorva {

namespace {

/// One card of the list, on screen or not. Lives until the list shows other cards.
class AccessibleCard final : public QAccessibleInterface, public QAccessibleActionInterface
{
public:
    AccessibleCard(BrowserCollectionView *view, int index)
        : m_view(view)
        , m_index(index)
    {
    }

    bool isValid() const override { return m_view && m_index < m_view->items().size(); }
    QObject *object() const override { return nullptr; }
    QAccessibleInterface *parent() const override
    {
        return QAccessible::queryAccessibleInterface(m_view);
    }
    QAccessibleInterface *child(int) const override { return nullptr; }
    QAccessibleInterface *childAt(int, int) const override { return nullptr; }
    int childCount() const override { return 0; }
    int indexOfChild(const QAccessibleInterface *) const override { return -1; }
    QAccessible::Role role() const override { return QAccessible::ListItem; }

    QString text(QAccessible::Text kind) const override
    {
        if (!isValid())
            return {};
        if (kind == QAccessible::Name)
            return m_view->items().at(m_index);
        const bool isDescribed = kind == QAccessible::Description && m_view->describeItem;
        return isDescribed ? m_view->describeItem(m_index) : QString();
    }
    void setText(QAccessible::Text, const QString &) override { }

    QRect rect() const override
    {
        if (!isValid())
            return {};
        const QRect card = m_view->viewportRect(m_view->arrangement().cardRect(m_index));
        return {m_view->viewport()->mapToGlobal(card.topLeft()), card.size()};
    }

    QAccessible::State state() const override
    {
        QAccessible::State state;
        if (!isValid()) {
            state.invalid = true;
            return state;
        }
        state.selectable = true;
        state.extSelectable = true;
        state.focusable = true;
        state.selected = m_view->isSelected(m_index);
        state.focused = m_view->hasFocus() && m_view->selection().current() == m_index;
        state.offscreen = !m_view->visibleItem(m_index);
        state.invisible = !m_view->isVisible();
        return state;
    }

    void *interface_cast(QAccessible::InterfaceType type) override
    {
        const bool isAction = type == QAccessible::ActionInterface;
        return isAction ? static_cast<QAccessibleActionInterface *>(this) : nullptr;
    }
    QStringList actionNames() const override { return {pressAction(), setFocusAction()}; }
    void doAction(const QString &name) override
    {
        if (!isValid())
            return;
        BrowserSelection selection = m_view->selection();
        selection.choose(m_index);
        m_view->setSelection(selection);
        m_view->scrollToItem(m_index);
        m_view->setFocus();
        if (name == pressAction() && m_view->onActivateSelection)
            m_view->onActivateSelection();
    }
    QStringList keyBindingsForAction(const QString &) const override { return {}; }

    int index() const { return m_index; }

private:
    QPointer<BrowserCollectionView> m_view;
    const int m_index;
};

/// The list. Makes the interfaces of its cards when they are asked for: there may be thousands.
class AccessibleCards final : public QAccessibleWidget
{
public:
    explicit AccessibleCards(BrowserCollectionView *view)
        : QAccessibleWidget(view, QAccessible::List)
    {
    }
    ~AccessibleCards() override { forgetCards(); }

    int childCount() const override { return int(view().items().size()); }

    QAccessibleInterface *child(int index) const override
    {
        if (index < 0 || index >= childCount())
            return nullptr;
        const auto [known, isNew] = m_cards.try_emplace(index);
        if (isNew)
            known->second =
                QAccessible::registerAccessibleInterface(new AccessibleCard(&view(), index));
        return QAccessible::accessibleInterface(known->second);
    }

    int indexOfChild(const QAccessibleInterface *child) const override
    {
        const auto *card = dynamic_cast<const AccessibleCard *>(child);
        return card ? card->index() : -1;
    }

    QAccessibleInterface *childAt(int x, int y) const override
    {
        const QPoint point = view().viewport()->mapFromGlobal(QPoint(x, y));
        return child(view().arrangement().indexAt(view().contentPoint(point)));
    }

    QAccessibleInterface *focusChild() const override
    {
        const int current = view().selection().current();
        return view().hasFocus() && current >= 0 ? child(current) : QAccessibleWidget::focusChild();
    }

    QAccessible::State state() const override
    {
        QAccessible::State state = QAccessibleWidget::state();
        state.multiSelectable = true;
        state.extSelectable = true;
        return state;
    }

    void forgetCards()
    {
        for (const auto &[index, id] : std::exchange(m_cards, {}))
            QAccessible::deleteAccessibleInterface(id);
    }

private:
    BrowserCollectionView &view() const { return *static_cast<BrowserCollectionView *>(object()); }

    mutable std::map<int, QAccessible::Id> m_cards;
};

QAccessibleInterface *makeAccessible(const QString &, QObject *object)
{
    auto *view = qobject_cast<BrowserCollectionView *>(object);
    return view ? new AccessibleCards(view) : nullptr;
}

void announce(BrowserCollectionView &view, QAccessible::Event type, int child)
{
    QAccessibleEvent event(&view, type);
    if (child >= 0)
        event.setChild(child);
    QAccessible::updateAccessibility(&event);
}

} // namespace

void installBrowserAccessibility()
{
    [[maybe_unused]] static const bool once = [] {
        QAccessible::installFactory(makeAccessible);
        return true;
    }();
}

void announceSelection(BrowserCollectionView &view)
{
    if (!QAccessible::isActive())
        return;
    const int current = view.selection().current();
    if (current >= 0 && view.selection().count() == 1)
        announce(view, QAccessible::Selection, current);
    else
        announce(view, QAccessible::SelectionWithin, -1);
    if (current >= 0 && view.hasFocus())
        announce(view, QAccessible::Focus, current);
}

void announceItems(BrowserCollectionView &view)
{
    // Also while nobody listens: who asked earlier may still hold one of them.
    if (auto *list = dynamic_cast<AccessibleCards *>(QAccessible::queryAccessibleInterface(&view)))
        list->forgetCards();
    announce(view, QAccessible::ObjectReorder, -1);
}

} // namespace lorva
