// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include "host/io/reader/mapped_file.h"

#include <QStringList>

namespace corvala::host::io::reader {

/// Throws ReadFailure unless all that the header of a PLY file announces is there. Returns the
/// names of elements that are neither points nor faces.
QStringList requireWholePly(const MappedFile& file);

} // namespace corvala::host::io::reader
