// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT

#include "ui/browser/BrowserAccessibility.h"

#include "ui/browser/BrowserCollectionView.h"
#include "ui/style/AccessibleList.h"

namespace lorva {

namespace {

class AccessibleCard final : public AccessibleListItem
{
public:
    using AccessibleListItem::AccessibleListItem;

    bool isValid() const override { return view() && index() < view()->items().size(); }

    QString text(QAccessible::Text kind) const override
    {
        if (!isValid())
            return {};
        if (kind == QAccessible::Name)
            return view()->items().at(index());
        const bool isDescribed = kind == QAccessible::Description && view()->describeItem;
        return isDescribed ? view()->describeItem(index()) : QString();
    }

    QRect rect() const override
    {
        if (!isValid())
            return {};
        const QRect card = view()->viewportRect(view()->arrangement().cardRect(index()));
        return {view()->viewport()->mapToGlobal(card.topLeft()), card.size()};
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
        state.selected = view()->isSelected(index());
        state.focused = view()->hasFocus() && view()->selection().current() == index();
        state.offscreen = !view()->visibleItem(index());
        state.invisible = !view()->isVisible();
        return state;
    }

protected:
    void act(Action action) override
    {
        BrowserSelection selection = view()->selection();
        selection.choose(index());
        view()->setSelection(selection);
        view()->scrollToItem(index());
        view()->setFocus();
        if (action == Action::press && view()->onActivateSelection)
            view()->onActivateSelection();
    }

private:
    BrowserCollectionView *view() const { return static_cast<BrowserCollectionView *>(list()); }
};

class AccessibleCards final : public AccessibleList
{
public:
    using AccessibleList::AccessibleList;

    int childCount() const override { return int(view().items().size()); }

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

protected:
    AccessibleListItem *makeItem(int index) const override
    {
        return new AccessibleCard(&view(), index);
    }

private:
    BrowserCollectionView &view() const { return *static_cast<BrowserCollectionView *>(object()); }
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
    AccessibleList::announceOtherItems(view);
}

} // namespace lorva
