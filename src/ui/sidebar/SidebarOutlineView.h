// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#pragma once

#include "ui/sidebar/SidebarRowPainter.h"
#include "ui/sidebar/SidebarTypeAhead.h"

#include <QTreeView>

namespace lorva {

class OverlayScrollBar;
class SidebarDropTracker;
class SidebarModel;
class SidebarRowDelegate;

/// The outline itself: rows, keys, clicks and drops, told as signals; what they mean is decided
/// elsewhere.
///
/// Up and down go from source to source and stop at a header only while its group is closed; the
/// keys left and right lead to headers and close and open groups. Thread: main.
class SidebarOutlineView final : public QTreeView
{
    Q_OBJECT
public:
    /// Does not own the model, which must outlive it.
    SidebarOutlineView(SidebarModel &model, QWidget *parent);

    const SidebarModel &sidebarModel() const { return m_model; }
    SidebarRowDelegate &rowDelegate() { return *m_delegate; }
    SidebarRowMarks marksOf(const QModelIndex &index) const;
    /// The row whose context menu is open; invalid for none.
    void setMenuTarget(const QModelIndex &index);
    bool isEditing() const { return state() == EditingState; }
    /// True when the group that the row stands in is closed.
    bool isHidden(const QModelIndex &index) const;
    /// Goes to a row without choosing it.
    void setCurrentOnly(const QModelIndex &index);
    /// Of the scroll bar that lies over the rows.
    void setForeground(const QColor &color);
    /// Scrolls as if the wheel were turned over the rows.
    void takeWheel(QWheelEvent *event) { wheelEvent(event); }

    /// Brings the row into sight with as little movement as it takes, whatever the hint says; never
    /// opens a group.
    void scrollTo(const QModelIndex &index, ScrollHint hint = EnsureVisible) override;
    void keyboardSearch(const QString &typed) override;
    void dataChanged(const QModelIndex &topLeft, const QModelIndex &bottomRight,
                     const QList<int> &roles = {}) override;

Q_SIGNALS:
    /// The user chose a row by click or key; it may be chosen already.
    void chosen(const QModelIndex &index);
    void deletionWanted(const QModelIndex &index);
    void menuWanted(const QModelIndex &index, const QPoint &globalPosition);
    void familiesDropped(const QModelIndex &index, const QStringList &familyNames);
    /// The rows lie elsewhere than before.
    void rowsMoved();

protected:
    void drawRow(QPainter *painter, const QStyleOptionViewItem &option,
                 const QModelIndex &index) const override;
    void initViewItemOption(QStyleOptionViewItem *option) const override;
    void drawBranches(QPainter *, const QRect &, const QModelIndex &) const override { }
    QModelIndex moveCursor(CursorAction action, Qt::KeyboardModifiers modifiers) override;
    QItemSelectionModel::SelectionFlags selectionCommand(const QModelIndex &index,
                                                         const QEvent *event) const override;
    void selectionChanged(const QItemSelection &selected,
                          const QItemSelection &deselected) override;
    using QTreeView::edit;
    bool edit(const QModelIndex &index, EditTrigger trigger, QEvent *event) override;
    void updateGeometries() override;
    void scrollContentsBy(int dx, int dy) override;
    bool viewportEvent(QEvent *event) override;

    void keyPressEvent(QKeyEvent *event) override;
    void focusInEvent(QFocusEvent *event) override;
    void focusOutEvent(QFocusEvent *event) override;
    void mousePressEvent(QMouseEvent *event) override;
    void mouseMoveEvent(QMouseEvent *event) override;
    void mouseReleaseEvent(QMouseEvent *event) override;
    void contextMenuEvent(QContextMenuEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;
    void dragEnterEvent(QDragEnterEvent *event) override;
    void dragMoveEvent(QDragMoveEvent *event) override;
    void dragLeaveEvent(QDragLeaveEvent *event) override;
    void dropEvent(QDropEvent *event) override;

private:
    void setUpLook();
    void takeClick(const QModelIndex &index);
    bool takeKey(const QKeyEvent &event);
    void closeOrGoToHeader();
    void openOrGoToFirstRow();
    void chooseCurrent();
    void leaveClosedGroup(const QModelIndex &header);
    bool isHeader(const QModelIndex &index) const;
    bool isStop(const QModelIndex &index) const;
    QModelIndex nextStop(QModelIndex from, bool goesUp) const;
    void goTo(const QModelIndex &index);
    void setHovered(const QModelIndex &index);
    void setShowsFocus(bool shows);

    SidebarModel &m_model;
    SidebarRowDelegate *m_delegate;
    SidebarDropTracker *m_drops;
    OverlayScrollBar *m_overlay;
    SidebarTypeAhead m_typeAhead;
    QPersistentModelIndex m_hovered;
    QPersistentModelIndex m_menuTarget;
    bool m_showsFocus = false;
    bool m_wasChosenOnPress = false;
    /// The press that brought the focus here is no second click on a row.
    bool m_focusCameByPress = false;
};

} // namespace lorva
