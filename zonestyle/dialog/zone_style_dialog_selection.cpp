// SPDX-License-Identifier: BSD-3-Clause
#include "zonestyle/controls/selected_rows.h"
#include "zonestyle/dialog/selection_model_signal_suspender.h"
#include "zonestyle/dialog/zone_style_dialog.h"
#include "zonestyle/models/model_abstract.h"
#include "zonestyle/views/style_table_view.h"

#include <sdk/base/cvl.h>
#include <sdk/uicommon/on_idle_action_performer_single_shot.h>

#include <algorithm>
#include <vector>

namespace corvala::sdk::ui::dialogs {

using uicontrols::RowBits;
using uicontrols::RowRange;
using uicontrols::SelectedRows;
using zonestyle::intern::SelectionModelSignalSuspender;
using zonestyle::intern::models::ModelAbstract;

// Qt compares all pairs of ranges when it replaces a selection by another one, or widens it to
// whole rows. Selections are therefore cleared first and set by whole rows that do not overlap.

namespace {

QItemSelectionRange wholeRows(const QAbstractItemModel& model, int first, int last)
{
    return {model.index(first, 0), model.index(last, model.columnCount() - 1)};
}

/// Rows of a table as a selection of whole rows of a model; rows that it does not have are left
/// out.
QItemSelection selectionOf(const QAbstractItemModel& model, const std::vector<RowRange>& ranges)
{
    const int lastRow = model.rowCount() - 1;
    QItemSelection result;
    for (const RowRange& range : ranges) {
        if (range.first <= lastRow)
            result.append(wholeRows(model, range.first, qMin(range.last, lastRow)));
    }
    return result;
}

/// Rows one by one in the order in which they come, each once.
class EachOnce
{
public:
    void add(int row)
    {
        const auto bit = static_cast<std::size_t>(row);
        if (bit >= m_seen.size())
            m_seen.resize(2 * bit + 1);
        if (!m_seen.test_set(bit))
            m_rows.push_back({row, row});
    }

