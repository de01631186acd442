// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QPersistentModelIndex>
#include <QPoint>
#include <QTimer>

class QDragEnterEvent;
class QDragMoveEvent;
class QDropEvent;
class QTreeView;

namespace lorva {

/// Families held over the outline: which row they would fall on, the group that opens under them,
/// the scrolling at the edges. Belongs to the outline. Thread: main.
class SidebarDropTracker final : public QObject
{
    Q_OBJECT
public:
    explicit SidebarDropTracker(QTreeView &outline);

    /// The row that would take the families; invalid for none.
    QModelIndex target() const { return m_target; }

    void enter(QDragEnterEvent &event);
    void move(QDragMoveEvent &event);
    void leave();
    /// Ends the drag; the row that took the families, with their names in `names`.
    QModelIndex drop(QDropEvent &event, QStringList &names);

private:
    void follow(QPoint position);
    void setTarget(const QModelIndex &target);
    void considerOpening(const QModelIndex &under);
    void considerScrolling();
    void openGroup();
    void scroll();

    QTreeView &m_outline;
    QPoint m_position;
    QPersistentModelIndex m_target;
    QPersistentModelIndex m_groupToOpen;
    QTimer m_openTimer;
    QTimer m_scrollTimer;
    int m_scrollStep = 0;
};

} // namespace lorva
