// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include "host/io/reader/data_file.h"
#include "host/io/reader/read_failure.h"

#include <memory>
#include <vector>

namespace corvala::host::io::reader {

using DataFiles = std::vector<std::unique_ptr<DataFile>>;

/// Stands for a file that cannot be opened, which reading tells.
std::unique_ptr<DataFile> unreadableFile(const QString& path, const ReadFailure& failure);

/// How many of the files tell no times apart and have names that differ by a number only.
std::size_t numberedCount(const DataFiles& files);

/// These files, of any format, become one for each name without the number, at the place of the
/// first one, with the numbers as times. A file that cannot be read is left out with a note.
DataFiles joinedByNumber(DataFiles files);

} // namespace corvala::host::io::reader
