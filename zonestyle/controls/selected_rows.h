// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include <QModelIndexList>
#include <QObject>

#include <boost/dynamic_bitset.hpp>

#include <cstdint>
#include <vector>

class QItemSelectionModel;

namespace corvala::sdk::ui::dialogs::uicontrols {

/// A bit for each row of a flat table.
using RowBits = boost::dynamic_bitset<std::uint64_t>;

/// Neighbouring rows, both ends included.
struct RowRange
{
    int first;
    int last;

    friend bool operator==(const RowRange& left, const RowRange& right)
    {
        return left.first == right.first && left.last == right.last;
    }
};

/// The rows of a selection model of which every column is selected, found out once for each change
/// of the selection: Qt copies all its ranges for every question. Lives with the selection model,
/// whose rows must stay in their order: layoutChanged is taken to speak of cells alone.
class SelectedRows : public QObject
{
    Q_OBJECT

public:
    static SelectedRows& of(const QItemSelectionModel& selection);

    bool contains(int row); ///< at a cost that does not depend on the selection
    /// In the order in which they were selected, each row once.
    const std::vector<RowRange>& ranges();
    bool areAll(); ///< nothing else is selected, such as single cells
    int count();

    /// Joins what was selected last with what was selected before: Qt keeps them apart, and merges
    /// them again for every question.
    void settle();

    /// To be called for what the selection model does not announce, such as its reset.
    void forget() { m_isKnown = m_isSettled = false; }

private:
    explicit SelectedRows(QItemSelectionModel& selection);
    void find();

    QItemSelectionModel& m_selection;
    RowBits m_bits; ///< up to the last row of the selection
    std::vector<RowRange> m_ranges;
    bool m_areAll = true;
    bool m_isKnown = false;
    bool m_isSettled = false;
};

/// The rows of which every column is selected, as indexes of one column, in the order in which
/// they were selected, each once: what QItemSelectionModel::selectedRows gives for a flat table of
/// selectable cells, at a cost that grows with the selected rows alone.
QModelIndexList selectedRows(const QItemSelectionModel& selection, int column = 0);

/// Whether selectedRows would not be empty.
bool hasSelectedRows(const QItemSelectionModel& selection);

} // namespace corvala::sdk::ui::dialogs::uicontrols
