// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include "host/io/reader/cgns_boundary.h"

#include <vtkPointSet.h>
#include <vtkSmartPointer.h>

namespace corvala::host::io::reader {

/// The part of the zone that a patch names, with the values of its points, and of the cells that it
/// bounds where each of its faces bounds one. Points alone are the outer faces between them or,
/// when there are none, points. Null when the zone does not have what the patch names.
vtkSmartPointer<vtkPointSet> patchGrid(vtkPointSet& zone, const BoundaryPatch& patch);

} // namespace corvala::host::io::reader
