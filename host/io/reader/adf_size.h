// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include <QString>

namespace corvala::host::io::reader {

/// Throws ReadFailure for an ADF file (the older kind of CGNS) that is shorter, or longer by a
/// block, than its header says: the library reads whatever stands at the places that nodes name.
/// Any other file passes.
void requireWholeAdf(const QString& path);

} // namespace corvala::host::io::reader
