// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#include "ui/detail/CharacterAccessibility.h"

#include "ui/detail/CharacterCellsView.h"
#include "ui/style/AccessibleList.h"

#include <optional>

namespace lorva {

namespace {

/// One cell, counted over all sections.
class AccessibleCell final : public AccessibleListItem
{
public:
    using AccessibleListItem::AccessibleListItem;

    bool isValid() const override { return cell().has_value(); }

    QString text(QAccessible::Text kind) const override
    {
        const std::optional<CellIndex> at = cell();
        if (at && kind == QAccessible::Name)
            return view()->nameOf(*at);
        return at && kind == QAccessible::Description ? view()->cells().descriptionAt(*at)
                                                      : QString();
    }

    QRect rect() const override
    {
        const std::optional<CellIndex> at = cell();
        if (!at)
            return {};
        const QRect own = view()->arrangement().cellRect(*at);
        return {view()->mapToGlobal(own.topLeft()), own.size()};
    }

    QAccessible::State state() const override
    {
        QAccessible::State state;
        const std::optional<CellIndex> at = cell();
        state.invalid = !at;
        state.focusable = true;
        state.focused = at && view()->hasFocus() && view()->current() == at;
        state.invisible = !view() || !view()->isVisible();
        return state;
    }

protected:
    void act(Action action) override
    {
        const CellIndex at = *cell();
        view()->setFocus();
        view()->setCurrent(at);
        if (action == Action::press)
            Q_EMIT view()->selected(at, Qt::OtherFocusReason);
    }

private:
    CharacterCellsView *view() const { return static_cast<CharacterCellsView *>(list()); }
    std::optional<CellIndex> cell() const
    {
        return view() ? view()->arrangement().cellOf(index()) : std::nullopt;
    }
};

class AccessibleCells final : public AccessibleList
{
public:
    using AccessibleList::AccessibleList;

    int childCount() const override { return view().arrangement().cellCount(); }

    QAccessibleInterface *childAt(int x, int y) const override
    {
        const auto cell = view().arrangement().cellAt(view().mapFromGlobal(QPoint(x, y)));
        return cell ? child(view().arrangement().flatIndex(*cell)) : nullptr;
    }

    QAccessibleInterface *focusChild() const override
    {
        const std::optional<CellIndex> current = view().current();
        return view().hasFocus() && current ? child(view().arrangement().flatIndex(*current))
                                            : QAccessibleWidget::focusChild();
    }

protected:
    AccessibleListItem *makeItem(int index) const override
    {
        return new AccessibleCell(&view(), index);
    }

private:
    CharacterCellsView &view() const { return *static_cast<CharacterCellsView *>(object()); }
};

QAccessibleInterface *makeAccessible(const QString &, QObject *object)
{
    auto *view = qobject_cast<CharacterCellsView *>(object);
    return view ? new AccessibleCells(view) : nullptr;
}

} // namespace

void installCharacterAccessibility()
{
    [[maybe_unused]] static const bool once = [] {
        QAccessible::installFactory(makeAccessible);
        return true;
    }();
}

void announceCurrent(CharacterCellsView &view)
{
    if (!QAccessible::isActive() || !view.hasFocus() || !view.current())
        return;
    QAccessibleEvent event(&view, QAccessible::Focus);
    event.setChild(view.arrangement().flatIndex(*view.current()));
    QAccessible::updateAccessibility(&event);
}

void announceCells(CharacterCellsView &view)
{
    AccessibleList::announceOtherItems(view);
}

} // namespace lorva
