// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "plot/field/geometry/contour_groups.h"

#include <vtkDoubleArray.h>
#include <vtkSmartPointer.h>

#include <array>

class vtkDataArray;
class vtkPolyData;

namespace corvala::plot {

/// Places of the values at the points of a surface in the flood texture of a group (see bandImage).
/// A point without a value has the place of its neighbours' mean in the row of no value, so that no
/// other band is met on the way there.
vtkSmartPointer<vtkDataArray> floodCoordinates(vtkDoubleArray& values, int group,
                                               const ContourGroups& groups, vtkPolyData& surface);

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
