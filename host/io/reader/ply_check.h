// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include "host/io/reader/mapped_file.h"

namespace corvala::host::io::reader {

/// Throws ReadFailure unless all that the header of a PLY file announces is there.
void requireWholePly(const MappedFile& file);

} // namespace corvala::host::io::reader
