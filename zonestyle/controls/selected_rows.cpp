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

QModelIndexList selectedRows(const QItemSelectionModel& selection, int column)
{
    QModelIndexList rows;
    const QAbstractItemModel* model = selection.model();
    if (!model)
        return rows;
    const QItemSelection ranges = selection.selection();
    const RowBitmap full = fullRows(ranges, model->columnCount());
    rows.reserve(full.count());
    RowBitmap seen;
    for (const QItemSelectionRange& range : ranges) {
        if (!isFlat(range))
            continue;
        for (int row = range.top(); row <= range.bottom(); ++row) {
            if (full.contains(row) && seen.insert(row))
                rows.append(model->index(row, column));
        }
    }
    return rows;
}

bool hasSelectedRows(const QItemSelectionModel& selection)
{
    if (!selection.model())
        return false;
    const QItemSelection ranges = selection.selection();
    const int columnCount = selection.model()->columnCount();
    for (const QItemSelectionRange& range : ranges) {
        if (isFlat(range) && coversAllColumns(range, columnCount))
            return true;
    }
    return !fullRows(ranges, columnCount).isEmpty();
}

} // namespace corvala::sdk::ui::dialogs::uicontrols
