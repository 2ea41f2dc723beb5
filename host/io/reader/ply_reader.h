// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include "host/io/reader/obj_reader.h"

namespace corvala::host::io::reader {

/// A PLY file: its points and faces, with each scalar of them as an array by its name. Normals
/// ("Normals"), texture coordinates ("TCoords") and colors of bytes ("RGB", "RGBA") are arrays of
/// several components. Throws ReadFailure unless all that its header announces is there.
SurfaceData readPly(const MappedFile& file, const ProgressCall& progress);

} // namespace corvala::host::io::reader
