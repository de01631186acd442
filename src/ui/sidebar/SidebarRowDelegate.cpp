// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT

#include "ui/sidebar/SidebarRowDelegate.h"

#include "ui/sidebar/SidebarModel.h"
#include "ui/sidebar/SidebarOutlineView.h"
#include "ui/sidebar/SidebarRowCellView.h"
#include "ui/sidebar/SidebarRowPainter.h"
#include "ui/style/Style.h"

#include <QHelpEvent>
#include <QKeyEvent>
#include <QToolTip>

namespace lorva {

SidebarRowDelegate::SidebarRowDelegate(SidebarOutlineView &outline)
    : QStyledItemDelegate(&outline)
    , m_outline(outline)
{
}

void SidebarRowDelegate::paint(QPainter *painter, const QStyleOptionViewItem &option,
                               const QModelIndex &index) const
{
    const SidebarRowMarks marks = m_outline.marksOf(index);
    if (const SidebarRow *row = m_outline.sidebarModel().rowAt(index))
        paintSidebarRow(*painter, option.rect, row->label, row->symbol,
                        sidebarCountText(row->count), marks);
    else
        paintSidebarHeader(*painter, option.rect, m_outline.sidebarModel().labelAt(index), marks);
}

QSize SidebarRowDelegate::sizeHint(const QStyleOptionViewItem &, const QModelIndex &index) const
{
    const bool isHeader = !index.parent().isValid();
    return {0, isHeader ? sidebarHeaderHeight(index.row() == 0) : kSidebarRowHeight};
}

QWidget *SidebarRowDelegate::createEditor(QWidget *parent, const QStyleOptionViewItem &,
                                          const QModelIndex &index) const
{
    const std::optional<SidebarItem> item = m_outline.sidebarModel().itemAt(index);
    if (!item)
        return nullptr;
    return new SidebarRowCellView(
        [this, item = *item](const QString &newName) {
            if (onRenamed)
                onRenamed(item, newName);
        },
        parent);
}

void SidebarRowDelegate::setEditorData(QWidget *editor, const QModelIndex &index) const
{
    if (auto *cell = qobject_cast<SidebarRowCellView *>(editor))
        cell->begin(m_outline.sidebarModel().labelAt(index));
}

void SidebarRowDelegate::setModelData(QWidget *editor, QAbstractItemModel *,
                                      const QModelIndex &) const
{
    // The name comes back with the next state; the model here never changes on its own.
    if (auto *cell = qobject_cast<SidebarRowCellView *>(editor))
        cell->commit();
}

void SidebarRowDelegate::updateEditorGeometry(QWidget *editor, const QStyleOptionViewItem &option,
                                              const QModelIndex &) const
{
    const SidebarRowPlaces places =
        SidebarRowPlaces::of(option.rect, QString(), m_outline.layoutDirection());
    QRect field = places.label.adjusted(-6, 0, 6, 0);
    field.setTop(places.plate.top() + 1);
    field.setBottom(places.plate.bottom() - 1);
    editor->setGeometry(field);
}

bool SidebarRowDelegate::helpEvent(QHelpEvent *event, QAbstractItemView *view,
                                   const QStyleOptionViewItem &option, const QModelIndex &index)
{
    if (event->type() != QEvent::ToolTip)
        return QStyledItemDelegate::helpEvent(event, view, option, index);
    const SidebarRow *row = m_outline.sidebarModel().rowAt(index);
    const QRect place = m_outline.visualRect(index);
    if (!row
        || !isSidebarLabelElided(place, row->label, sidebarCountText(row->count),
                                 m_outline.marksOf(index).isSelected)) {
        QToolTip::hideText();
        return true;
    }
    // Names come from fonts: what looks like markup in them is shown, not obeyed.
    const QString text =
        QStringLiteral("<span>%1</span>").arg(sidebarLineOf(row->label).toHtmlEscaped());
    QToolTip::showText(event->globalPos(), text, m_outline.viewport(), place);
    return true;
}

/// Return ends the editing and nothing else: the outline must not take it for a row to be chosen.
/// The tab key ends it, too; it does not go on to the next row's name.
bool SidebarRowDelegate::eventFilter(QObject *object, QEvent *event)
{
    auto *cell = qobject_cast<SidebarRowCellView *>(object);
    if (cell && event->type() == QEvent::KeyPress) {
        const int key = static_cast<QKeyEvent *>(event)->key();
        if (key == Qt::Key_Return || key == Qt::Key_Enter || key == Qt::Key_Tab
            || key == Qt::Key_Backtab) {
            Q_EMIT commitData(cell);
            Q_EMIT closeEditor(cell, NoHint);
            return true;
        }
    }
    return QStyledItemDelegate::eventFilter(object, event);
}

} // namespace lorva
