// SPDX-License-Identifier: BSD-3-Clause
#include "zonestyle/controls/selected_rows.h"

#include <QItemSelectionModel>

#include <algorithm>
#include <utility>

namespace corvala::sdk::ui::dialogs::uicontrols {

static bool isFlat(const QItemSelectionRange& range)
{
    return !range.parent().isValid();
}

static bool coversAllColumns(const QItemSelectionRange& range, int columnCount)
{
    return range.left() == 0 && range.right() >= columnCount - 1;
}

static RowBits bitsOf(const QItemSelection& ranges, int column, std::size_t rows)
{
    RowBits bits(rows);
    for (const QItemSelectionRange& range : ranges) {
        if (isFlat(range) && range.left() <= column && column <= range.right())
            bits.set(static_cast<std::size_t>(range.top()),
                     static_cast<std::size_t>(range.height()), true);
    }
    return bits;
}

static bool hasPartialRanges(const QItemSelection& ranges, int columnCount)
{
    return std::any_of(ranges.cbegin(), ranges.cend(), [&](const QItemSelectionRange& range) {
        return isFlat(range) && !coversAllColumns(range, columnCount);
    });
}

/// Rows may be selected by several ranges together: those that are selected in every column.
static RowBits fullRows(const QItemSelection& ranges, int columnCount)
{
    int last = -1;
    for (const QItemSelectionRange& range : ranges)
        last = std::max(last, range.bottom());
    const auto rows = static_cast<std::size_t>(last + 1);
    RowBits full = bitsOf(ranges, 0, rows);
    if (hasPartialRanges(ranges, columnCount)) {
        for (int column = 1; column < columnCount; ++column)
            full &= bitsOf(ranges, column, rows);
    }
    return full;
}

SelectedRows& SelectedRows::of(const QItemSelectionModel& selection)
{
    auto* known = selection.findChild<SelectedRows*>(QString(), Qt::FindDirectChildrenOnly);
    return known ? *known : *new SelectedRows(const_cast<QItemSelectionModel&>(selection));
}

SelectedRows::SelectedRows(QItemSelectionModel& selection)
    : QObject(&selection)
    , m_selection(selection)
{
    connect(&selection, &QItemSelectionModel::selectionChanged, this, &SelectedRows::forget);
    connect(&selection, &QItemSelectionModel::modelChanged, this, &SelectedRows::forget);
    if (const QAbstractItemModel* model = selection.model()) {
        connect(model, &QAbstractItemModel::modelReset, this, &SelectedRows::forget);
        connect(model, &QAbstractItemModel::rowsInserted, this, &SelectedRows::forget);
        connect(model, &QAbstractItemModel::rowsRemoved, this, &SelectedRows::forget);
        connect(model, &QAbstractItemModel::columnsInserted, this, &SelectedRows::forget);
        connect(model, &QAbstractItemModel::columnsRemoved, this, &SelectedRows::forget);
    }
}

/// The runs of a range of rows that are left, which they are taken from.
static void appendRuns(std::vector<RowRange>& runs, const QItemSelectionRange& range, RowBits& left)
{
    int first = -1;
    for (int row = range.top(); row <= range.bottom() + 1; ++row) {
        const bool isInRun =
            row <= range.bottom() && left.test_set(static_cast<std::size_t>(row), false);
        if (isInRun && first < 0)
            first = row;
        if (!isInRun && first >= 0) {
            runs.push_back({first, row - 1});
            first = -1;
        }
    }
}

void SelectedRows::find()
{
    if (m_isKnown)
        return;
    m_isKnown = true;
    m_ranges.clear();
    m_bits.clear();
    m_areAll = true;
    if (!m_selection.model())
        return;
    const QItemSelection ranges = m_selection.selection();
    const int columnCount = m_selection.model()->columnCount();
    m_bits = fullRows(ranges, columnCount);
    m_areAll = !hasPartialRanges(ranges, columnCount);
    RowBits left = m_bits;
    for (const QItemSelectionRange& range : ranges) {
        if (isFlat(range))
            appendRuns(m_ranges, range, left);
    }
}

bool SelectedRows::contains(int row)
{
    find();
    const auto bit = static_cast<std::size_t>(row);
    return row >= 0 && bit < m_bits.size() && m_bits.test(bit);
}

/// By a command without rows, which begins anew.
void SelectedRows::settle()
{
    if (!std::exchange(m_isSettled, true))
        m_selection.select(QItemSelection(), QItemSelectionModel::Select);
}

const std::vector<RowRange>& SelectedRows::ranges()
{
    find();
    return m_ranges;
}

bool SelectedRows::areAll()
{
    find();
    return m_areAll;
}

int SelectedRows::count()
{
    find();
    return static_cast<int>(m_bits.count());
}

QModelIndexList selectedRows(const QItemSelectionModel& selection, int column)
{
    SelectedRows& selected = SelectedRows::of(selection);
    QModelIndexList rows;
    rows.reserve(selected.count());
    for (const RowRange& range : selected.ranges()) {
        for (int row = range.first; row <= range.last; ++row)
            rows.append(selection.model()->index(row, column));
    }
    return rows;
}

bool hasSelectedRows(const QItemSelectionModel& selection)
{
    return !SelectedRows::of(selection).ranges().empty();
}

} // namespace corvala::sdk::ui::dialogs::uicontrols
