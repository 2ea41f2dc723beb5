// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include "zonestyle/models/columns/column_table.h"
#include "zonestyle/models/field_model_abstract.h"
#include "zonestyle/models/line_model_abstract.h"

namespace corvala::sdk::ui::dialogs::zonestyle::intern::models {

/// Answers the local operations of a table model from its column table. A model derives from it,
/// returns its table, and overrides an operation only where a column does something that a
/// descriptor cannot say; the override falls back to this one.
template<class Base>
class DescribedModel : public Base
{
public:
    using Base::Base;

    Qt::ItemFlags localFlags(const QModelIndex& index) const override;
    int localColumnCount(const QModelIndex& parent) const override;
    QVariant localHeaderText(int section) const override;
    QVariant localData(const QModelIndex& index, int role) const override;
    /// True, also when nothing was to do, unless the table or the column's writer refuses.
    bool localSetData(const QModelIndexList& indexes, const QVariant& value, int role) override;
    QBrush localHeaderBrush(int section) const override;

    bool isRelevant(const QModelIndex& index) const override;
    QList<QAction*> localActions(QItemSelectionModel* selection, int column) const override;
    bool localHasActions(int column) const override;
    bool isLocalRelevant(const QModelIndex& index) const override;
    int localEditorType(int column) const override;
    int localEditorOption(int column) const override;
    QString localTextProblem(int column, const QString& text) const override;

protected:
    /// The columns of this model; static.
    virtual const ColumnTable& columnTable() const = 0;

    Cell cellAt(int row, int column) const;

private:
    const ColumnDescriptor& at(int column) const { return columnTable().at(column); }
    bool rowApplies(int row) const;
};

extern template class DescribedModel<FieldModelAbstract>;
extern template class DescribedModel<LineModelAbstract>;

} // namespace corvala::sdk::ui::dialogs::zonestyle::intern::models
