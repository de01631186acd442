// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#pragma once

#include "ui/sidebar/SidebarState.h"

#include <QPointer>
#include <QWidget>

class QAbstractScrollArea;
class QMenu;
class QModelIndex;

namespace lorva {

class IconButton;
class SidebarModel;
class SidebarOutlineView;

/// The left pane: an outline of the places that the browser can show.
///
/// Renders the state it is given and reports what the user does to its delegate. What the user
/// chooses, opens and closes shows at once; the next state confirms or corrects it. Thread: main.
class ProjectSidebarViewController final : public QWidget
{
    Q_OBJECT
public:
    static constexpr int kWidth = 232;

    explicit ProjectSidebarViewController(QWidget *parent = nullptr);
    ~ProjectSidebarViewController() override;

    /// Does not own it; it must outlive this view.
    void setDelegate(SidebarDelegate *delegate) { m_delegate = delegate; }
    /// Renders a new state whole. No callback is made by it.
    void apply(const SidebarState &state);

    /// Asks the delegate for an empty collection; its name is edited as soon as it has a row.
    void beginCreatingCollection();
    /// Edits the name of a collection or foundry in its row. Nothing happens for other rows.
    void beginRenaming(const SidebarItem &item);

    SidebarOutlineView &outlineView() { return *m_outlineView; }
    /// What scrolls.
    QAbstractScrollArea *scrollView() const;

    QSize sizeHint() const override;

protected:
    void paintEvent(QPaintEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;
    void changeEvent(QEvent *event) override;
    void wheelEvent(QWheelEvent *event) override;

private:
    void connectOutline();
    void applyCollapsedGroups();
    void mirrorSelection();
    void startPendingRename();
    void adoptColors();
    void placeAddButton();

    void choose(const QModelIndex &index);
    void noteGroupToggled(const QModelIndex &header);
    void askForDeletion(const QModelIndex &index);
    void rename(const SidebarItem &item, const QString &newName);
    void showMenu(const QModelIndex &index, const QPoint &globalPosition);
    void fillMenu(QMenu &menu, const SidebarItem &item);
    int familyCount(const SidebarItem &item) const;
    void addActivation(QMenu &menu, const SidebarItem &item);
    void fillFoundryMenu(QMenu &menu, const SidebarItem &item);
    void addHiddenFoundries(QMenu &menu);

    SidebarDelegate *m_delegate = nullptr;
    SidebarState m_state;
    SidebarModel *m_model;
    SidebarOutlineView *m_outlineView;
    IconButton *m_addButton;
    QPointer<QMenu> m_contextualMenu;
    /// Set while a state is rendered: what changes in the outline then is no act of the user.
    bool m_suppressSelectionCallbacks = false;
    bool m_forwardsWheel = false;
    /// The collection just made, until its row is here.
    std::optional<SidebarItem> m_pendingRename;
};

} // namespace lorva
