// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT

#include "ui/sidebar/SidebarModel.h"

#include "ui/sidebar/SidebarDifference.h"

#include <QLocale>

#include <algorithm>

namespace lorva {

namespace {

/// What an index of a header carries; that of a row carries the place of its group, counted from 1.
constexpr quintptr kHeaderMark = 0;

QString spokenName(const SidebarRow &row)
{
    if (!row.count)
        return row.label;
    //: A row of the sidebar, and how many fonts it leads to; spoken.
    return SidebarModel::tr("%1, %Ln fonts", nullptr, *row.count).arg(row.label);
}

} // namespace

/// Leads the rows of one group over to those wanted, and tells the views each step.
class SidebarModel::Difference final : public SidebarDifferenceSink
{
public:
    Difference(SidebarModel &model, int group)
        : m_model(model)
        , m_group(group)
        , m_parent(model.index(group, 0))
    {
    }

    std::vector<SidebarRow> &rows() override { return m_model.m_rootItems[size_t(m_group)].rows; }
    void aboutToRemove(int first, int last) override
    {
        m_model.beginRemoveRows(m_parent, first, last);
    }
    void removed() override { m_model.endRemoveRows(); }
    void aboutToInsert(int first, int last) override
    {
        m_model.beginInsertRows(m_parent, first, last);
    }
    void inserted() override { m_model.endInsertRows(); }
    void aboutToReorder() override
    {
        Q_EMIT m_model.layoutAboutToBeChanged({QPersistentModelIndex(m_parent)});
    }
    void reordered(const std::vector<int> &newPlaces) override
    {
        QModelIndexList before;
        QModelIndexList after;
        for (const QModelIndex &index : m_model.persistentIndexList()) {
            if (index.internalId() != quintptr(m_group) + 1)
                continue;
            before.append(index);
            after.append(
                m_model.createIndex(newPlaces[size_t(index.row())], 0, index.internalId()));
        }
        m_model.changePersistentIndexList(before, after);
        Q_EMIT m_model.layoutChanged({QPersistentModelIndex(m_parent)});
    }
    void changed(int first, int last) override
    {
        Q_EMIT m_model.dataChanged(m_model.index(first, 0, m_parent),
                                   m_model.index(last, 0, m_parent));
    }

private:
    SidebarModel &m_model;
    int m_group;
    QModelIndex m_parent;
};

SidebarModel::SidebarModel(QObject *parent)
    : QAbstractItemModel(parent)
    , m_rootItems(sidebarTree({}))
{
}

void SidebarModel::apply(std::vector<SidebarSection> tree)
{
    for (size_t group = 0; group < std::min(tree.size(), m_rootItems.size()); ++group) {
        Difference difference(*this, int(group));
        applySidebarRows(difference, std::move(tree[group].rows));
    }
}

QModelIndex SidebarModel::headerIndex(SidebarGroup group) const
{
    const auto found = std::ranges::find(m_rootItems, group, &SidebarSection::group);
    return index(int(found - m_rootItems.begin()), 0);
}

QModelIndex SidebarModel::indexOf(const SidebarItem &item) const
{
    const QModelIndex header = headerIndex(item.group());
    if (item.kind() == SidebarItem::Kind::group)
        return header;
    const std::vector<SidebarRow> &rows = m_rootItems[size_t(header.row())].rows;
    const auto found = std::ranges::find(rows, item, &SidebarRow::item);
    return found == rows.end() ? QModelIndex() : index(int(found - rows.begin()), 0, header);
}

std::optional<SidebarItem> SidebarModel::itemAt(const QModelIndex &index) const
{
    if (const SidebarRow *row = rowAt(index))
        return row->item;
    if (!index.isValid() || size_t(index.row()) >= m_rootItems.size())
        return std::nullopt;
    return SidebarItem::header(m_rootItems[size_t(index.row())].group);
}

const SidebarRow *SidebarModel::rowAt(const QModelIndex &index) const
{
    if (!index.isValid() || index.internalId() == kHeaderMark)
        return nullptr;
    const std::vector<SidebarRow> &rows = m_rootItems[size_t(index.internalId() - 1)].rows;
    return size_t(index.row()) < rows.size() ? &rows[size_t(index.row())] : nullptr;
}

QString SidebarModel::labelAt(const QModelIndex &index) const
{
    if (const SidebarRow *row = rowAt(index))
        return row->label;
    const bool isHeader = index.isValid() && index.internalId() == kHeaderMark;
    return isHeader ? m_rootItems[size_t(index.row())].label : QString();
}

QModelIndex SidebarModel::index(int row, int column, const QModelIndex &parent) const
{
    if (!hasIndex(row, column, parent))
        return {};
    return createIndex(row, column, parent.isValid() ? quintptr(parent.row()) + 1 : kHeaderMark);
}

QModelIndex SidebarModel::parent(const QModelIndex &child) const
{
    if (!child.isValid() || child.internalId() == kHeaderMark)
        return {};
    return createIndex(int(child.internalId()) - 1, 0, kHeaderMark);
}

int SidebarModel::rowCount(const QModelIndex &parent) const
{
    if (!parent.isValid())
        return int(m_rootItems.size());
    if (parent.internalId() != kHeaderMark || parent.column() != 0)
        return 0;
    return int(m_rootItems[size_t(parent.row())].rows.size());
}

int SidebarModel::columnCount(const QModelIndex &) const
{
    return 1;
}

QVariant SidebarModel::data(const QModelIndex &index, int role) const
{
    if (role == Qt::DisplayRole || role == Qt::EditRole)
        return labelAt(index);
    if (role != Qt::AccessibleTextRole)
        return {};
    const SidebarRow *row = rowAt(index);
    return row ? spokenName(*row) : labelAt(index);
}

Qt::ItemFlags SidebarModel::flags(const QModelIndex &index) const
{
    using Kind = SidebarItem::Kind;
    if (!index.isValid())
        return Qt::NoItemFlags;
    const SidebarRow *row = rowAt(index);
    if (!row)
        return Qt::ItemIsEnabled;
    Qt::ItemFlags flags = Qt::ItemIsEnabled | Qt::ItemNeverHasChildren;
    flags.setFlag(Qt::ItemIsSelectable, sourceOf(row->item).has_value());
    const Kind kind = row->item.kind();
    flags.setFlag(Qt::ItemIsEditable, kind == Kind::collection || kind == Kind::foundry);
    flags.setFlag(Qt::ItemIsDropEnabled,
                  kind == Kind::collection || kind == Kind::foundry || kind == Kind::style);
    return flags;
}

} // namespace lorva
