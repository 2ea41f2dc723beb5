// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include <QString>

namespace corvala::host::io::reader {

/// Throws ReadFailure when a CGNS file has no base, or zones without the Cartesian coordinates that
/// its base announces: VTK takes those that it does not find for zeros.
void requireCgnsCoordinates(const QString& path);

} // namespace corvala::host::io::reader
