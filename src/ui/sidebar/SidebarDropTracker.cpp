// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT

#include "ui/sidebar/SidebarDropTracker.h"

#include "ui/FontFamilyPasteboard.h"

#include <QDragEnterEvent>
#include <QMimeData>
#include <QScrollBar>
#include <QTreeView>

#include <algorithm>
#include <chrono>

namespace lorva {

namespace {

constexpr std::chrono::milliseconds kOpenAfter{600};
constexpr std::chrono::milliseconds kScrollEvery{16};
/// How near to an edge the outline begins to scroll, and the most that it scrolls at once.
constexpr int kEdge = 32;
constexpr int kFastestStep = 12;

/// Without reading them: a drag of the whole library moves with the pointer.
bool carriesFamilies(const QDropEvent &event)
{
    return event.mimeData()->hasFormat(QLatin1String(kFontFamilyNamesMimeType));
}

} // namespace

SidebarDropTracker::SidebarDropTracker(QTreeView &outline)
    : QObject(&outline)
    , m_outline(outline)
{
    m_openTimer.setSingleShot(true);
    m_openTimer.setInterval(kOpenAfter);
    m_scrollTimer.setInterval(kScrollEvery);
    connect(&m_openTimer, &QTimer::timeout, this, &SidebarDropTracker::openGroup);
    connect(&m_scrollTimer, &QTimer::timeout, this, &SidebarDropTracker::scroll);
}

void SidebarDropTracker::enter(QDragEnterEvent &event)
{
    // Accepted wherever it enters: a drag that is refused here would never be told of again.
    event.setDropAction(Qt::CopyAction);
    event.setAccepted(carriesFamilies(event));
    if (event.isAccepted())
        follow(event.position().toPoint());
}

void SidebarDropTracker::move(QDragMoveEvent &event)
{
    if (!carriesFamilies(event)) {
        event.ignore();
        return;
    }
    follow(event.position().toPoint());
    event.setDropAction(Qt::CopyAction);
    event.setAccepted(m_target.isValid());
}

void SidebarDropTracker::leave()
{
    setTarget({});
    m_groupToOpen = QModelIndex();
    m_openTimer.stop();
    m_scrollTimer.stop();
}

QModelIndex SidebarDropTracker::drop(QDropEvent &event, QStringList &names)
{
    names = fontFamilyNames(*event.mimeData());
    follow(event.position().toPoint());
    const QModelIndex target = names.isEmpty() ? QModelIndex() : QModelIndex(m_target);
    leave();
    event.setDropAction(Qt::CopyAction);
    event.setAccepted(target.isValid());
    return target;
}

void SidebarDropTracker::follow(QPoint position)
{
    m_position = position;
    const QModelIndex under = m_outline.indexAt(position);
    setTarget(under.flags().testFlag(Qt::ItemIsDropEnabled) ? under : QModelIndex());
    considerOpening(under);
    considerScrolling();
}

void SidebarDropTracker::setTarget(const QModelIndex &target)
{
    if (m_target == target)
        return;
    m_target = target;
    m_outline.viewport()->update();
}

void SidebarDropTracker::considerOpening(const QModelIndex &under)
{
    const bool isClosedGroup = under.isValid() && !under.parent().isValid()
        && m_outline.model()->hasChildren(under) && !m_outline.isExpanded(under);
    const QModelIndex group = isClosedGroup ? under : QModelIndex();
    if (m_groupToOpen == group)
        return;
    m_groupToOpen = group;
    if (group.isValid())
        m_openTimer.start();
    else
        m_openTimer.stop();
}

void SidebarDropTracker::considerScrolling()
{
    const int toTop = m_position.y();
    const int toBottom = m_outline.viewport()->height() - m_position.y();
    const int depth = kEdge - std::min(toTop, toBottom);
    m_scrollStep = std::clamp(depth * kFastestStep / kEdge, 0, kFastestStep);
    if (toTop < toBottom)
        m_scrollStep = -m_scrollStep;
    if (m_scrollStep == 0)
        m_scrollTimer.stop();
    else if (!m_scrollTimer.isActive())
        m_scrollTimer.start();
}

void SidebarDropTracker::openGroup()
{
    if (m_groupToOpen.isValid())
        m_outline.expand(m_groupToOpen);
}

void SidebarDropTracker::scroll()
{
    QScrollBar *bar = m_outline.verticalScrollBar();
    bar->setValue(bar->value() + m_scrollStep);
    follow(m_position);
}

} // namespace lorva
