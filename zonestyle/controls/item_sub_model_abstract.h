// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include <QAbstractItemModel>
#include <QBrush>

namespace corvala::sdk::ui::dialogs::uicontrols {

/// One link of a chain of table models that a view sees as one table: it owns the leftmost columns
/// and hands every question about a column further right to its sub model, which does the same.
///
/// A link answers the local operations, all in its own column numbers; the operations of
/// QAbstractItemModel route to them by column. Every link of a chain has the same rows.
class ItemSubModelAbstract : public QAbstractItemModel
{
    Q_OBJECT

public:
    /// Takes ownership of the sub model, which may be null, and relays its signals.
    explicit ItemSubModelAbstract(ItemSubModelAbstract* subModel);
    ~ItemSubModelAbstract() override;

    // The flags of a cell, as Qt takes them; never called with an invalid index.
    virtual Qt::ItemFlags localFlags(const QModelIndex& index) const;
    // The internal pointer of a cell's index.
    virtual void* localInternalPointer(int row, int column, const QModelIndex& parent) const = 0;
    // The number of columns that this link owns.
    virtual int localColumnCount(const QModelIndex& parent) const = 0;
    // The text of a column's header.
    virtual QVariant localHeaderText(int section) const = 0;
    // The value of an existing cell; empty for a role that the cell does not have.
    virtual QVariant localData(const QModelIndex& index, int role) const = 0;
    // Gives one value to cells of one column (at least one, all existing); false when refused.
    virtual bool localSetData(const QModelIndexList& indexes, const QVariant& value, int role);
    // The background of a column's header.
    virtual QBrush localHeaderBrush(int section) const = 0;

    using QObject::parent;
    QModelIndex index(int row, int column, const QModelIndex& parent = {}) const override;
    QModelIndex parent(const QModelIndex& index) const override;
    int columnCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role = Qt::DisplayRole) const override;
    bool setData(const QModelIndex& index, const QVariant& value, int role = Qt::EditRole) override;
    QVariant headerData(int section, Qt::Orientation orientation,
                        int role = Qt::DisplayRole) const override;
    Qt::ItemFlags flags(const QModelIndex& index) const override;

    /// Gives one value to several cells of one column; the column of the first index decides. False
    /// when refused, for an empty list, and when a cell of the list does not exist: then nothing
    /// changes at all.
    Q_INVOKABLE bool setDataForIndexes(const QModelIndexList& indexes, const QVariant& value,
                                       int role);

protected:
    bool ownsColumn(int column) const { return column >= 0 && column < localColumnCount({}); }
    /// The index of the same cell in the sub model, which must exist.
    QModelIndex toSubModel(const QModelIndex& index) const;

private Q_SLOTS:
    void rowsInsertedSlot(const QModelIndex& parent, int first, int last);
    void rowsRemovedSlot(const QModelIndex& parent, int first, int last);
    void columnsRemovedSlot(const QModelIndex& parent, int first, int last);
    void columnsInsertedSlot(const QModelIndex& parent, int first, int last);
    void modelResetSlot();
    void headerDataChangedSlot(Qt::Orientation orientation, int first, int last);
    void dataChangedSlot(const QModelIndex& topLeft, const QModelIndex& bottomRight);

private:
    bool isCell(const QModelIndex& index, int rows) const;
    QModelIndex fromSubModel(const QModelIndex& index) const;
    QModelIndex at(int row, int column, const QModelIndex& like) const;

    ItemSubModelAbstract* m_subModel; ///< owned; null at the end of the chain
};

} // namespace corvala::sdk::ui::dialogs::uicontrols
