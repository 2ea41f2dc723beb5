// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include "host/io/reader/data_file.h"

#include <QStringList>

#include <memory>
#include <vector>

namespace corvala::host::io::reader {

/// Tables of text. Those whose columns have no names take these from one that has as many columns.
/// Throws ReadFailure for a file that is no table.
std::vector<std::unique_ptr<DataFile>> openTables(const QStringList& paths,
                                                  const TextDialect& wanted);

/// Whether a file of unknown kind is a table without doubt.
bool isTable(const QString& path);

} // namespace corvala::host::io::reader
