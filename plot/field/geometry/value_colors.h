// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "plot/field/geometry/contour_groups.h"

#include <vtkDoubleArray.h>
#include <vtkSmartPointer.h>

#include <array>

class vtkDataArray;
class vtkFloatArray;
class vtkPolyData;

namespace corvala::plot {

/// Places of values, of points or of cells, in the flood texture of a group (see bandImage).
vtkSmartPointer<vtkFloatArray> floodCoordinates(vtkDoubleArray& values, int group,
                                                const ContourGroups& groups);
/// Gives points of a surface that have no value the mean place of those that they share a face
/// with, so that no other band is met on the way to the row of no value.
void placeAmongNeighbours(vtkFloatArray& places, vtkPolyData& surface);

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
