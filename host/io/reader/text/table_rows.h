// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include "host/io/read_message.h"
#include "host/io/reader/text/cell_value.h"
#include "host/io/reader/text/row_splitter.h"
#include "host/io/reader/text/table_layout.h"
#include "host/io/reader/text/text_source.h"

namespace corvala::host::io::reader {

/// Why a row of a table cannot be read.
struct RowFault
{
    enum Kind { None, Fields, Cell, Quote };
    Kind kind = None;
    std::size_t column = 0; ///< from 0
    std::size_t fields = 0; ///< that there are
    std::string text; ///< of the field
};

/// A sentence with line and column.
ReadMessage describe(const RowFault& fault, const TableLayout& layout, std::int64_t line);

/// Checks rows and turns their fields into numbers.
class RowParser
{
public:
    explicit RowParser(const TableLayout& layout);

    /// A number per column; those of words and of what is skipped are left alone. Takes empty
    /// fields off the end of the row.
    RowFault parse(Row& row, std::vector<double>& values) const;

private:
    const TableLayout& m_layout;
    CellReader m_cells;
};

/// Reads the lines of a file as rows; a quoted field may have several lines.
class RowReader
{
public:
    RowReader(LineReader& lines, const TextDialect& dialect);

    enum Kind { Blank, Comment, Fields };
    struct Line
    {
        Kind kind = Blank;
        std::string_view text; ///< trimmed; of a row, its first line
        std::int64_t number = 0;
    };

    /// False at the end of the file.
    bool next(Line& line, Row& row);

private:
    void joinLines(Row& row);

    LineReader& m_lines;
    TextComment m_comment;
    RowSplitter m_splitter;
    std::string m_first;
    std::string m_joined;
};

} // namespace corvala::host::io::reader
