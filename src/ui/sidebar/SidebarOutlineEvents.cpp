// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT

// The outline's answers to keys, mouse and drags.

#include "ui/sidebar/SidebarDropTracker.h"
#include "ui/sidebar/SidebarModel.h"
#include "ui/sidebar/SidebarOutlineView.h"
#include "ui/style/OverlayScrollBar.h"

#include <QContextMenuEvent>
#include <QDropEvent>
#include <QFocusEvent>
#include <QKeyEvent>
#include <QMouseEvent>

namespace lorva {

void SidebarOutlineView::keyPressEvent(QKeyEvent *event)
{
    setShowsFocus(true);
    if (takeKey(*event))
        event->accept();
    else
        QTreeView::keyPressEvent(event);
}

/// True when the key was for us; the rest is as in every outline.
bool SidebarOutlineView::takeKey(const QKeyEvent &event)
{
    if ((event.modifiers() & ~Qt::KeypadModifier) != Qt::NoModifier)
        return false;
    const bool isMirrored = layoutDirection() == Qt::RightToLeft;
    switch (event.key()) {
    case Qt::Key_Left:
    case Qt::Key_Right:
        if ((event.key() == Qt::Key_Left) != isMirrored)
            closeOrGoToHeader();
        else
            openOrGoToFirstRow();
        return true;
    case Qt::Key_Space:
        if (m_typeAhead.isRunning())
            keyboardSearch(event.text());
        else
            chooseCurrent();
        return true;
    case Qt::Key_Return:
    case Qt::Key_Enter:
        chooseCurrent();
        return true;
    case Qt::Key_Delete:
        if (currentIndex().isValid() && !isHidden(currentIndex()))
            Q_EMIT deletionWanted(currentIndex());
        return true;
    default:
        return false;
    }
}

void SidebarOutlineView::closeOrGoToHeader()
{
    const QModelIndex current = currentIndex();
    if (isHeader(current))
        collapse(current);
    else if (current.isValid())
        setCurrentOnly(current.parent());
}

void SidebarOutlineView::openOrGoToFirstRow()
{
    const QModelIndex current = currentIndex();
    if (!isHeader(current))
        return;
    if (isExpanded(current))
        goTo(m_model.index(0, 0, current));
    else
        expand(current);
}

void SidebarOutlineView::chooseCurrent()
{
    const QModelIndex current = currentIndex();
    const bool isSource = current.flags().testFlag(Qt::ItemIsSelectable);
    if (isHeader(current))
        setExpanded(current, !isExpanded(current));
    else if (isSource && !selectionModel()->isSelected(current))
        goTo(current);
    else if (current.isValid())
        Q_EMIT chosen(current);
}

void SidebarOutlineView::focusInEvent(QFocusEvent *event)
{
    m_focusCameByPress = event->reason() == Qt::MouseFocusReason;
    if (event->reason() != Qt::PopupFocusReason && event->reason() != Qt::ActiveWindowFocusReason)
        setShowsFocus(event->reason() == Qt::TabFocusReason
                      || event->reason() == Qt::BacktabFocusReason
                      || event->reason() == Qt::ShortcutFocusReason);
    QTreeView::focusInEvent(event);
    viewport()->update();
}

void SidebarOutlineView::focusOutEvent(QFocusEvent *event)
{
    QTreeView::focusOutEvent(event);
    viewport()->update();
}

void SidebarOutlineView::mousePressEvent(QMouseEvent *event)
{
    setShowsFocus(false);
    // A menu is asked for without choosing the row.
    if (event->button() != Qt::LeftButton)
        return;
    m_wasChosenOnPress = selectionModel()->isSelected(indexAt(event->position().toPoint()));
    QTreeView::mousePressEvent(event);
}

void SidebarOutlineView::mouseMoveEvent(QMouseEvent *event)
{
    // A pressed button that is moved neither chooses what it passes nor drags a row away.
    if (event->buttons() == Qt::NoButton)
        setHovered(indexAt(event->position().toPoint()));
}

void SidebarOutlineView::mouseReleaseEvent(QMouseEvent *event)
{
    QTreeView::mouseReleaseEvent(event);
    m_focusCameByPress = false;
}

void SidebarOutlineView::contextMenuEvent(QContextMenuEvent *event)
{
    const bool isByKey = event->reason() == QContextMenuEvent::Keyboard;
    const QModelIndex index = isByKey ? currentIndex() : indexAt(event->pos());
    if (!index.isValid() || isHidden(index))
        return;
    const QPoint place = isByKey ? visualRect(index).center() : event->pos();
    Q_EMIT menuWanted(index, viewport()->mapToGlobal(place));
}

void SidebarOutlineView::resizeEvent(QResizeEvent *event)
{
    QTreeView::resizeEvent(event);
    m_overlay->adapt();
}

void SidebarOutlineView::dragEnterEvent(QDragEnterEvent *event)
{
    m_drops->enter(*event);
}

void SidebarOutlineView::dragMoveEvent(QDragMoveEvent *event)
{
    m_drops->move(*event);
}

void SidebarOutlineView::dragLeaveEvent(QDragLeaveEvent *)
{
    m_drops->leave();
}

void SidebarOutlineView::dropEvent(QDropEvent *event)
{
    QStringList names;
    const QModelIndex target = m_drops->drop(*event, names);
    if (target.isValid())
        Q_EMIT familiesDropped(target, names);
}

} // namespace lorva
