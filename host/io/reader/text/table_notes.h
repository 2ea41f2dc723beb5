// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include "host/io/reader/text/table_data.h"

#include <QString>

namespace corvala::host::io::reader {

/// What one would not expect of the columns of a table that was read: words, what was left out,
/// numbers that look missing.
std::vector<ReadMessage> notesOf(const QString& file, const std::vector<TableColumn>& columns,
                                 const TableData& table);

} // namespace corvala::host::io::reader
