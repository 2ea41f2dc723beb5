// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "plot/field/geometry/contour_groups.h"

#include <vtkDoubleArray.h>
#include <vtkSmartPointer.h>

#include <array>

class vtkDataArray;

namespace corvala::plot {

/// Places of values in the flood texture of a group (see bandImage).
vtkSmartPointer<vtkDataArray> floodCoordinates(vtkDoubleArray& values, int group,
                                               const ContourGroups& groups);

/// Colours of values by the levels of a group; three bytes each.
vtkSmartPointer<vtkDataArray> groupColors(vtkDoubleArray& values, int group,
                                          const ContourGroups& groups);

/// The colour of no value, for so many points.
vtkSmartPointer<vtkDataArray> noValueColors(vtkIdType count);

/// Colours mixed from the red, green and blue channels, each from its smallest to its largest
/// value.
vtkSmartPointer<vtkDataArray>
channelColors(const std::array<vtkSmartPointer<vtkDoubleArray>, 3>& channels,
              const ContourGroups& groups);

} // namespace corvala::plot
