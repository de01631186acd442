// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#pragma once

#include "organize/SidebarTree.h"

#include <QStyledItemDelegate>

#include <functional>

namespace lorva {

class SidebarOutlineView;

/// Paints the rows of the outline and lends them the field for a new name. Belongs to the outline.
/// Thread: main.
class SidebarRowDelegate final : public QStyledItemDelegate
{
    Q_OBJECT
public:
    explicit SidebarRowDelegate(SidebarOutlineView &outline);

    /// The user gave the row a name that is neither empty nor the old one.
    std::function<void(const SidebarItem &item, const QString &newName)> onRenamed;

    void paint(QPainter *painter, const QStyleOptionViewItem &option,
               const QModelIndex &index) const override;
    QSize sizeHint(const QStyleOptionViewItem &option, const QModelIndex &index) const override;
    QWidget *createEditor(QWidget *parent, const QStyleOptionViewItem &option,
                          const QModelIndex &index) const override;
    void setEditorData(QWidget *editor, const QModelIndex &index) const override;
    void setModelData(QWidget *editor, QAbstractItemModel *model,
                      const QModelIndex &index) const override;
    void updateEditorGeometry(QWidget *editor, const QStyleOptionViewItem &option,
                              const QModelIndex &index) const override;
    /// The whole label, where the row has no room for it.
    bool helpEvent(QHelpEvent *event, QAbstractItemView *view, const QStyleOptionViewItem &option,
                   const QModelIndex &index) override;

protected:
    bool eventFilter(QObject *object, QEvent *event) override;

private:
    SidebarOutlineView &m_outline;
};

} // namespace lorva
