// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#pragma once

#include "organize/SidebarTree.h"

#include <QAbstractItemModel>

#include <span>

namespace lorva {

/// The sidebar's tree for a view: four headers that never come or go, and their rows.
///
/// A new tree is applied by its differences, so that the view keeps its place, its selection and an
/// open editor. Of rows that stand for the same item only the first is kept. Thread: main.
class SidebarModel final : public QAbstractItemModel
{
    Q_OBJECT
public:
    explicit SidebarModel(QObject *parent = nullptr);

    /// `tree` as from sidebarTree().
    void apply(std::vector<SidebarSection> tree);

    const std::vector<SidebarSection> &rootItems() const { return m_rootItems; }
    /// Invalid for an item that has no row.
    QModelIndex indexOf(const SidebarItem &item) const;
    QModelIndex headerIndex(SidebarGroup group) const;
    /// Nothing for an invalid index.
    std::optional<SidebarItem> itemAt(const QModelIndex &index) const;
    /// Null for headers.
    const SidebarRow *rowAt(const QModelIndex &index) const;
    QString labelAt(const QModelIndex &index) const;

    QModelIndex index(int row, int column, const QModelIndex &parent = {}) const override;
    QModelIndex parent(const QModelIndex &child) const override;
    int rowCount(const QModelIndex &parent = {}) const override;
    int columnCount(const QModelIndex &parent = {}) const override;
    QVariant data(const QModelIndex &index, int role = Qt::DisplayRole) const override;
    Qt::ItemFlags flags(const QModelIndex &index) const override;

private:
    class Difference;

    std::vector<SidebarSection> m_rootItems;
};

} // namespace lorva