    std::vector<RowRange> take() { return std::move(m_rows); }

private:
    RowBits m_seen;
    std::vector<RowRange> m_rows;
};

/// Every row of which anything is selected, in the order of selection, each once.
std::vector<RowRange> touchedRows(const QItemSelectionModel& selection)
{
    SelectedRows& selected = SelectedRows::of(selection);
    if (selected.areAll())
        return selected.ranges();
    EachOnce touched;
    for (const QItemSelectionRange& range : selection.selection()) {
        for (int row = range.top(); row <= range.bottom(); ++row)
            touched.add(row);
    }
    return touched.take();
}

/// Runs of rows in ascending order.
std::vector<RowRange> runsOf(const QModelIndexList& ascending)
{
    std::vector<RowRange> runs;
    for (const QModelIndex& index : ascending) {
        if (!runs.empty() && runs.back().last + 1 == index.row())
            ++runs.back().last;
        else
            runs.push_back({index.row(), index.row()});
    }
    return runs;
}

bool isWithin(const std::vector<RowRange>& ranges, int rows)
{
    return std::all_of(ranges.begin(), ranges.end(),
                       [rows](const RowRange& range) { return range.last < rows; });
}

QVariant firstTitle(const QItemSelectionModel& selection)
{
    return selection.model()->headerData(0, Qt::Horizontal, Qt::DisplayRole);
}

/// Row of a picked object; -1 when it has none.
CvlInt64 rowOfPick(CvlInt64 pick)
{
    switch (CvlUtilPickListGetType(pick)) {
    case PickType_Zone: return CvlUtilZoneGetFieldMap(CvlUtilPickListGetZoneNumber(pick)) - 1;
    case PickType_LineMap: return CvlUtilPickListGetLineMapNumber(pick) - 1;
    default: return -1;
    }
}

/// Rows of the picked objects in pick order, each once.
std::vector<RowRange> pickedRows()
{
    EachOnce picked;
    for (CvlInt64 pick = 1; pick <= CvlUtilPickListGetCount(); ++pick) {
        const CvlInt64 row = rowOfPick(pick);
        if (row >= 0)
            picked.add(static_cast<int>(row));
    }
    return picked.take();
}

} // namespace

QItemSelectionModel* ZoneStyleDialog::getSelectionModelFor(ModelAbstract* model)
{
    QItemSelectionModel*& selectionModel = m_selectionModels[model];
    if (!selectionModel) {
        selectionModel = new QItemSelectionModel(model);
        connect(selectionModel, &QItemSelectionModel::selectionChanged, this,
                [this] { m_countPerformer->enableNotification(); });
    }
    return selectionModel;
}

void ZoneStyleDialog::destroySelectionModels()
{
    for (const auto& entry : m_selectionModels)
        delete entry.second;
    m_selectionModels.clear();
}

/// Field tables share their first column, and so do line tables; a selection never carries from
/// one kind to the other.
void ZoneStyleDialog::copySelection(QItemSelectionModel* target, QItemSelectionModel* source)
{
    if (target->model()->rowCount() == 0 || source->model()->rowCount() == 0
        || firstTitle(*target) != firstTitle(*source))
        return;
    const std::vector<RowRange> wanted = touchedRows(*source);
    SelectedRows& present = SelectedRows::of(*target);
    if (present.areAll() && present.ranges() == wanted)
        return;
    target->clearSelection();
    target->select(selectionOf(*target->model(), wanted), QItemSelectionModel::Select);
    present.settle();
}

void ZoneStyleDialog::makeSelectionFitModel()
{
    QItemSelectionModel* selection = getSelectionModelFor(m_currentModel);
    if (selection->currentIndex().row() >= m_currentModel->rowCount())
        selection->clearCurrentIndex();
    SelectedRows& selected = SelectedRows::of(*selection);
    if (selected.areAll() && isWithin(selected.ranges(), m_currentModel->rowCount()))
        return;
    const SelectionModelSignalSuspender suspender(*m_mapSelection, *m_tableView);
    const QItemSelection fitting = selectionOf(*m_currentModel, touchedRows(*selection));
    selection->clearSelection();
    selection->select(fitting, QItemSelectionModel::Select);
}

void ZoneStyleDialog::scrollTableViewToSelection(int row)
{
    const QModelIndex index = m_currentModel->index(row, 0);
    m_tableView->scrollTo(index, QAbstractItemView::PositionAtTop);
    m_tableView->selectionModel()->setCurrentIndex(index, QItemSelectionModel::NoUpdate);
}

void ZoneStyleDialog::showSelectionCounts()
{
    const QItemSelectionModel* selection = m_tableView->selectionModel();
    if (selection && m_currentModel)
        m_mapSelection->showCounts(SelectedRows::of(*selection).count(),
                                   m_currentModel->rowCount());
}

/// Selects the rows that the table has, and these alone, and scrolls to the smallest.
void ZoneStyleDialog::selectRows(const std::vector<uicontrols::RowRange>& rows)
{
    m_tableView->clearSelection();
    const QItemSelection wanted = selectionOf(*m_currentModel, rows);
    if (wanted.isEmpty())
        return;
    m_tableView->selectionModel()->select(wanted, QItemSelectionModel::Select);
    const auto smallest =
        std::min_element(wanted.begin(), wanted.end(), [](const auto& one, const auto& other) {
            return one.top() < other.top();
        });
    scrollTableViewToSelection(smallest->top());
}

void ZoneStyleDialog::selectPickedObjects()
{
    catchUp();
    if (!m_currentModel)
        return;
    const SelectionModelSignalSuspender suspender(*m_mapSelection, *m_tableView);
    selectRows(pickedRows());
    m_tableView->setFocus();
}

void ZoneStyleDialog::selectionPatternChanged(std::string const& pattern, SelectOption_s option)
{
    if (!m_currentModel)
        return;
    const SelectionModelSignalSuspender suspender(*m_mapSelection, *m_tableView);
    m_mapSelection->setFoundNothing(false);
    m_countPerformer->enableNotification();
    if (pattern.empty()) {
        m_tableView->clearSelection();
        return;
    }
    const bool byName = option == SelectOption_Names;
    const Qt::MatchFlags how =
        byName ? Qt::MatchFlags(Qt::MatchWildcard | Qt::MatchWrap) : Qt::MatchFixedString;
    const QModelIndexList matches =
        m_currentModel->match(m_currentModel->index(0, byName ? 1 : 2), Qt::DisplayRole,
                              QString::fromStdString(pattern), -1, how);
    m_mapSelection->setFoundNothing(matches.isEmpty());
    selectRows(runsOf(matches));
    m_tableView->setFocus();
}

} // namespace corvala::sdk::ui::dialogs
