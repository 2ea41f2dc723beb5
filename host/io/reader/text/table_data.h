// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include "host/io/read_message.h"
#include "host/io/reader/data_file.h"
#include "host/io/reader/text/table_layout.h"

namespace corvala::host::io::reader {

/// Rows from one on that are a zone.
struct TableZone
{
    std::size_t firstRow = 0;
    std::string name; ///< may be empty
};

/// The values of a column. Words are numbers: that of each word from 1 in the order in which they
/// come. NaN is missing.
struct ColumnValues
{
    std::vector<double> numbers;
    std::vector<std::string> words; ///< of a column of words
    bool isDropped = false; ///< it had more words than are counted
};

/// Everything in a table but the columns that are skipped.
struct TableData
{
    std::vector<ColumnValues> columns;
    std::size_t rowCount = 0;
    std::vector<TableZone> zones; ///< none of them without rows
    std::int64_t badRowCount = 0;
    std::vector<ReadMessage> badRows; ///< the first ones
};

/// Reads all rows of a file but the bad ones. Throws ReadFailure when its numbers need too much
/// memory.
TableData readTable(const QString& path, const TableLayout& layout, double expectedRows,
                    const ProgressCall& progress);

/// Makes zones by the first column of words that is followed by a new start of a column of numbers
/// wherever its word changes, and never else. Returns the column, or nothing.
std::optional<std::size_t> divideByWords(TableData& table, const TableLayout& layout);

} // namespace corvala::host::io::reader
