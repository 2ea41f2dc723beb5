// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include "host/io/reader/obj_reader.h"

namespace corvala::host::io::reader {

/// What an STL, PLY or OBJ file has. Throws ReadFailure when the file is cut off or is of none of
/// these formats: VTK's readers take what is missing for nothing, or for whatever the memory held.
SurfaceData readSurface(const QString& path, const ProgressCall& progress);

} // namespace corvala::host::io::reader
