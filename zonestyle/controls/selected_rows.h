// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include <QModelIndexList>

#include <cstdint>
#include <vector>

class QItemSelectionModel;

namespace corvala::sdk::ui::dialogs::uicontrols {

/// Some of the rows of a flat table, with an answer per row that costs the same however many there
/// are.
class RowBitmap
{
public:
    RowBitmap() = default;
    /// The rows of which every column is selected. Cells count as selectable.
    explicit RowBitmap(const QItemSelectionModel& selection);

    bool contains(int row) const;
    /// Adds a row; false when it was there already. The row must not be negative.
    bool insert(int row);
    void insert(int first, int last); ///< both ends included
    void intersect(const RowBitmap& other);
    int count() const; ///< number of rows; linear in the highest row
    bool isEmpty() const;

private:
    using Word = std::uint64_t;

    void growTo(int row);

    std::vector<Word> m_words;
};

/// The rows of which every column is selected, as indexes of one column, in the order in which
/// they were selected, each once: what QItemSelectionModel::selectedRows gives for a flat table of
/// selectable cells, at a cost that grows with the selected rows alone.
QModelIndexList selectedRows(const QItemSelectionModel& selection, int column = 0);

/// Whether selectedRows would not be empty; stops at the first row when whole rows are selected.
bool hasSelectedRows(const QItemSelectionModel& selection);

} // namespace corvala::sdk::ui::dialogs::uicontrols
