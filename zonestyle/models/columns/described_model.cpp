// SPDX-License-Identifier: BSD-3-Clause
#include "zonestyle/models/columns/described_model.h"

#include "zonestyle/models/columns/column_kinds.h"
#include "zonestyle/models/columns/edit_value.h"

#include <QCoreApplication>

namespace corvala::sdk::ui::dialogs::zonestyle::intern::models {

static CellReader readerFor(const ColumnDescriptor& column, int role)
{
    switch (role) {
    case Qt::DisplayRole: return column.display;
    case Qt::EditRole: return column.edit;
    case Qt::CheckStateRole: return column.check;
    case Qt::UserRole: return column.raw;
    case Qt::AccessibleTextRole: return column.hint;
    default: return nullptr;
    }
}

/// Of a cell that does not exist: a text in place of what it would show.
static QVariant nothingFor(int role)
{
    return role == Qt::DisplayRole ? QCoreApplication::translate("Cell", "N/A") : QVariant();
}

bool ValueCondition::holdsFor(const Cell& cell) const
{
    const std::optional<int> value = cell.read(style::keyAs<style::KeyOf<int>>(key));
    constexpr int kBits = 64;
    const bool isOneOf =
        value && *value >= 0 && *value < kBits && (values >> static_cast<unsigned>(*value) & 1U);
    return value && isOneOf != isExcluding;
}

static bool conditionsHold(const Cell& cell)
{
    const ColumnDescriptor& column = cell.column;
    for (const ValueCondition& condition : column.conditions)
        if (condition.key.isValid() && !condition.holdsFor(cell))
            return false;
    return !column.rule || column.rule(cell);
}

template<class Base>
Qt::ItemFlags DescribedModel<Base>::localFlags(const QModelIndex& index) const
{
    return Base::localFlags(index) | at(index.column()).flags;
}

template<class Base>
int DescribedModel<Base>::localColumnCount(const QModelIndex&) const
{
    return columnTable().size();
}

template<class Base>
QVariant DescribedModel<Base>::localHeaderText(int section) const
{
    return QCoreApplication::translate("Column", at(section).header);
}

template<class Base>
QVariant DescribedModel<Base>::localData(const QModelIndex& index, int role) const
{
    const ColumnDescriptor& column = at(index.column());
    const bool isShown = role == Qt::DisplayRole || role == Qt::CheckStateRole;
    if (isShown && column.existence && !column.existence(cellAt(index.row(), index.column())))
        return nothingFor(role);
    const CellReader read = readerFor(column, role);
    return read ? read(cellAt(index.row(), index.column())) : QVariant();
}

template<class Base>
bool DescribedModel<Base>::localSetData(const QModelIndexList& indexes, const QVariant& value,
                                        int role)
{
    if (columnTable().isRefusingEdits())
        return false;
    const ColumnDescriptor& column = at(indexes.first().column());
    const bool takesRole = column.editRole == ColumnDescriptor::kAnyRole || column.editRole == role;
    if (!column.writer || !takesRole)
        return true;
    return column.writer({this->frameId(), column, *this, indexes, value});
}

template<class Base>
QBrush DescribedModel<Base>::localHeaderBrush(int section) const
{
    const ColumnTable& table = columnTable();
    if (table.isIdentity())
        return Base::IdentityHeaderBrush();
    return section < table.primaryColumns() ? Base::PrimaryHeaderBrush()
                                            : Base::SecondaryHeaderBrush();
}

template<class Base>
bool DescribedModel<Base>::isRelevant(const QModelIndex& index) const
{
    if (columnTable().isGoverningFollowing() && !this->ownsColumn(index.column())
        && !this->isLocalRelevant(this->createIndex(index.row(), 0)))
        return false;
    return Base::isRelevant(index);
}

template<class Base>
QList<QAction*> DescribedModel<Base>::localActions(QItemSelectionModel* selection, int column) const
{
    const MenuBuilder build = at(column).menu;
    return build ? build({this->frameId(), at(column), *this, *selection, column})
                 : QList<QAction*>();
}

template<class Base>
bool DescribedModel<Base>::localHasActions(int column) const
{
    return at(column).menu != nullptr;
}

template<class Base>
bool DescribedModel<Base>::isLocalRelevant(const QModelIndex& index) const
{
    const ColumnDescriptor& column = at(index.column());
    if (column.isAlwaysRelevant)
        return true;
    if (!Base::isLocalRelevant(index) || !rowApplies(index.row()))
        return false;
    const Cell cell = cellAt(index.row(), index.column());
    return (!column.existence || column.existence(cell)) && conditionsHold(cell);
}

template<class Base>
int DescribedModel<Base>::localEditorType(int column) const
{
    return at(column).editorType;
}

template<class Base>
int DescribedModel<Base>::localEditorOption(int column) const
{
    return at(column).editorOption;
}

template<class Base>
QString DescribedModel<Base>::localTextProblem(int column, const QString& text) const
{
    return at(column).writer == kinds::writeNumber && at(column).key.isValid()
        ? numberProblem(text, style::entryOf(at(column).key))
        : QString();
}

template<class Base>
Cell DescribedModel<Base>::cellAt(int row, int column) const
{
    return {this->frameId(), row + 1, at(column), *this};
}

template<class Base>
bool DescribedModel<Base>::rowApplies(int row) const
{
    const ColumnTable& table = columnTable();
    const Cell first = cellAt(row, 0);
    if (table.requiredLayer().isValid() && !first.value(table.requiredLayer()))
        return false;
    return !table.requiresShownRow() || at(0).check(first) != Qt::Unchecked;
}

template class DescribedModel<FieldModelAbstract>;
template class DescribedModel<LineModelAbstract>;

} // namespace corvala::sdk::ui::dialogs::zonestyle::intern::models
