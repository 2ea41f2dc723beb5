// SPDX-License-Identifier: BSD-3-Clause
#include "zonestyle/controls/selected_rows.h"

#include <QItemSelectionModel>
#include <QtAlgorithms>

#include <algorithm>

namespace corvala::sdk::ui::dialogs::uicontrols {

static std::size_t wordOf(int row)
{
    return static_cast<std::size_t>(row) / 64;
}

static std::uint64_t bitOf(int row)
{
    return std::uint64_t {1} << (static_cast<unsigned>(row) % 64U);
}

static bool isFlat(const QItemSelectionRange& range)
{
    return !range.parent().isValid();
}

static bool coversAllColumns(const QItemSelectionRange& range, int columnCount)
{
    return range.left() == 0 && range.right() >= columnCount - 1;
}

/// Rows that only several ranges together select: in every column, the rows of the ranges that
/// cover it.
static RowBitmap rowsOfPartialRanges(const QItemSelection& ranges, int columnCount)
{
    RowBitmap rows;
    for (int column = 0; column < columnCount; ++column) {
        RowBitmap inColumn;
        for (const QItemSelectionRange& range : ranges) {
            if (isFlat(range) && range.left() <= column && column <= range.right())
                inColumn.insert(range.top(), range.bottom());
        }
        if (column == 0)
            rows = std::move(inColumn);
        else
            rows.intersect(inColumn);
    }
    return rows;
}

static bool hasPartialRanges(const QItemSelection& ranges, int columnCount)
{
    return std::any_of(ranges.cbegin(), ranges.cend(), [&](const QItemSelectionRange& range) {
        return isFlat(range) && !coversAllColumns(range, columnCount);
    });
}

static RowBitmap fullRows(const QItemSelection& ranges, int columnCount)
{
    if (hasPartialRanges(ranges, columnCount))
        return rowsOfPartialRanges(ranges, columnCount);
    RowBitmap rows;
    for (const QItemSelectionRange& range : ranges) {
        if (isFlat(range))
            rows.insert(range.top(), range.bottom());
    }
    return rows;
}

RowBitmap::RowBitmap(const QItemSelectionModel& selection)
{
    if (selection.model())
        *this = fullRows(selection.selection(), selection.model()->columnCount());
}

bool RowBitmap::contains(int row) const
{
    return row >= 0 && wordOf(row) < m_words.size() && (m_words[wordOf(row)] & bitOf(row)) != 0;
}

bool RowBitmap::insert(int row)
{
    growTo(row);
    Word& word = m_words[wordOf(row)];
    const bool isNew = (word & bitOf(row)) == 0;
    word |= bitOf(row);
    return isNew;
}

void RowBitmap::insert(int first, int last)
{
    if (first < 0 || last < first)
        return;
    growTo(last);
    const Word fromFirst = ~Word {0} << (static_cast<unsigned>(first) % 64U);
    const Word upToLast = ~Word {0} >> (63U - static_cast<unsigned>(last) % 64U);
    if (wordOf(first) == wordOf(last)) {
        m_words[wordOf(first)] |= fromFirst & upToLast;
        return;
    }
    m_words[wordOf(first)] |= fromFirst;
    for (std::size_t word = wordOf(first) + 1; word < wordOf(last); ++word)
        m_words[word] = ~Word {0};
    m_words[wordOf(last)] |= upToLast;
}

void RowBitmap::intersect(const RowBitmap& other)
{
    m_words.resize(std::min(m_words.size(), other.m_words.size()));
    for (std::size_t word = 0; word < m_words.size(); ++word)
        m_words[word] &= other.m_words[word];
}

int RowBitmap::count() const
{
    int rows = 0;
    for (const Word word : m_words)
        rows += static_cast<int>(qPopulationCount(word));
    return rows;
}

bool RowBitmap::isEmpty() const
{
    return std::all_of(m_words.cbegin(), m_words.cend(), [](Word word) { return word == 0; });
}

void RowBitmap::growTo(int row)
{
    if (wordOf(row) >= m_words.size())
        m_words.resize(wordOf(row) + 1);
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
        connect(model, &QAbstractItemModel::layoutChanged, this, &SelectedRows::forget);
        connect(model, &QAbstractItemModel::rowsInserted, this, &SelectedRows::forget);
        connect(model, &QAbstractItemModel::rowsRemoved, this, &SelectedRows::forget);
        connect(model, &QAbstractItemModel::columnsInserted, this, &SelectedRows::forget);
        connect(model, &QAbstractItemModel::columnsRemoved, this, &SelectedRows::forget);
    }
}

/// The runs of a range of rows that are in `full` and not yet in `seen`, which they are added to.
static void appendRuns(std::vector<RowRange>& runs, const QItemSelectionRange& range,
                       const RowBitmap& full, RowBitmap& seen)
{
    int first = -1;
    for (int row = range.top(); row <= range.bottom() + 1; ++row) {
        const bool isNew = row <= range.bottom() && full.contains(row) && seen.insert(row);
        if (isNew && first < 0)
            first = row;
        if (!isNew && first >= 0) {
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
    m_bitmap = RowBitmap();
    m_areAll = true;
    if (!m_selection.model())
        return;
    const QItemSelection ranges = m_selection.selection();
    const int columnCount = m_selection.model()->columnCount();
    m_bitmap = fullRows(ranges, columnCount);
    m_areAll = !hasPartialRanges(ranges, columnCount);
    RowBitmap seen;
    for (const QItemSelectionRange& range : ranges) {
        if (isFlat(range))
            appendRuns(m_ranges, range, m_bitmap, seen);
    }
}

const RowBitmap& SelectedRows::bitmap()
{
    find();
    return m_bitmap;
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
    return m_bitmap.count();
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
