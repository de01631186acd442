// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#include "ui/detail/CharacterAccessibility.h"

#include "ui/detail/CharacterCellsView.h"

#include <QAccessibleWidget>
#include <QPointer>

#include <map>

namespace lorva {

namespace {

/// One cell, counted over all sections. Lives until the view shows other cells.
class AccessibleCell final : public QAccessibleInterface, public QAccessibleActionInterface
{
public:
    AccessibleCell(CharacterCellsView *view, int index)
        : m_view(view)
        , m_index(index)
    {
    }

    int index() const { return m_index; }
    bool isValid() const override { return cell().has_value(); }
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
    void setText(QAccessible::Text, const QString &) override { }

    QString text(QAccessible::Text kind) const override
    {
        const std::optional<CellIndex> at = cell();
        if (at && kind == QAccessible::Name)
            return m_view->nameOf(*at);
        return at && kind == QAccessible::Description ? m_view->cells().descriptionAt(*at)
                                                      : QString();
    }

    QRect rect() const override
    {
        const std::optional<CellIndex> at = cell();
        if (!at)
            return {};
        const QRect own = m_view->arrangement().cellRect(*at);
        return {m_view->mapToGlobal(own.topLeft()), own.size()};
    }

    QAccessible::State state() const override
    {
        QAccessible::State state;
        const std::optional<CellIndex> at = cell();
        state.invalid = !at;
        state.focusable = true;
        state.focused = at && m_view->hasFocus() && m_view->current() == at;
        state.invisible = !m_view || !m_view->isVisible();
        return state;
    }

    void *interface_cast(QAccessible::InterfaceType type) override
    {
        const bool isAction = type == QAccessible::ActionInterface;
        return isAction ? static_cast<QAccessibleActionInterface *>(this) : nullptr;
    }
    QStringList actionNames() const override { return {pressAction(), setFocusAction()}; }
    QStringList keyBindingsForAction(const QString &) const override { return {}; }
    void doAction(const QString &name) override
    {
        const std::optional<CellIndex> at = cell();
        if (!at)
            return;
        m_view->setFocus();
        m_view->setCurrent(*at);
        if (name == pressAction())
            Q_EMIT m_view->selected(*at, Qt::OtherFocusReason);
    }

private:
    std::optional<CellIndex> cell() const
    {
        return m_view ? m_view->arrangement().cellOf(m_index) : std::nullopt;
    }

    QPointer<CharacterCellsView> m_view;
    const int m_index;
};

/// Makes the interfaces of its cells when they are asked for: there may be 65,000.
class AccessibleCells final : public QAccessibleWidget
{
public:
    explicit AccessibleCells(CharacterCellsView *view)
        : QAccessibleWidget(view, QAccessible::List)
    {
    }
    ~AccessibleCells() override { forgetCells(); }

    int childCount() const override { return view().arrangement().cellCount(); }

    QAccessibleInterface *child(int index) const override
    {
        if (index < 0 || index >= childCount())
            return nullptr;
        const auto [known, isNew] = m_cells.try_emplace(index);
        if (isNew)
            known->second =
                QAccessible::registerAccessibleInterface(new AccessibleCell(&view(), index));
        return QAccessible::accessibleInterface(known->second);
    }

    int indexOfChild(const QAccessibleInterface *child) const override
    {
        const auto *cell = dynamic_cast<const AccessibleCell *>(child);
        return cell ? cell->index() : -1;
    }

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

    void forgetCells()
    {
        for (const auto &[index, id] : std::exchange(m_cells, {}))
            QAccessible::deleteAccessibleInterface(id);
    }

private:
    CharacterCellsView &view() const { return *static_cast<CharacterCellsView *>(object()); }

    mutable std::map<int, QAccessible::Id> m_cells;
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
    // Also while nobody listens: who asked earlier may still hold one of them.
    if (auto *list = dynamic_cast<AccessibleCells *>(QAccessible::queryAccessibleInterface(&view)))
        list->forgetCells();
    QAccessibleEvent event(&view, QAccessible::ObjectReorder);
    QAccessible::updateAccessibility(&event);
}

} // namespace lorva
