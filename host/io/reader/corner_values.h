// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include "host/io/read_message.h"

#include <vtkDoubleArray.h>
#include <vtkFloatArray.h>
#include <vtkIdTypeArray.h>
#include <vtkSmartPointer.h>

#include <cstdint>
#include <vector>

namespace corvala::host::io::reader {

/// Numbers that corners of faces name, such as normals.
struct CornerValues
{
    vtkSmartPointer<vtkFloatArray> values = vtkSmartPointer<vtkFloatArray>::New();
    std::vector<std::int32_t> ofCorner; ///< places in `values`, or -1; empty while none is named
    ReadMessage fault; ///< why they cannot be used
};

/// Makes several points of one that corners use with several values. `corners` names the points.
/// Replaces the values by those of the points, in their order: not a number where there are none,
/// and none at all where they cannot be used.
void splitPoints(vtkDoubleArray& points, vtkIdTypeArray& corners,
                 const std::vector<CornerValues*>& values);

} // namespace corvala::host::io::reader
