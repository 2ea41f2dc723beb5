// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include "host/io/reader/text/cell_value.h"

#include <string>
#include <vector>

namespace corvala::host::io::reader {

/// The lines above the data of a table.
struct TableHeader
{
    int rows = 0; ///< that name the columns, with the units
    bool hasUnits = false;
    std::vector<std::string> names; ///< of the columns; empty without header
    std::vector<std::string> lines; ///< those with words, as they stand in the file
};

/// Looks for the header in the lines above the data; the dialect tells of what is known, and which
/// fields are separated. `firstRow` is the first line of the data.
TableHeader headerOf(const std::vector<std::string>& linesAbove, const std::string& firstRow,
                     std::size_t columns, const TextDialect& dialect);

/// A name for each of the columns, no two of them equal.
std::vector<std::string> columnNames(const std::vector<std::string>& given, std::size_t columns);

} // namespace corvala::host::io::reader
