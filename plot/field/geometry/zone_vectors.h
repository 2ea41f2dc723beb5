// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "plot/common/zone_values.h"

#include <vtkDoubleArray.h>

#include <array>

namespace corvala::plot {

/// Numbers of the variables U, V and W; 0 for none.
using VectorVariables = std::array<std::int64_t, 3>;

/// Three arrays of `count` values as one of vectors; a null one counts as 0. Null when all are.
vtkSmartPointer<vtkDoubleArray>
joinedVectors(const std::array<vtkSmartPointer<vtkDataArray>, 3>& parts, vtkIdType count);

/// The vectors at all points of a zone. Null when the zone has none of the variables.
vtkSmartPointer<vtkDoubleArray> pointVectors(const host::DataSet& data, std::int64_t zone,
                                             const VectorVariables& variables);

} // namespace corvala::plot
