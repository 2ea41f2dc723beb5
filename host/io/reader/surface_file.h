// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include <QString>

#include <vtkAlgorithm.h>
#include <vtkSmartPointer.h>

namespace corvala::host::io::reader {

/// VTK's reader for an STL, PLY or OBJ file, with its file name set. Throws ReadFailure when the
/// file is cut off or is of none of these formats: the readers take what is missing for nothing, or
/// for whatever the memory held.
vtkSmartPointer<vtkAlgorithm> surfaceReader(const QString& path);

} // namespace corvala::host::io::reader
