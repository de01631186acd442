// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#pragma once

#include "ui/settings/WatchedFolderList.h"

#include <QStyledItemDelegate>

#include <functional>

class QListWidgetItem;

namespace lorva {

/// Draws a row of the watched folders: its path, shortened in the middle where it is too long, and
/// at the end how many fonts it has, or that it is not there. Thread: main.
class WatchedFolderDelegate final : public QStyledItemDelegate
{
    Q_OBJECT
public:
    static constexpr int kRowHeight = 30;

    /// `showsFocus`: whether the row that the keyboard is on has a ring.
    WatchedFolderDelegate(std::function<bool()> showsFocus, QObject *parent);

    /// Puts the row into the item, as paint() reads it and assistive technology tells it.
    static void write(const WatchedFolderRow &row, QListWidgetItem &item);

    void paint(QPainter *painter, const QStyleOptionViewItem &option,
               const QModelIndex &index) const override;
    QSize sizeHint(const QStyleOptionViewItem &option, const QModelIndex &index) const override;

private:
    const std::function<bool()> m_showsFocus;
};

} // namespace lorva
