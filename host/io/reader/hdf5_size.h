// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include <QString>

namespace corvala::host::io::reader {

/// Throws ReadFailure for an HDF5 file that is shorter than its superblock says. Any other file
/// passes.
void requireWholeHdf5(const QString& path);

} // namespace corvala::host::io::reader
