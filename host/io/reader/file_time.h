// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include "host/io/reader/data_file.h"

#include <QString>

#include <memory>
#include <optional>
#include <vector>

namespace corvala::host::io::reader {

/// The one solution time that a legacy or XML file of VTK tells in its field data, or that the
/// first of the files does which it names. None for a file that cannot be read.
std::optional<double> fileTime(const QString& path);

/// Files of VTK that have one time each, which differ, and names that differ by a number become one
/// file with all these times, at the place of the first one.
std::vector<std::unique_ptr<DataFile>> joinedByTime(std::vector<std::unique_ptr<DataFile>> files);

} // namespace corvala::host::io::reader
