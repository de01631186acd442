// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT

#include "ui/sidebar/SidebarOutlineView.h"

#include "ui/sidebar/SidebarDropTracker.h"
#include "ui/sidebar/SidebarModel.h"
#include "ui/sidebar/SidebarRowDelegate.h"
#include "ui/style/OverlayScrollBar.h"

#include <QAccessible>
#include <QHeaderView>
#include <QScrollBar>

#include <utility>

namespace lorva {

namespace {

constexpr int kWheelStep = 28;
/// Below the last row, as much room as at the sides.
constexpr int kBottomPadding = 10;

} // namespace

SidebarOutlineView::SidebarOutlineView(SidebarModel &model, QWidget *parent)
    : QTreeView(parent)
    , m_model(model)
    , m_delegate(new SidebarRowDelegate(*this))
    , m_drops(new SidebarDropTracker(*this))
    , m_overlay(new OverlayScrollBar(this))
{
    setObjectName(QStringLiteral("SidebarOutlineView"));
    setAccessibleName(tr("Sidebar"));
    m_overlay->follow(verticalScrollBar());
    setModel(&model);
    setItemDelegate(m_delegate);
    setUpLook();
    setSelectionMode(SingleSelection);
    setEditTriggers(SelectedClicked | EditKeyPressed);
    setExpandsOnDoubleClick(false);
    setAcceptDrops(true);
    expandAll();
    connect(this, &QTreeView::clicked, this, &SidebarOutlineView::takeClick);
    connect(this, &QTreeView::collapsed, this, &SidebarOutlineView::leaveClosedGroup);
}

void SidebarOutlineView::setUpLook()
{
    setFrameShape(QFrame::NoFrame);
    setHeaderHidden(true);
    header()->setStretchLastSection(true);
    setIndentation(0);
    setRootIsDecorated(false);
    setMouseTracking(true);
    viewport()->setAutoFillBackground(false);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setVerticalScrollMode(ScrollPerPixel);
    verticalScrollBar()->setSingleStep(kWheelStep);
}

SidebarRowMarks SidebarOutlineView::marksOf(const QModelIndex &index) const
{
    SidebarRowMarks marks;
    marks.isSelected = selectionModel()->isSelected(index);
    marks.isHovered = index == m_hovered;
    marks.isDropTarget = index == m_drops->target();
    marks.isMenuTarget = index == m_menuTarget;
    marks.isFocused = m_showsFocus && hasFocus() && index == currentIndex();
    marks.isExpanded = isExpanded(index);
    marks.direction = layoutDirection();
    return marks;
}

void SidebarOutlineView::setForeground(const QColor &color)
{
    m_overlay->setForeground(color);
    viewport()->update();
}

void SidebarOutlineView::setMenuTarget(const QModelIndex &index)
{
    m_menuTarget = index;
    viewport()->update();
}

bool SidebarOutlineView::isHeader(const QModelIndex &index) const
{
    return index.isValid() && !index.parent().isValid();
}

bool SidebarOutlineView::isHidden(const QModelIndex &index) const
{
    return index.parent().isValid() && !isExpanded(index.parent());
}

/// Where up and down stop. An open group speaks through its rows.
bool SidebarOutlineView::isStop(const QModelIndex &index) const
{
    return !isHeader(index) || !isExpanded(index) || !m_model.hasChildren(index);
}

void SidebarOutlineView::setCurrentOnly(const QModelIndex &index)
{
    selectionModel()->setCurrentIndex(index, QItemSelectionModel::NoUpdate);
}

void SidebarOutlineView::goTo(const QModelIndex &index)
{
    if (index.isValid())
        selectionModel()->setCurrentIndex(index, selectionCommand(index, nullptr));
}

void SidebarOutlineView::scrollTo(const QModelIndex &index, ScrollHint)
{
    QRect row = isHidden(index) ? QRect() : visualRect(index);
    if (!row.isValid())
        return;
    // With the first row of a group its header is seen, too, and below the last row its padding.
    if (!isHeader(index) && index.row() == 0)
        row.setTop(visualRect(index.parent()).top());
    if (!indexBelow(index).isValid())
        row.setBottom(row.bottom() + kBottomPadding);
    QScrollBar *bar = verticalScrollBar();
    if (row.top() < 0)
        bar->setValue(bar->value() + row.top());
    else if (row.bottom() >= viewport()->height())
        bar->setValue(bar->value() + row.bottom() + 1 - viewport()->height());
}

void SidebarOutlineView::keyboardSearch(const QString &typed)
{
    QStringList labels;
    QModelIndexList places;
    for (int group = 0; group < m_model.rowCount(); ++group) {
        const QModelIndex header = m_model.index(group, 0);
        for (int row = 0; isExpanded(header) && row < m_model.rowCount(header); ++row) {
            places.append(m_model.index(row, 0, header));
            labels.append(m_model.labelAt(places.constLast()));
        }
    }
    const qsizetype found = m_typeAhead.find(typed, labels, places.indexOf(currentIndex()));
    if (found >= 0)
        goTo(places.at(found));
}

void SidebarOutlineView::drawRow(QPainter *painter, const QStyleOptionViewItem &option,
                                 const QModelIndex &index) const
{
    // Without the plate that the desktop's style would draw below the row.
    m_delegate->paint(painter, option, index);
}

/// Asked for once for each row of a layout, of which there are thousands; the delegate needs no
/// more.
void SidebarOutlineView::initViewItemOption(QStyleOptionViewItem *option) const
{
    option->widget = this;
    option->direction = layoutDirection();
}

void SidebarOutlineView::dataChanged(const QModelIndex &topLeft, const QModelIndex &bottomRight,
                                     const QList<int> &roles)
{
    // The usual way measures each of the rows anew and seeks its place, which takes longer than a
    // frame when the counts of thousands of foundries change; their heights are fixed.
    if (topLeft == bottomRight || QAccessible::isActive())
        QTreeView::dataChanged(topLeft, bottomRight, roles);
    else
        viewport()->update();
}

QModelIndex SidebarOutlineView::moveCursor(CursorAction action, Qt::KeyboardModifiers modifiers)
{
    const QModelIndex target = QTreeView::moveCursor(action, modifiers);
    const bool goesUp =
        action == MoveUp || action == MovePageUp || action == MoveEnd || action == MovePrevious;
    const QModelIndex stop = nextStop(target, goesUp);
    return stop.isValid() ? stop : nextStop(target, !goesUp);
}

QModelIndex SidebarOutlineView::nextStop(QModelIndex from, bool goesUp) const
{
    while (from.isValid() && !isStop(from))
        from = goesUp ? indexAbove(from) : indexBelow(from);
    return from;
}

QItemSelectionModel::SelectionFlags SidebarOutlineView::selectionCommand(const QModelIndex &index,
                                                                         const QEvent *) const
{
    // What is no source leaves the choice as it is, and so does the empty ground.
    return index.flags().testFlag(Qt::ItemIsSelectable) ? QItemSelectionModel::ClearAndSelect
                                                        : QItemSelectionModel::NoUpdate;
}

void SidebarOutlineView::selectionChanged(const QItemSelection &selected,
                                          const QItemSelection &deselected)
{
    QTreeView::selectionChanged(selected, deselected);
    const QModelIndexList indexes = selected.indexes();
    if (!indexes.isEmpty())
        Q_EMIT chosen(indexes.constFirst());
}

bool SidebarOutlineView::edit(const QModelIndex &index, EditTrigger trigger, QEvent *event)
{
    if (trigger == SelectedClicked && m_focusCameByPress)
        return false;
    return QTreeView::edit(index, trigger, event);
}

void SidebarOutlineView::updateGeometries()
{
    QScrollBar *bar = verticalScrollBar();
    const int before = bar->value();
    QTreeView::updateGeometries();
    if (bar->maximum() > 0) {
        bar->setMaximum(bar->maximum() + kBottomPadding);
        bar->setValue(before);
    }
    m_overlay->adapt();
    Q_EMIT rowsMoved();
}

void SidebarOutlineView::scrollContentsBy(int dx, int dy)
{
    QTreeView::scrollContentsBy(dx, dy);
    setHovered({});
    m_overlay->flash();
    Q_EMIT rowsMoved();
}

bool SidebarOutlineView::viewportEvent(QEvent *event)
{
    if (event->type() == QEvent::Leave)
        setHovered({});
    return QTreeView::viewportEvent(event);
}

void SidebarOutlineView::takeClick(const QModelIndex &index)
{
    if (isHeader(index))
        setExpanded(index, !isExpanded(index));
    else if (m_wasChosenOnPress || !index.flags().testFlag(Qt::ItemIsSelectable))
        Q_EMIT chosen(index);
}

void SidebarOutlineView::leaveClosedGroup(const QModelIndex &header)
{
    if (currentIndex().parent() == header)
        setCurrentOnly(header);
}

void SidebarOutlineView::setHovered(const QModelIndex &index)
{
    if (m_hovered == index)
        return;
    const QModelIndex before = m_hovered;
    m_hovered = index;
    viewport()->update(visualRect(before));
    viewport()->update(visualRect(index));
}

void SidebarOutlineView::setShowsFocus(bool shows)
{
    if (std::exchange(m_showsFocus, shows) != shows)
        viewport()->update();
}

} // namespace lorva
