// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include "host/io/reader/text/cell_value.h"
#include "host/io/reader/text/text_sample.h"

#include <string>
#include <vector>

namespace corvala::host::io::reader {

struct TableColumn
{
    std::string name; ///< UTF-8; each column has another one
    CellKind kind = CellKind::Number; ///< never Missing
};

/// What the columns of a table are, and where its data begin.
struct TableLayout
{
    /// All filled in but `zones`, which may depend on all rows, and `dates` without dates.
    TextDialect dialect;
    std::vector<TableColumn> columns; ///< empty when nothing looks like a table
    bool isNamed = false; ///< by the file
    std::vector<std::int64_t> headerLines; ///< numbers of the lines above the data, from 1
    std::vector<std::string> header; ///< lines that begin another zone when they are repeated
    std::int64_t linesLeftOut = 0; ///< above the header, besides comments
    bool isSure = false; ///< nothing but what was found comes into question
    double score = 0.0; ///< as DetectedFields::score
};

/// Finds out what `wanted` leaves open.
TableLayout layoutOf(const TextSample& sample, const TextDialect& wanted);

/// The same for a file. Rows far below its header that are said to be the first have the names that
/// stand there.
TableLayout layoutOf(const QString& path, const TextSample& sample, const TextDialect& wanted);

} // namespace corvala::host::io::reader
