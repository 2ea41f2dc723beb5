// SPDX-License-Identifier: BSD-3-Clause
#include "zonestyle/controls/item_sub_model_abstract.h"

#include <QSize>

#include <algorithm>

namespace corvala::sdk::ui::dialogs::uicontrols {

ItemSubModelAbstract::ItemSubModelAbstract(ItemSubModelAbstract* subModel)
    : m_subModel(subModel)
{
    if (!m_subModel)
        return;
    connect(m_subModel, SIGNAL(rowsInserted(const QModelIndex&, int, int)), this,
            SLOT(rowsInsertedSlot(const QModelIndex&, int, int)));
    connect(m_subModel, SIGNAL(rowsRemoved(const QModelIndex&, int, int)), this,
            SLOT(rowsRemovedSlot(const QModelIndex&, int, int)));
    connect(m_subModel, SIGNAL(columnsRemoved(const QModelIndex&, int, int)), this,
            SLOT(columnsRemovedSlot(const QModelIndex&, int, int)));
    connect(m_subModel, SIGNAL(columnsInserted(const QModelIndex&, int, int)), this,
            SLOT(columnsInsertedSlot(const QModelIndex&, int, int)));
    connect(m_subModel, SIGNAL(modelReset()), this, SLOT(modelResetSlot()));
    connect(m_subModel, SIGNAL(headerDataChanged(Qt::Orientation, int, int)), this,
            SLOT(headerDataChangedSlot(Qt::Orientation, int, int)));
    connect(m_subModel, SIGNAL(dataChanged(const QModelIndex&, const QModelIndex&)), this,
            SLOT(dataChangedSlot(const QModelIndex&, const QModelIndex&)));
}

ItemSubModelAbstract::~ItemSubModelAbstract()
{
    delete m_subModel;
}

Qt::ItemFlags ItemSubModelAbstract::localFlags(const QModelIndex& index) const
{
    return QAbstractItemModel::flags(index);
}

bool ItemSubModelAbstract::localSetData(const QModelIndexList&, const QVariant&, int)
{
    return false;
}

QModelIndex ItemSubModelAbstract::index(int row, int column, const QModelIndex& parent) const
{
    const ItemSubModelAbstract* owner = this;
    int localColumn = column;
    while (owner->m_subModel && !owner->ownsColumn(localColumn)) {
        localColumn -= owner->localColumnCount(parent);
        owner = owner->m_subModel;
    }
    return createIndex(row, column, owner->localInternalPointer(row, localColumn, parent));
}

QModelIndex ItemSubModelAbstract::parent(const QModelIndex&) const
{
    return {};
}

int ItemSubModelAbstract::columnCount(const QModelIndex& parent) const
{
    return localColumnCount(parent) + (m_subModel ? m_subModel->columnCount(parent) : 0);
}

QVariant ItemSubModelAbstract::data(const QModelIndex& index, int role) const
{
    if (!isCell(index, rowCount()))
        return {};
    if (ownsColumn(index.column()))
        return localData(index, role);
    return m_subModel ? m_subModel->data(toSubModel(index), role) : QVariant();
}

bool ItemSubModelAbstract::setData(const QModelIndex& index, const QVariant& value, int role)
{
    if (!isCell(index, rowCount()))
        return false;
    if (ownsColumn(index.column()))
        return localSetData({index}, value, role);
    return m_subModel && m_subModel->setData(toSubModel(index), value, role);
}

bool ItemSubModelAbstract::setDataForIndexes(const QModelIndexList& indexes, const QVariant& value,
                                             int role)
{
    const auto exists = [this, rows = rowCount()](const QModelIndex& index) {
        return isCell(index, rows);
    };
    if (indexes.isEmpty() || !std::all_of(indexes.cbegin(), indexes.cend(), exists))
        return false;
    const int column = indexes.first().column();
    if (ownsColumn(column))
        return localSetData(indexes, value, role);
    if (!m_subModel)
        return false;
    QModelIndexList subIndexes;
    subIndexes.reserve(indexes.size());
    for (const QModelIndex& index : indexes)
        subIndexes.append(m_subModel->at(index.row(), column - localColumnCount({}), index));
    return m_subModel->setDataForIndexes(subIndexes, value, role);
}

QVariant ItemSubModelAbstract::headerData(int section, Qt::Orientation orientation, int role) const
{
    if (orientation == Qt::Vertical)
        return role == Qt::SizeHintRole ? QVariant(QSize(0, 0)) : QVariant();
    if (role != Qt::DisplayRole && role != Qt::BackgroundRole)
        return {};
    if (!ownsColumn(section)) {
        return m_subModel
            ? m_subModel->headerData(section - localColumnCount({}), orientation, role)
            : QVariant();
    }
    return role == Qt::DisplayRole ? localHeaderText(section) : QVariant(localHeaderBrush(section));
}

Qt::ItemFlags ItemSubModelAbstract::flags(const QModelIndex& index) const
{
    if (!index.isValid())
        return Qt::NoItemFlags;
    if (ownsColumn(index.column()))
        return localFlags(index);
    return m_subModel ? m_subModel->flags(toSubModel(index)) : Qt::NoItemFlags;
}

QModelIndex ItemSubModelAbstract::toSubModel(const QModelIndex& index) const
{
    return m_subModel->at(index.row(), index.column() - localColumnCount({}), index);
}

QModelIndex ItemSubModelAbstract::fromSubModel(const QModelIndex& index) const
{
    return at(index.row(), index.column() + localColumnCount({}), index);
}

QModelIndex ItemSubModelAbstract::at(int row, int column, const QModelIndex& like) const
{
    return createIndex(row, column, like.internalPointer());
}

/// A row may be gone that a selection or an open editor still names.
bool ItemSubModelAbstract::isCell(const QModelIndex& index, int rows) const
{
    return index.isValid() && index.row() < rows;
}

void ItemSubModelAbstract::rowsInsertedSlot(const QModelIndex& parent, int first, int last)
{
    beginInsertRows(parent, first, last);
    endInsertRows();
}

void ItemSubModelAbstract::rowsRemovedSlot(const QModelIndex& parent, int first, int last)
{
    beginRemoveRows(parent, first, last);
    endRemoveRows();
}

void ItemSubModelAbstract::columnsRemovedSlot(const QModelIndex& parent, int first, int last)
{
    const int ownColumns = localColumnCount(parent);
    beginRemoveColumns(parent, first + ownColumns, last + ownColumns);
    endRemoveColumns();
}

void ItemSubModelAbstract::columnsInsertedSlot(const QModelIndex& parent, int first, int last)
{
    const int ownColumns = localColumnCount(parent);
    beginInsertColumns(parent, first + ownColumns, last + ownColumns);
    endInsertColumns();
}

void ItemSubModelAbstract::modelResetSlot()
{
    beginResetModel();
    endResetModel();
}

void ItemSubModelAbstract::headerDataChangedSlot(Qt::Orientation orientation, int first, int last)
{
    if (orientation != Qt::Horizontal)
        return;
    const int ownColumns = localColumnCount({});
    Q_EMIT headerDataChanged(orientation, first + ownColumns, last + ownColumns);
}

void ItemSubModelAbstract::dataChangedSlot(const QModelIndex& topLeft,
                                           const QModelIndex& bottomRight)
{
    Q_EMIT dataChanged(fromSubModel(topLeft), fromSubModel(bottomRight), {});
}

} // namespace corvala::sdk::ui::dialogs::uicontrols
